// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/lottery_templates.h"

#include <array>

#include "core/failure.h"
#include "core/field_reader.h"

namespace {

constexpr int rowCount = static_cast<int>(decltype(State::Templates)::RowCount());

constexpr std::array<std::string_view, 5> expectedFields = {
    "the name of a lottery", "how many numbers to pick", "the highest number",
    "whether there is an extra ball", "the highest extra ball"};

constexpr int addressColumn = 5;

}  // namespace

void LoadLotteryTemplates(State& state, const ProgramFolder& folder) {
    const std::string content = folder.Read(lotteryTemplatesFile);
    FieldReader reader(content, std::string(lotteryTemplatesFile));
    for (int row = 0; !reader.AtEnd(); ++row) {
        for (int column = 0; column < addressColumn; ++column) {
            const std::string_view field =
                reader.ReadField(expectedFields.at(static_cast<std::size_t>(column)));
            if (row == rowCount) {
                throw reader.Unexpected("no more than " + std::to_string(rowCount) + " lotteries",
                                        field);
            }
            state.Templates(row, column) = field;
        }
        state.Templates(row, addressColumn) = reader.ReadLine("the web address of a lottery");
    }
}

std::vector<std::string> TemplateNames(const State& state) {
    std::vector<std::string> names;
    for (int row = 0; row < rowCount; ++row) {
        const std::string& name = state.Templates(row, 0);
        if (name.empty()) return names;
        names.push_back(name);
    }
    throw Failure(std::string(lotteryTemplatesFile) + ", line " + std::to_string(rowCount) +
                  ": expected at most " + std::to_string(rowCount - 1) +
                  " lotteries, so that the list has an end, but " +
                  state.Templates(rowCount - 1, 0) + " stands there.");
}
