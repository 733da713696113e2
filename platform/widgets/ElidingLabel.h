// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/// A label for texts of any length: what does not fit ends in "...", line by line, and the whole
/// text is its tool-tip then. However long the text, the label asks for no room of its own in
/// width.
class ElidingLabel : public QLabel {
    Q_OBJECT
  public:
    explicit ElidingLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QStringList Lines() const;

    /// The lines as far as they fit.
    QStringList FittingLines() const;
};
