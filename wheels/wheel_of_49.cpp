// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/wheel_of_49.h"

#include <string>
#include <string_view>

#include "core/field_reader.h"
#include "core/lines.h"
#include "core/text.h"
#include "play/pool.h"

namespace wheel49 {
namespace {

std::string ExpectedField(std::size_t place) {
    return "place " + PlainDigits(static_cast<long long>(place % 6 + 1)) + " of line " +
           PlainDigits(static_cast<long long>(place / 6 + 1)) + " of the wheel";
}

bool IsWholeNumber(std::string_view field) {
    const bool sign = !field.empty() && (field.front() == '-' || field.front() == '+');
    const std::string_view digits = field.substr(sign ? 1 : 0);
    return !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos;
}

std::int16_t ReadPlace(FieldReader& reader, std::size_t place) {
    const std::string expected = ExpectedField(place);
    const std::string_view field = reader.ReadField(expected);
    const auto number = LeadingInt16(field);
    if (IsWholeNumber(field) && number) return *number;
    throw reader.Unexpected(expected + " (a whole number from 1 to 49)", field);
}

}  // namespace

Table ReadTable(const ProgramFolder& folder) {
    const std::string content = folder.Read(tableFile);
    FieldReader reader(content, tableFile);
    Table table{};
    for (std::size_t place = 0; place < table.size(); ++place) {
        table[place] = ReadPlace(reader, place);
    }
    return table;
}

std::vector<std::uint64_t> LineMasks(const Table& table) {
    std::vector<std::uint64_t> masks(lineCount);
    for (std::size_t i = 0; i < table.size(); ++i) {
        const int place = table[i];
        if (place < 1 || place > numberCount) continue;
        masks[i / 6] |= std::uint64_t{1} << static_cast<unsigned>(place - 1);
    }
    return masks;
}

bool Suits(const State& state) { return state.Picks >= 6 && state.MaxNum >= numberCount; }

wheels::Outcome DoWheel(State& state, Random& random, const Table& table) {
    ShufflePool(state, random, numberCount);
    std::size_t place = 0;
    for (int row = 1; row <= lineCount; ++row) {
        for (int column = 1; column <= 6; ++column) {
            wheels::CopyFromPool(state, row, column, table[place++], 1);
        }
        if (!wheels::FitToPicks(state, random, row)) return wheels::Outcome::NoOtherNumber;
    }
    state.Lines(lineCount + 1, 1) = 0;
    SortLines(state, state.Picks);
    return wheels::Outcome::Done;
}

}  // namespace wheel49
