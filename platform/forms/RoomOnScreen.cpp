// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/RoomOnScreen.h"

#include <QScreen>
#include <QWidget>

QSize RoomOnScreen(const QWidget& window) {
    constexpr QSize frame(16, 64);
    return window.screen()->availableSize() - frame;
}
