// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/Services.h"

/// Appends the lines that the grid shows to `MyLottery.txt`, after asking in `SaveEntries` how many
/// of them, for which draw date and for whom.
///
/// The form says how many were saved for which draw, and for whom.
///
/// What is seen is what is stored: the source is the grid, from row 1, always the first lines; its
/// first number becomes the current cell. An empty grid does nothing more.
void SaveLines(Program& program, Form* form, Grid& grid);
