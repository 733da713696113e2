// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "databases/draw_records.h"

/// What a draw database holds, as far as it can be read: whoever wants to open or delete a damaged
/// one is to see what there is.
struct DatabaseSummary {
    std::string lottery;
    int draws = 0;
    std::optional<Date> newest;  ///< Date of the first draw; none where it cannot be read.
    std::optional<Date> oldest;  ///< The same of the last draw.
};

/// Reads the database of that name; a file that cannot be read at all is a `Failure`.
DatabaseSummary SummaryOf(const ProgramFolder& folder, const std::string& file,
                          const DateRules& rules);
