// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/members.h"

#include <algorithm>
#include <vector>

#include "core/failure.h"
#include "core/settings.h"
#include "core/text.h"

namespace {

using Row = std::array<std::string, 11>;

void CopyRow(State& state, int from, int to) {
    const std::string* source = View(state).Members.Row(from);
    std::copy_n(source, state.Members.ColumnCount(), state.Members.Row(to));
}

int RowOf(const State& state, std::string_view name) {
    int row = 1;
    while (row <= lastMember && state.Members(row, member_column::Name) != name) ++row;
    return row;
}

}  // namespace

int PayByIndex(std::string_view method) {
    const auto* found = std::find(payByMethods.begin(), payByMethods.end(), method);
    return found == payByMethods.end() ? -1 : static_cast<int>(found - payByMethods.begin());
}

void AddMember(State& state, const MemberDetails& member) {
    const std::string& name = member.texts.front();
    const int row = std::min(RowOf(state, name), RowOf(state, {}));
    if (row > lastMember) {
        throw Failure(state.Settings(setting::SyndicateFile) +
                      ": a syndicate has 100 members at most, and there is no row for " +
                      Quoted(name) + ".");
    }
    std::copy(member.texts.begin(), member.texts.end(), state.Members.Row(row));
    state.Members(row, member_column::PayBy) = member.payBy;
}

void DeleteMember(State& state, std::string_view name) {
    int row = RowOf(state, name);
    do {
        CopyRow(state, row + 1, row);
        ++row;
    } while (row != lastMember && !View(state).Members(row, member_column::Name).empty());
}

void SortMembers(State& state) {
    std::vector<Row> rows(static_cast<std::size_t>(MemberCount(state)));
    int row = 0;
    for (Row& cells : rows) {
        std::string* const source = state.Members.Row(++row);
        std::move(source, source + cells.size(), cells.begin());
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& one, const Row& other) { return one.front() < other.front(); });
    row = 0;
    for (Row& cells : rows) std::move(cells.begin(), cells.end(), state.Members.Row(++row));
}
