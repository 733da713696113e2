// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QGridLayout;
class QLabel;

/// One info panel of the main window: a sheet with a heading that stays readable on the background
/// picture. The controls of a panel are its direct children.
class Panel : public QWidget {
    Q_OBJECT
  public:
    /// Shows or hides the panel with every control on it.
    void SetShown(bool shown);

    QLabel* Heading() const { return heading_; }

  protected:
    Panel(const QString& headingName, const QString& heading, QWidget* parent);

    QGridLayout* Sheet() const { return sheet_; }
    void paintEvent(QPaintEvent* event) override;

  private:
    QLabel* heading_;
    QGridLayout* sheet_;
};
