// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/database_summary.h"

#include <string_view>

#include "core/field_reader.h"

namespace {

std::string_view NextLine(FieldReader& reader) {
    return reader.AtEnd() ? std::string_view() : reader.ReadLine("a line");
}

std::optional<Date> DateOf(std::string_view record, const DateRules& rules) {
    return ReadDate(record.substr(0, record.find(',')), rules.region, rules.today);
}

}  // namespace

DatabaseSummary SummaryOf(const ProgramFolder& folder, const std::string& file,
                          const DateRules& rules) {
    const std::string content = folder.Read(file);
    FieldReader reader(content, file);
    DatabaseSummary summary;
    summary.lottery = NextLine(reader);
    NextLine(reader);  // web address
    NextLine(reader);  // rules
    std::string_view first;
    std::string_view last;
    for (; !reader.AtEnd(); ++summary.draws) {
        last = NextLine(reader);
        if (summary.draws == 0) first = last;
    }
    summary.newest = DateOf(first, rules);
    summary.oldest = DateOf(last, rules);
    return summary;
}
