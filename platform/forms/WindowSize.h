// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;
class WindowStates;

/// Lets a window open as its user left it, no larger than its screen has the room, and keeps how
/// the user leaves it where that differs from how it opened. To be called when the window has got
/// its usual size and is not shown yet; `states` may be null.
void RememberSize(QWidget& window, WindowStates* states);
