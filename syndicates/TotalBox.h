// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QLineEdit>

class WindowShade;

/// Shows an amount that was worked out, in a text colour told for a light window; in a dark one its
/// counterpart is painted.
class TotalBox final : public QLineEdit {
    Q_OBJECT
  public:
    explicit TotalBox(QWidget* parent = nullptr);

    void Show(const QString& amount, const QColor& colour);
    QColor Colour() const { return colour_; }

  private:
    void TakeColour();

    QColor colour_ = Qt::black;
    WindowShade* shade_;
};
