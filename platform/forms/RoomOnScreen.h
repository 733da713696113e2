// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QWidget;

/// How large a window may be on its screen, with room left for its edges and title bar.
QSize RoomOnScreen(const QWidget& window);
