// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/entry_table.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "core/field_reader.h"
#include "core/text.h"

namespace {

constexpr int lastEntry = 499;

int EntryCount(const EntryTable& table) {
    int count = 0;
    while (!table(count + 1, 0).empty()) ++count;
    return count;
}

void CopyRow(EntryTable& table, int from, int to) {
    const EntryTable& source = table;
    std::copy_n(source.Row(from), EntryTable::ColumnCount(), table.Row(to));
}

template <typename Key>
struct KeyedEntry {
    Key key;
    SavedEntry entry;
};

// Stable, as an exchange of neighbours that stand in the wrong order would be.
template <typename KeyOf, typename Order>
void SortEntries(EntryTable& table, KeyOf keyOf, Order order) {
    const int count = EntryCount(table);
    if (count < 2) return;
    std::vector<KeyedEntry<decltype(keyOf(1))>> entries;
    entries.reserve(static_cast<std::size_t>(count));
    for (int row = 1; row <= count; ++row) entries.push_back({keyOf(row), {}});
    for (int row = 1; row <= count; ++row) {
        std::string* const cells = table.Row(row);
        auto& entry = entries[static_cast<std::size_t>(row - 1)].entry;
        std::move(cells, cells + entry.size(), entry.begin());
    }
    std::stable_sort(entries.begin(), entries.end(), [order](const auto& one, const auto& other) {
        return order(one.key, other.key);
    });
    int row = 0;
    for (auto& entry : entries) {
        std::move(entry.entry.begin(), entry.entry.end(), table.Row(++row));
    }
}

void SortByText(EntryTable& table, int column) {
    const auto name = [&table, column](int row) { return UpperCase(table(row, column)); };
    SortEntries(table, name, std::less<>());
}

}  // namespace

std::string EntryPlace(int row) {
    return std::string(savedEntriesFile) + ", row " + std::to_string(row) + " as shown";
}

int LoadMyDraws(EntryTable& table, const ProgramFolder& folder) {
    if (!folder.Exists(savedEntriesFile)) return 0;
    const std::string content = folder.Read(savedEntriesFile);
    FieldReader reader(content, savedEntriesFile);
    for (int row = 1; row <= lastEntry && !reader.AtEnd(); ++row) {
        ReadEntry(reader, table.Row(row));
    }
    int unread = 0;
    for (; !reader.AtEnd(); ++unread) reader.ReadLine("an entry");
    return unread;
}

void SortByDate(EntryTable& table, const Region& region, Date today) {
    const auto date = [&](int row) {
        return DateFromText(table(row, 0), region, today, EntryPlace(row));
    };
    SortEntries(table, date, std::greater<>());
}

void SortByName(EntryTable& table) { SortByText(table, entry_column::player); }

void SortByLottery(EntryTable& table) { SortByText(table, entry_column::lottery); }

void DeleteRow(EntryTable& table, std::int16_t row) {
    int reached = row;
    do {
        CopyRow(table, reached + 1, reached);
        ++reached;
    } while (!table(reached, 0).empty());
}

void DeleteOutOfDate(EntryTable& table, const Region& region, Date today) {
    const int count = EntryCount(table);
    const Date oldest = DaysAfter(today, -1);
    int kept = 0;
    for (int row = 1; row <= count; ++row) {
        if (DateFromText(table(row, 0), region, today, EntryPlace(row)) < oldest) continue;
        if (++kept < row) CopyRow(table, row, kept);
    }
    for (int row = kept + 1; row <= count; ++row) CopyRow(table, count + 1, row);
}

bool ChangeDate(EntryTable& table, int row, Date date, const Region& region, Date today) {
    if (!ReadDate(table(row, 0), region, today)) return false;
    table(row, 0) = MediumDate(date);
    return true;
}
