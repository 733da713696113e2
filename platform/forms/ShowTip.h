// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/Services.h"

class QWidget;

/// Shows the tip of that number, 1 to 6, over `parent`; any other number shows nothing.
void ShowTip(Services& services, QWidget* parent, int tip);
