// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/Services.h"

class ListBox;

/// What the draw database of that name holds, as far as it can be read: "UK Lotto, dbase100.txt,
/// 2,065 draws, 19 Nov 94 to 07 Oct 15"; of a file that cannot be read its name alone.
QString DatabaseInWords(const Program& program, const std::string& file);

/// Fills the list with the names of the draw databases, in the order of `state.DbaseFiles`, and
/// leaves none chosen. The tip over a name tells what its database holds.
void ListDatabases(Program& program, ListBox& list);

/// Chooses the first lottery, which runs the list's click. Without any lottery it is a `Failure`
/// that says what is missing.
void ChooseFirstLottery(ListBox& list);
