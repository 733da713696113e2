// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "core/date.h"

/// What a check looked at, what it could not check and why, and the best that it found.
struct CheckSummary {
    /// The best entry: most main numbers, then whether the ball beside them matched.
    struct Best {
        int main = -1;  ///< Main numbers matched; -1 where nothing was checked.
        bool extra = false;
        bool extraIsBonus = false;  ///< The ball is a bonus ball, not an extra one.
    };

    int checked = 0;
    int waiting = 0;      ///< Later than the newest draw of their database.
    int withoutDraw = 0;  ///< Not later, but no draw of their day is there.

    /// The newest draw, by lottery, of each database that entries wait for; none where the database
    /// has no draws.
    std::map<std::string, Date> newest;

    Best best;

    int Entries() const { return checked + waiting + withoutDraw; }

    void AddChecked(const Best& found);
    void AddWaiting(const std::string& lottery, Date newestDraw);
};

/// The summary in words, such as "1 of 2 entries checked; 1 has no draw in its database yet
/// (newest: 07 Oct 15). Best: 4 numbers."
std::string SummaryText(const CheckSummary& summary);
