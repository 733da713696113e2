// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/widgets/ClickableLabel.h"

/// An address that is clicked, in the colour of links. The Tab key reaches it, and Enter and Space
/// are clicks. A screen reader meets a link.
class LinkLabel final : public ClickableLabel {
    Q_OBJECT
  public:
    LinkLabel(const QString& name, const QString& address);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
