// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/Printers.h"

/// The form as it stands, on white with dark text whatever the theme and the skin: landscape, in
/// medium quality, its charts drawn as sharp as the page is. The form must live until it is
/// painted.
PictureJob PictureOf(QWidget& form);
