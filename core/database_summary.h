// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/date.h"
#include "core/program_folder.h"
#include "core/state.h"

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
                          const Region& region, Date today);

/// The lines below the header in the content of a draw database, as they stand there; each is a
/// draw where the database is sound. The header ends with its fifth rule, as for the load.
std::vector<std::string_view> DrawLines(std::string_view content);

/// The date that a draw's line begins with; none where it cannot be read.
std::optional<Date> DateOfLine(std::string_view line, const Region& region, Date today);

/// Which lottery is in use, for a report: its name, its file, and what the file's third line says.
/// Empty where no database has been loaded.
std::string LotteryInUse(const State& state);
