// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/syndicate.h"

#include <utility>

#include "core/field_reader.h"
#include "core/old_files.h"
#include "core/settings.h"

namespace {

constexpr int lastColumn = member_column::SyndicateName;

}  // namespace

int MemberCount(const State& state) {
    int count = 0;
    while (!state.Members(count + 1, member_column::Name).empty()) ++count;
    return count;
}

void LoadSyndicate(State& state, const ProgramFolder& folder) {
    for (int row = 0; row <= lastMember; ++row) {
        for (int column = 0; column <= lastColumn; ++column) state.Members(row, column).clear();
    }
    state.MembersOnDisk.clear();
    std::string& file = state.Settings(setting::SyndicateFile);
    if (file.empty()) return;
    if (!folder.Exists(file)) {
        file.clear();
        return;
    }
    const std::string content = folder.Read(file);
    FieldReader reader(content, file, FieldReader::Quotes::Removed);
    for (int row = 0; row <= lastMember; ++row) {
        const std::string expected = "a field of row " + std::to_string(row) + " of the syndicate";
        for (int column = 0; column <= lastColumn; ++column) {
            state.Members(row, column) = reader.ReadField(expected);
        }
    }
    state.MembersOnDisk = content;
}

std::string SyndicateText(const State& state) {
    std::string content;
    for (int row = 0; row <= lastMember; ++row) {
        for (int column = 0; column <= lastColumn; ++column) {
            content += (column == 0 ? "\"" : ",\"") + state.Members(row, column) + '"';
        }
        content += "\r\n";
    }
    return content;
}

void SaveSyndicate(State& state, ProgramFolder& folder) {
    const std::string& file = View(state).Settings(setting::SyndicateFile);
    if (file.empty()) return;
    std::string content = SyndicateText(state);
    WriteKeepingOld(folder, file, content);
    state.MembersOnDisk = std::move(content);
}
