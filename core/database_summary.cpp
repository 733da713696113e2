// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/database_summary.h"

#include "core/field_reader.h"
#include "core/text.h"

DatabaseSummary SummaryOf(const ProgramFolder& folder, const std::string& file,
                          const Region& region, Date today) {
    const std::string content = folder.Read(file);
    DatabaseSummary summary;
    summary.lottery = content.substr(0, content.find_first_of("\r\n"));
    const std::vector<std::string_view> draws = DrawLines(content);
    if (draws.empty()) return summary;
    summary.draws = static_cast<int>(draws.size());
    summary.newest = DateOfLine(draws.front(), region, today);
    summary.oldest = DateOfLine(draws.back(), region, today);
    return summary;
}

std::vector<std::string_view> DrawLines(std::string_view content) {
    FieldReader reader(content, {});
    for (int line = 0; line < 2 && !reader.AtEnd(); ++line) reader.ReadLine("a line");
    for (int field = 0; field < 5 && !reader.AtEnd(); ++field) reader.ReadField("a rule");
    std::vector<std::string_view> lines;
    while (!reader.AtEnd()) lines.push_back(reader.ReadLine("a draw"));
    return lines;
}

std::optional<Date> DateOfLine(std::string_view line, const Region& region, Date today) {
    return ReadDate(line.substr(0, line.find(',')), region, today);
}

std::string LotteryInUse(const State& state) {
    if (state.DbaseFile.empty()) return {};
    std::string thirdLine = PlainDigits(state.Picks);
    for (const int field : {state.MaxNum, state.HasPball, state.MaxPball, int{state.HasBonus}}) {
        thirdLine += ',' + PlainDigits(field);
    }
    return "The lottery in use is " + Quoted(state.LotteryName) + " of " + state.DbaseFile +
           ", whose third line says " + Quoted(thirdLine) + ".";
}
