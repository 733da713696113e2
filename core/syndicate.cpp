// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/syndicate.h"

#include "core/field_reader.h"
#include "core/settings.h"

namespace {

constexpr int lastRow = 100;
constexpr int lastColumn = 10;

}  // namespace

void LoadSyndicate(State& state, const ProgramFolder& folder) {
    for (int row = 0; row <= lastRow; ++row) {
        for (int column = 0; column <= lastColumn; ++column) state.Members(row, column).clear();
    }
    std::string& file = state.Settings(setting::SyndicateFile);
    if (file.empty()) return;
    if (!folder.Exists(file)) {
        file.clear();
        return;
    }
    const std::string content = folder.Read(file);
    FieldReader reader(content, file, FieldReader::Quotes::Removed);
    for (int row = 0; row <= lastRow; ++row) {
        for (int column = 0; column <= lastColumn; ++column) {
            state.Members(row, column) =
                reader.ReadField("a field of row " + std::to_string(row) + " of the syndicate");
        }
    }
}
