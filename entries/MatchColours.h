// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Skin.h"

/// The colours behind checked numbers: white, yellow for a main number of the draw, light red for
/// the bonus or extra ball. Values as in the settings, blue in
/// front.
inline QColor NoMatchColour() { return ToQColor(0xffffff); }
inline QColor MainMatchColour() { return ToQColor(0x00ffff); }
inline QColor ExtraMatchColour() { return ToQColor(0xc0c0ff); }
