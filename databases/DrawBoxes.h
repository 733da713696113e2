// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes that a draw is typed into.
#pragma once

#include <array>
#include <string>

#include "platform/forms/EntryBoxes.h"

class QLayout;

/// The boxes of one draw.
using DrawBoxes = EntryBoxes;

/// Makes the boxes `Text1(firstIndex)` and on, each with a name for screen readers. Several numbers
/// pasted into one are dealt to those behind it.
DrawBoxes MakeDrawBoxes(int firstIndex);

/// Two titles with the main numbers below the one and the last number below the other.
QLayout* BuildDrawBoxes(QLabel* mainTitle, QLabel* lastTitle, const DrawBoxes& boxes);

/// The first of the first `count` boxes that holds no number from 1 to `most`; null where all of
/// them do. `count` is at most 8.
NumberBox* FirstOutside(const DrawBoxes& boxes, int count, int most);

/// Puts the cursor into the box, whose text the next key replaces.
void LeadTo(NumberBox& box);

/// What stands in the boxes, hidden ones too, as the files hold it.
std::array<std::string, 8> TextsOf(const DrawBoxes& boxes);
