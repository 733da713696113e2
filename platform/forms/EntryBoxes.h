// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes that the numbers of an entry or a draw are typed into.
#pragma once

#include <array>

#include "core/state.h"

class NumberBox;
class QLabel;
class QString;

/// Seven main numbers, then the bonus or extra ball. Indices from 0.
using EntryBoxes = std::array<NumberBox*, 8>;

/// Makes the boxes `Text1(firstIndex)` and on, each with a name for screen readers, the last one
/// that of `lastName`. Several numbers pasted into one are dealt to those behind it.
EntryBoxes MakeEntryBoxes(int firstIndex, const QString& lastName);

/// Offers the boxes that an entry of the current lottery has, and the title of the extra ball where
/// it has one; the others are hidden. A lottery of more than eight numbers is a `Failure`.
void OfferEntryBoxes(const State& state, const EntryBoxes& boxes, QLabel& extraBallTitle);
