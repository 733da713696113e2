// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

/// What scrolls where it has no room. The background of its window shows through it, and a control
/// that gets the focus scrolls into sight.
class ScrollingBody final : public QScrollArea {
    Q_OBJECT
  public:
    explicit ScrollingBody(QWidget* parent);

    /// What scrolls; it becomes as small as its layout allows before it does.
    QWidget& Content() const { return *widget(); }

    QSize sizeHint() const override;

  private:
    void BringIntoSight(const QWidget& control);
};

/// Lets a window whose content has no room on the screen scroll. The row in which `anchor` stands
/// stays in sight below what scrolls; all scrolls where it is null. The window is not shown yet.
void LetScroll(QWidget& window, const QWidget* anchor);
