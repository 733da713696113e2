// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/WindowSize.h"

#include <QEvent>
#include <QWidget>

#include "platform/forms/RoomOnScreen.h"
#include "platform/system/WindowStates.h"

namespace {

class SizeKeeper final : public QObject {
  public:
    SizeKeeper(QWidget& window, WindowStates& states)
        : QObject(&window), window_(window), states_(states) {
        TakeKept();
        opened_ = Now();
        window_.installEventFilter(this);
    }

    // The main window ends the program as soon as it is closed.
    bool eventFilter(QObject*, QEvent* event) override {
        const bool leaves = event->type() == QEvent::Hide || event->type() == QEvent::Close;
        if (leaves && Now() != opened_) {
            opened_ = Now();
            states_.Keep(window_.objectName(), opened_);
        }
        return false;
    }

  private:
    void TakeKept() {
        const auto kept = states_.Of(window_.objectName());
        if (!kept) return;
        const QSize least = window_.minimumSizeHint();
        window_.resize(kept->size.boundedTo(RoomOnScreen(window_)).expandedTo(least));
        if (kept->maximized) window_.setWindowState(window_.windowState() | Qt::WindowMaximized);
    }

    /// The size is that of the window when it is not maximized.
    WindowState Now() const {
        const bool maximized = window_.isMaximized();
        const QSize size = maximized ? window_.normalGeometry().size() : window_.size();
        return {.size = size, .maximized = maximized};
    }

    QWidget& window_;
    WindowStates& states_;
    WindowState opened_;
};

}  // namespace

void RememberSize(QWidget& window, WindowStates* states) {
    if (states != nullptr) new SizeKeeper(window, *states);
}
