// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/database_summary.h"

DatabaseSummary SummaryOf(const ProgramFolder& folder, const std::string& file,
                          const DateRules& rules) {
    const std::string content = folder.Read(file);
    DatabaseSummary summary;
    summary.lottery = content.substr(0, content.find_first_of("\r\n"));
    const std::vector<std::string_view> draws = DrawLines(content);
    if (draws.empty()) return summary;
    summary.draws = static_cast<int>(draws.size());
    summary.newest = DateOfLine(draws.front(), rules);
    summary.oldest = DateOfLine(draws.back(), rules);
    return summary;
}
