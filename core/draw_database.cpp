// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draw_database.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace {

constexpr int lastDraw = 3000;
constexpr int lastColumn = 8;

constexpr std::array<std::string_view, lastColumn + 1> expectedFields = {
    "the date of a draw",
    "the number in column 1 of a draw",
    "the number in column 2 of a draw",
    "the number in column 3 of a draw",
    "the number in column 4 of a draw",
    "the number in column 5 of a draw",
    "the number in column 6 of a draw",
    "the number in column 7 of a draw",
    "the number in column 8 of a draw"};

std::int16_t ReadNumber(FieldReader& reader, std::string_view expected) {
    if (const auto number = reader.ReadShortNumber()) return *number;
    const std::string_view field = reader.ReadField(expected);
    if (const auto number = LeadingInt16(field)) return *number;
    throw reader.Unexpected(std::string(expected) + " (-32768 to 32767)", field);
}

std::string ChooseDatabase(State& state, const ProgramFolder& folder, std::int16_t index) {
    const std::string& name = state.DbaseFiles(index);
    if (name.empty()) {
        throw Failure("Expected draw database number " + std::to_string(index + 1) +
                      " (a file dbase*.txt in the program's folder), but there is none.");
    }
    state.DbaseFile = name;
    return folder.Read(name);
}

}  // namespace

void ReadDatabaseHeader(State& state, FieldReader& reader) {
    state.LotteryName = reader.ReadLine("the name of the lottery");
    state.LotteryURL = reader.ReadLine("the web address of the lottery");
    state.Picks = LeadingWhole(reader.ReadField("how many numbers a line has"));
    state.MaxNum = LeadingWhole(reader.ReadField("the highest number"));
    state.HasPball = LeadingWhole(reader.ReadField("whether there is an extra ball"));
    state.MaxPball = LeadingWhole(reader.ReadField("the highest extra ball"));
    state.HasBonus = ReadNumber(reader, "whether there is a bonus ball");
}

void ReadDraw(std::int16_t* row, FieldReader& reader) {
    for (std::size_t column = 1; column <= lastColumn; ++column) {
        row[column] = ReadNumber(reader, expectedFields[column]);
    }
}

std::vector<std::string> ListDatabases(State& state, const ProgramFolder& folder) {
    const std::vector<std::string> files = folder.Find("dbase*.txt");
    constexpr std::size_t most = decltype(state.DbaseFiles)::Count();
    if (files.size() > most) {
        throw Failure("Expected at most " + std::to_string(most) +
                      " draw databases (dbase*.txt) in the program's folder, but there are " +
                      std::to_string(files.size()) + "; the first too many is \"" + files[most] +
                      "\".");
    }
    state.DbaseFiles.Fill({});
    std::copy(files.begin(), files.end(), state.DbaseFiles.Data());
    std::vector<std::string> lotteries;
    for (const std::string& file : files) {
        const std::string content = folder.Read(file);
        lotteries.emplace_back(FieldReader(content, file).ReadLine("the name of the lottery"));
    }
    return lotteries;
}

void LoadDatabase(State& state, const ProgramFolder& folder, std::int16_t index) {
    const std::string content = ChooseDatabase(state, folder, index);
    FieldReader reader(content, state.DbaseFile);
    ReadDatabaseHeader(state, reader);
    int draw = 1;
    for (; !reader.AtEnd(); ++draw) {
        // Nearly all draws are plain records, which are read several times as fast.
        if (draw <= lastDraw && reader.ReadPlainRecord({state.Draws.Row(draw) + 1, lastColumn})) {
            continue;
        }
        const std::string_view date = reader.ReadField(expectedFields[0]);
        if (draw > lastDraw) throw reader.Unexpected("no more than 3000 draws", date);
        ReadDraw(state.Draws.Row(draw), reader);
    }
    for (; draw <= lastDraw; ++draw)
        std::fill_n(state.Draws.Row(draw) + 1, lastColumn, std::int16_t{0});
}

void LoadDatabaseHeader(State& state, const ProgramFolder& folder, std::int16_t index) {
    const std::string content = ChooseDatabase(state, folder, index);
    FieldReader reader(content, state.DbaseFile);
    ReadDatabaseHeader(state, reader);
}
