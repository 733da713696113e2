// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "core/failure.h"
#include "core/memory_folder.h"
#include "entries/check_entries.h"
#include "entries/entry_table.h"

namespace {

constexpr auto database = "dbase1.txt";
const Date today = std::chrono::year(2005) / 6 / 1;
const Region region;

bool NamesItsPlace(std::string_view text) {
    return text.starts_with("MyLottery.txt, ") || text.starts_with("dbase1.txt, line ");
}

// The plain check knows no row.
bool NamesWhatItRead(std::string_view text) {
    return NamesItsPlace(text) || text.starts_with(database) ||
           text.starts_with("The list of plain counts ");
}

// Does what is told; whether it could. A failure names the place that it came from.
template <typename Action>
bool Try(Action action, bool (*named)(std::string_view) = NamesItsPlace) {
    try {
        action();
        return true;
    } catch (const Failure& failure) {
        if (!named(failure.what())) std::abort();
        return false;
    }
}

int Load(EntryTable& table, const ProgramFolder& folder) {
    int old = 1;
    const EntryTable& shown = table;
    for (; old < 501 && !shown(old, 0).empty(); ++old) {
        for (int column = 0; column < 12; ++column) table(old, column).clear();
    }
    LoadMyDraws(table, folder);
    int count = 0;
    while (!shown(count + 1, 0).empty()) ++count;
    return count;
}

SavedEntry EntryIn(const EntryTable& table, int row) {
    SavedEntry entry;
    std::copy_n(table.Row(row), entry.size(), entry.begin());
    return entry;
}

// Each entry against the database: the fast check and the plain one are alike, failures included.
void CheckAll(const EntryTable& table, int count, MemoryFolder& folder) {
    static const std::unique_ptr<State> state = std::make_unique<State>();
    EntryCheck check(*state, folder, region, today);
    MatchCounts counts("plain counts");
    for (int row = 1; row <= count; ++row) {
        SavedEntry entry = EntryIn(table, row);
        entry[entry_column::database] = database;
        std::optional<EntryMatch> fast;
        std::optional<EntryMatch> slow;
        const bool could = Try([&] { fast = check.Check(entry, row); });
        const bool couldPlainly = Try(
            [&] { slow = plain::CheckEntry(*state, folder, region, today, entry, row, counts); },
            NamesWhatItRead);
        if (could != couldPlainly || fast != slow) std::abort();
        if (!could) return;
    }
    static_cast<void>(CheckReport(check.Counts(), 7));
}

}  // namespace

// Any bytes load as entries or are a failure that names the file, and what was read is the same
// after it was saved and read again. What stands behind a 0 byte is the database they are checked
// against.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto table = std::make_unique<EntryTable>("entries");
    static const auto again = std::make_unique<EntryTable>("entries");
    const std::string_view all(reinterpret_cast<const char*>(data), size);
    const std::size_t border = std::min(all.find('\0'), size);
    MemoryFolder folder;
    folder.Write(savedEntriesFile, all.substr(0, border));
    folder.Write(database, all.substr(std::min(border + 1, size)));
    int count = 0;
    if (!Try([&] { count = Load(*table, folder); })) return 0;
    CheckAll(*table, count, folder);
    std::vector<SavedEntry> entries;
    for (int row = 1; row <= count; ++row) entries.push_back(EntryIn(*table, row));
    WriteEntries(folder, entries);
    if (Load(*again, folder) != count) std::abort();
    for (int row = 1; row <= count; ++row) {
        if (EntryIn(*again, row) != entries.at(static_cast<std::size_t>(row - 1))) std::abort();
    }
    Try([&] { SortByDate(*table, region, today); });
    SortByName(*table);
    SortByLottery(*table);
    Try([&] { DeleteOutOfDate(*table, region, today); });
    return 0;
}
