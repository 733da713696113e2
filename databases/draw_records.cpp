// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/draw_records.h"

#include <utility>

#include "core/field_reader.h"
#include "core/old_files.h"
#include "core/saving.h"
#include "core/text.h"

namespace {

constexpr std::string_view expectedDate = "the date of a draw";
constexpr std::string_view expectedRest = "the numbers of a draw";

std::string HeadingLines(FieldReader& reader) {
    std::string lines;
    for (const std::string_view expected :
         {"the name of the lottery", "the web address of the lottery",
          "the rules of the lottery"}) {
        lines.append(reader.ReadLine(expected)).append("\r\n");
    }
    return lines;
}

DrawRecord ReadRecord(FieldReader& reader, const DateRules& rules) {
    const std::string_view field = reader.ReadField(expectedDate);
    const auto date = ReadDate(field, rules.region, rules.today);
    if (!date) throw reader.Unexpected("the date of a draw such as \"19 Nov 94\"", field);
    std::string text = std::string(field) + ",";
    text += reader.ReadLine(expectedRest);
    return {.date = *date, .text = std::move(text)};
}

/// The database with the draw at the place of its date. `reader` stands behind the heading.
std::string WithDraw(std::string bytes, FieldReader& reader, const DrawRecord& draw,
                     const DateRules& rules) {
    DrawRecord met = ReadRecord(reader, rules);
    while (met.date > draw.date && !reader.AtEnd()) {
        bytes += met.text + "\r\n";
        met = ReadRecord(reader, rules);
    }
    const bool oldest = met.date > draw.date;
    bytes += (oldest ? met.text : draw.text) + "\r\n";
    bytes += (oldest ? draw.text : met.text) + "\r\n";
    while (!reader.AtEnd()) bytes.append(reader.ReadLine("a draw")).append("\r\n");
    return bytes;
}

struct Shortened {
    std::string heading;
    std::string otherDraws;
};

/// The lines of a database without draw number `draw`.
Shortened WithoutDraw(std::string_view content, const std::string& file, int draw) {
    FieldReader reader(content, file);
    Shortened result{.heading = HeadingLines(reader), .otherDraws = {}};
    for (int line = 1; !reader.AtEnd(); ++line) {
        const std::string_view text = reader.ReadLine("a draw");
        if (line != draw) result.otherDraws.append(text).append("\r\n");
    }
    return result;
}

// What comes before a draw is written; where it fails, what was typed outlives the run.
template <typename Step>
auto Prepare(const State& state, ProgramFolder& folder, const DrawRecord& draw, Step step) {
    try {
        return step();
    } catch (const Failure& failure) {
        throw AfterRescue(folder, NewLinesOf(state.DbaseFile), draw.text + "\r\n", failure);
    }
}

// The database as it is with the draw, made of the copy in the work file.
std::string Inserted(const State& state, ProgramFolder& folder, const DrawRecord& draw,
                     const DateRules& rules) {
    folder.Copy(state.DbaseFile, workFile);
    const std::string content = folder.Read(workFile);
    FieldReader reader(content, state.DbaseFile);
    std::string heading = HeadingLines(reader);
    // Nothing tells where a draw belongs; what the database held is safe in the work file.
    if (reader.AtEnd()) WriteKeepingOld(folder, state.DbaseFile, {});
    return WithDraw(std::move(heading), reader, draw, rules);
}

// The same for a draw that has been in it, on another day or with other numbers.
std::string Updated(const State& state, ProgramFolder& folder, int draw, const DrawRecord& changed,
                    const DateRules& rules) {
    const Shortened rest = WithoutDraw(folder.Read(state.DbaseFile), state.DbaseFile, draw);
    KeepOld(folder, state.DbaseFile);
    if (rest.otherDraws.empty()) {
        std::string bytes = rest.heading + changed.text + "\r\n";
        folder.Write(workFile, bytes);
        return bytes;
    }
    const std::string work = rest.heading + rest.otherDraws;
    folder.Write(workFile, work);
    FieldReader reader(work, std::string(workFile) + ", a copy of " + state.DbaseFile);
    std::string heading = HeadingLines(reader);
    return WithDraw(std::move(heading), reader, changed, rules);
}

}  // namespace

DrawRecord MakeDrawRecord(Date date, const std::array<std::string, 8>& fields) {
    DrawRecord record{.date = date, .text = DrawDate(date)};
    for (const std::string& field : fields) record.text += "," + field;
    return record;
}

NewestDraw ReadNewestDraw(const State& state, const ProgramFolder& folder) {
    const std::string content = folder.Read(state.DbaseFile);
    FieldReader reader(content, state.DbaseFile);
    reader.ReadLine("the name of the lottery");
    reader.ReadLine("the web address of the lottery");
    for (int field = 0; field < 5; ++field) reader.ReadField("the rules of the lottery");
    NewestDraw draw{.date = std::string(reader.ReadField(expectedDate)), .filled = {}};
    for (bool& filled : draw.filled) filled = LeadingNumber(reader.ReadField(expectedRest)) > 0;
    return draw;
}

std::vector<std::string> StoredDates(const State& state, const ProgramFolder& folder) {
    const std::string content = folder.Read(state.DbaseFile);
    FieldReader reader(content, state.DbaseFile);
    HeadingLines(reader);
    std::vector<std::string> dates;
    while (!reader.AtEnd()) {
        dates.emplace_back(reader.ReadField(expectedDate));
        reader.ReadLine(expectedRest);
    }
    return dates;
}

std::string NumbersInWords(std::string_view line, const std::string& lastTitle) {
    FieldReader reader(line, {});
    std::string words;
    for (int column = 0; column <= 8 && !reader.AtEnd(); ++column) {
        const int number = LeadingWhole(reader.ReadField(expectedRest));
        const bool last = column == 8;
        if (column == 0 || number <= 0 || (last && lastTitle.empty())) continue;
        if (!words.empty()) words += ", ";
        if (last) words += lastTitle + " ";
        words += PlainDigits(number);
    }
    return words;
}

void InsertDraw(const State& state, ProgramFolder& folder, const DrawRecord& draw,
                const DateRules& rules) {
    const std::string bytes =
        Prepare(state, folder, draw, [&] { return Inserted(state, folder, draw, rules); });
    folder.Write(state.DbaseFile, bytes);
}

void DeleteDraw(const State& state, ProgramFolder& folder, int draw) {
    KeepOld(folder, state.DbaseFile);
    folder.Copy(state.DbaseFile, workFile);
    const Shortened rest = WithoutDraw(folder.Read(workFile), state.DbaseFile, draw);
    folder.Write(state.DbaseFile, rest.heading + rest.otherDraws);
}

void UpdateDraw(const State& state, ProgramFolder& folder, int draw, const DrawRecord& changed,
                const DateRules& rules) {
    const std::string bytes = Prepare(state, folder, changed,
                                      [&] { return Updated(state, folder, draw, changed, rules); });
    folder.Write(state.DbaseFile, bytes);
}
