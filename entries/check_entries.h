// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <map>
#include <memory>
#include <optional>

#include "core/date.h"
#include "core/program_folder.h"
#include "core/saved_entries.h"
#include "core/state.h"
#include "entries/check_summary.h"

/// How the check paints a cell of an entry.
enum class Mark {
    None,   ///< Not looked at: the cell keeps its colour.
    Blank,  ///< No match.
    Main,   ///< A main number of the draw.
    Extra,  ///< The bonus or extra ball.
};

/// What an entry matched in the draw of its date.
struct EntryMatch {
    std::array<Mark, 12> marks{};  ///< By column of the entry.
    int main = 0;                  ///< Main numbers matched.
    int extra = 0;                 ///< 10 for each match of the bonus or extra ball.
    bool operator==(const EntryMatch&) const = default;
};

/// Index m counts the entries with m main numbers matched, index m + 10 those with m main numbers
/// and the bonus or extra ball.
using MatchCounts = List<std::int16_t, 21>;

/// Compares an entry with the draw in `state.Pool(1)` to `state.Pool(8)`, by the rules of the
/// current lottery.
///
/// Columns 1 to `state.Picks` are held against as many numbers of the draw and, where
/// `state.HasBonus` is above 0, against the bonus ball. Column 8 is held against the extra ball, so
/// that an empty one matches in a lottery that has neither.
EntryMatch CheckLotto(const State& state, const SavedEntry& entry);

/// Checks entries one after the other, each against the draw of its date.
///
/// Every result, failure and shared variable is that of a scan of the entry's draw database from
/// its newest draw on: it ends at the first draw that is not later than the entry, so that an older
/// draw hides what stands behind it, and only a scan that gets there meets a date that cannot be
/// read or a record cut short. Each file is read once, and no further than some entry asks for.
class EntryCheck {
  public:
    /// All four must outlive the check.
    EntryCheck(State& state, const ProgramFolder& folder, const Region& region, Date today);
    ~EntryCheck();
    EntryCheck(const EntryCheck&) = delete;
    EntryCheck& operator=(const EntryCheck&) = delete;

    /// What the entry matched; nothing where its draw is not in the database. `row` is for
    /// failures. The lottery variables become those of the entry's database, `state.Pool(1)` to
    /// `state.Pool(8)` the draw found.
    std::optional<EntryMatch> Check(const SavedEntry& entry, int row);

    const MatchCounts& Counts() const { return counts_; }

    /// What of the entries was checked, and what not.
    const CheckSummary& Summary() const { return summary_; }

  private:
    std::optional<EntryMatch> Compare(const SavedEntry& entry, int row);
    class Database;

    Database& DatabaseOf(const std::string& file);
    void Remember(const EntryMatch& match);
    void RememberUnchecked(Date entry, Date newestDraw);

    State& state_;
    const ProgramFolder& folder_;
    const Region& region_;
    Date today_;
    std::map<std::string, std::unique_ptr<Database>> databases_;
    MatchCounts counts_{"match counts"};
    CheckSummary summary_;
};

/// The counts as a report: a line for each number of matches from 7 down, an empty line, then those
/// with the bonus or extra ball from `picks` down.
std::string CheckReport(const MatchCounts& counts, int picks);

/// The check step by step, as it is defined: every entry reads its file anew and scans it.
namespace plain {

std::optional<EntryMatch> CheckEntry(State& state, const ProgramFolder& folder,
                                     const Region& region, Date today, const SavedEntry& entry,
                                     int row, MatchCounts& counts);

}  // namespace plain
