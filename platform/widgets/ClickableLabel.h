// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/// A label that can be clicked.
class ClickableLabel : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

  Q_SIGNALS:
    void clicked();

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};
