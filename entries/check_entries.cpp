// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/check_entries.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/draw_database.h"
#include "core/field_reader.h"
#include "core/text.h"
#include "entries/entry_table.h"

namespace {

constexpr int extraColumn = entry_column::extraBall;  // of a draw, too

// What a scan decides at a draw.
enum class Step { Found, NoDraw, GoOn };

Step StepAt(Date entry, Date draw) {
    if (entry == draw) return Step::Found;
    return entry > draw ? Step::NoDraw : Step::GoOn;
}

Date EntryDate(const SavedEntry& entry, int row, const Region& region, Date today) {
    return DateFromText(entry[0], region, today, EntryPlace(row));
}

Date DrawDateIn(std::string_view text, const FieldReader& reader, const Region& region,
                Date today) {
    if (const auto date = ReadDate(text, region, today)) return *date;
    throw reader.Unexpected("a date such as \"19-Nov-1994\"", text);
}

constexpr std::string_view dateOfDraw = "the date of a draw";
constexpr std::string_view restOfDraw = "the numbers of a draw";

EntryMatch MatchDraw(State& state, const SavedEntry& entry, FieldReader& reader,
                     MatchCounts& counts) {
    std::array<std::int16_t, extraColumn + 1> draw{};
    ReadDraw(draw.data(), reader);
    for (int column = 1; column <= extraColumn; ++column) {
        state.Pool(column) = draw.at(static_cast<std::size_t>(column));
    }
    const EntryMatch match = CheckLotto(state, entry);
    ++counts(match.main + match.extra);
    return match;
}

bool IsDrawn(const State& state, double number) {
    for (int ball = 1; ball <= state.Picks; ++ball) {
        if (state.Pool(ball) == number) return true;
    }
    return false;
}

void AddLine(std::string& report, int matches, std::string_view words, int count) {
    report += NumberText(matches);
    report += words;
    report += NumberText(count) + " times\r\n";
}

}  // namespace

EntryMatch CheckLotto(const State& state, const SavedEntry& entry) {
    constexpr int lastColumn = std::tuple_size_v<SavedEntry> - 1;
    if (state.Picks > lastColumn) {
        throw Failure(state.DbaseFile + ": an entry has " + std::to_string(lastColumn) +
                      " columns behind its date, but the lottery has " +
                      std::to_string(state.Picks) + " numbers in a line.");
    }
    EntryMatch match;
    const auto number = [&entry](int column) {
        return LeadingNumber(entry.at(static_cast<std::size_t>(column)));
    };
    const auto mark = [&match](int column) -> Mark& {
        return match.marks.at(static_cast<std::size_t>(column));
    };
    for (int column = 1; column <= state.Picks; ++column) {
        const bool drawn = IsDrawn(state, number(column));
        mark(column) = drawn ? Mark::Main : Mark::Blank;
        match.main += drawn ? 1 : 0;
    }
    const double extraBall = state.Pool(extraColumn);
    const int bonusColumns = state.HasBonus > 0 ? state.Picks : 0;
    for (int column = 1; column <= bonusColumns; ++column) {
        if (number(column) != extraBall) continue;
        mark(column) = Mark::Extra;
        match.extra += 10;
    }
    const bool hit = number(extraColumn) == extraBall;
    mark(extraColumn) = hit ? Mark::Extra : Mark::Blank;
    match.extra += hit ? 10 : 0;
    return match;
}

// A draw database, read as far as the entries have asked for.
class EntryCheck::Database {
  public:
    Database(std::string content, const std::string& file)
        : content_(std::move(content)), next_(content_, file) {}

    void ReadLottery(State& state) {
        FieldReader reader(content_, next_.FileName());
        ReadDatabaseHeader(state, reader);
        if (std::exchange(opened_, true)) return;
        next_ = reader;
    }

    bool HasDraws() const { return !draws_.empty() || !next_.AtEnd(); }

    // Where the numbers of the draw of that date begin; nothing where there is none.
    std::optional<FieldReader> Find(Date date, const Region& region, Date today) {
        const auto isLater = [date](const Draw& draw) { return draw.earliest > date; };
        auto found = std::partition_point(draws_.begin(), draws_.end(), isLater);
        while (found == draws_.end()) {
            if (!ReadNext(region, today)) return std::nullopt;
            found = isLater(draws_.back()) ? draws_.end() : std::prev(draws_.end());
        }
        FieldReader numbers = found->numbers;
        if (StepAt(date, found->earliest) == Step::Found) return numbers;
        numbers.ReadLine(restOfDraw);
        return std::nullopt;
    }

    // The first of the file; only where a search has been.
    Date NewestDraw() const { return draws_.front().earliest; }

  private:
    struct Draw {
        Date earliest;        // of the draws up to this one; falls, whatever their order
        FieldReader numbers;  // behind the date
    };

    bool ReadNext(const Region& region, Date today) {
        if (!draws_.empty()) {
            next_ = draws_.back().numbers;
            next_.ReadLine(restOfDraw);
        }
        if (next_.AtEnd()) return false;
        const std::string_view text = next_.ReadField(dateOfDraw);
        const Date date = DrawDateIn(text, next_, region, today);
        const Date earliest = draws_.empty() ? date : std::min(date, draws_.back().earliest);
        draws_.push_back({earliest, next_});
        return true;
    }

    std::string content_;
    FieldReader next_;
    bool opened_ = false;
    std::vector<Draw> draws_;
};

EntryCheck::EntryCheck(State& state, const ProgramFolder& folder, const Region& region, Date today)
    : state_(state), folder_(folder), region_(region), today_(today) {}

EntryCheck::~EntryCheck() = default;

EntryCheck::Database& EntryCheck::DatabaseOf(const std::string& file) {
    std::unique_ptr<Database>& database = databases_[file];
    if (!database) database = std::make_unique<Database>(folder_.Read(file), file);
    return *database;
}

std::optional<EntryMatch> EntryCheck::Check(const SavedEntry& entry, int row) {
    try {
        return Compare(entry, row);
    } catch (const Failure& failure) {
        // A line of a database tells its own place; of all else only the check knows which entry
        // led to it.
        const std::string& database = entry[entry_column::database];
        const std::string_view text = failure.what();
        if (text.starts_with(EntryPlace(row)) || text.starts_with(database + ", line ")) throw;
        throw Failure(EntryPlace(row) + ", checked against " + Quoted(database) + ": " +
                      std::string(text));
    }
}

std::optional<EntryMatch> EntryCheck::Compare(const SavedEntry& entry, int row) {
    state_.DbaseFile = entry[entry_column::database];
    Database& database = DatabaseOf(state_.DbaseFile);
    database.ReadLottery(state_);
    if (!database.HasDraws()) {
        ++summary_.waiting;
        return std::nullopt;
    }
    const Date date = EntryDate(entry, row, region_, today_);
    std::optional<FieldReader> numbers = database.Find(date, region_, today_);
    if (!numbers) {
        RememberUnchecked(date, database.NewestDraw());
        return std::nullopt;
    }
    const EntryMatch match = MatchDraw(state_, entry, *numbers, counts_);
    Remember(match);
    return match;
}

// In a lottery without a ball beside the main numbers, an empty cell counts as its match.
void EntryCheck::Remember(const EntryMatch& match) {
    const bool hasBall = View(state_).Pool(extraColumn) > 0;
    summary_.AddChecked({.main = match.main,
                         .extra = hasBall && match.extra > 0,
                         .extraIsBonus = state_.HasBonus > 0});
}

void EntryCheck::RememberUnchecked(Date entry, Date newestDraw) {
    if (entry > newestDraw) {
        summary_.AddWaiting(state_.LotteryName, newestDraw);
    } else {
        ++summary_.withoutDraw;
    }
}

std::optional<EntryMatch> plain::CheckEntry(State& state, const ProgramFolder& folder,
                                            const Region& region, Date today,
                                            const SavedEntry& entry, int row, MatchCounts& counts) {
    state.DbaseFile = entry[entry_column::database];
    const std::string content = folder.Read(state.DbaseFile);
    FieldReader reader(content, state.DbaseFile);
    ReadDatabaseHeader(state, reader);
    while (!reader.AtEnd()) {
        const std::string_view text = reader.ReadField(dateOfDraw);
        const Date date = EntryDate(entry, row, region, today);
        const Step step = StepAt(date, DrawDateIn(text, reader, region, today));
        if (step == Step::Found) return MatchDraw(state, entry, reader, counts);
        reader.ReadLine(restOfDraw);
        if (step == Step::NoDraw) return std::nullopt;
    }
    return std::nullopt;
}

std::string CheckReport(const MatchCounts& counts, int picks) {
    constexpr int mostMatches = 7;
    std::string report;
    for (int matches = mostMatches; matches >= 0; --matches) {
        AddLine(report, matches, "-match =", counts(matches));
    }
    report += "\r\n";
    for (int matches = picks; matches >= 0; --matches) {
        AddLine(report, matches, "-match+bonus/pball =", counts(matches + 10));
    }
    return report;
}
