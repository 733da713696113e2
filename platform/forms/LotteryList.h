// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/Services.h"

class ListBox;

/// Fills the list with the names of the draw databases, in the order of `state.DbaseFiles`, and
/// leaves none chosen.
void ListDatabases(Program& program, ListBox& list);

/// Chooses the first lottery, which runs the list's click. Without any lottery it is a `Failure`
/// that says what is missing.
void ChooseFirstLottery(ListBox& list);
