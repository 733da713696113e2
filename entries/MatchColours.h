// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Skin.h"

/// The colours behind checked numbers: white, yellow for a main number of the draw, light red for
/// the bonus or extra ball.
inline QColor NoMatchColour() { return ToQColor(16777215); }
inline QColor MainMatchColour() { return ToQColor(65535); }
inline QColor ExtraMatchColour() { return ToQColor(12632319); }
