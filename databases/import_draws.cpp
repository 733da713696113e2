// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_draws.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "core/text.h"
#include "databases/import_row_reader.h"

namespace {

using Reason = LeftOutReason;

constexpr int fewestNumbers = 4;

// So many draws of one date are compared with each other.
constexpr std::size_t mostOfOneDate = 50;

// Which counts of main numbers a draw of this table may have: those that are no exception.
std::array<bool, 8> CountsTaken(const std::vector<ImportedDraw>& draws) {
    std::array<std::size_t, 8> counts{};
    for (const ImportedDraw& draw : draws) ++counts.at(static_cast<std::size_t>(draw.Count()));
    const std::size_t most = *std::max_element(counts.begin() + fewestNumbers, counts.end());
    const std::size_t few = std::max<std::size_t>(10, draws.size() / 50);
    const std::size_t enough = std::min(draws.size() < 30 ? most : few, most);
    std::array<bool, 8> taken{};
    for (std::size_t count = fewestNumbers; count < counts.size(); ++count) {
        taken.at(count) = counts.at(count) > 0 && counts.at(count) >= enough;
    }
    return taken;
}

/// Takes draws away that are none after all.
class Sieve {
  public:
    Sieve(const ImportTable& table, ImportedDraws& imported) : table_(table), imported_(imported) {}

    void PutAside(std::size_t row, Reason reason) {
        imported_.leftOut.push_back({.row = row,
                                     .line = table_.Line(row),
                                     .reason = reason.first,
                                     .why = std::move(reason.second),
                                     .text = table_.RowText(row)});
    }

    // Keeps the draws for which `reasonFor` has no reason.
    template <typename ReasonFor>
    void Keep(ReasonFor reasonFor) {
        std::vector<ImportedDraw> kept;
        kept.reserve(imported_.draws.size());
        for (const ImportedDraw& draw : imported_.draws) {
            if (std::optional<Reason> reason = reasonFor(draw)) {
                PutAside(draw.row, std::move(*reason));
            } else {
                kept.push_back(draw);
            }
        }
        imported_.draws = std::move(kept);
    }

  private:
    const ImportTable& table_;
    ImportedDraws& imported_;
};

// A number that stands in one draw alone, though drawn by chance it would stand in many, is a slip
// of the source; but not in the newest draws, where new rules may begin.
class LoneNumbers {
  public:
    explicit LoneNumbers(const std::vector<ImportedDraw>& draws) {
        constexpr std::size_t newest = 10;
        Take(draws, newest);
    }

    std::optional<Reason> operator()(const ImportedDraw& draw) const {
        const bool lone = draw.row == row_ && found_;
        if (!lone) return std::nullopt;
        return Reason{LeftOut::OutOfRange, PlainDigits(number_) + " stands in no other draw."};
    }

  private:
    void Take(const std::vector<ImportedDraw>& draws, std::size_t newest) {
        std::array<std::size_t, 100> counts{};
        std::size_t balls = 0;
        for (const ImportedDraw& draw : draws) {
            for (const std::int16_t number : draw.numbers) {
                if (number <= 0) continue;
                ++counts.at(static_cast<std::size_t>(number));
                ++balls;
            }
        }
        std::size_t highest = counts.size() - 1;
        while (highest > 0 && counts.at(highest) == 0) --highest;
        if (highest == 0 || counts.at(highest) != 1 || balls < highest * 15) return;
        for (std::size_t i = newest; i < draws.size(); ++i) {
            const auto& numbers = draws[i].numbers;
            if (std::find(numbers.begin(), numbers.end(), highest) == numbers.end()) continue;
            found_ = true;
            row_ = draws[i].row;
            number_ = static_cast<int>(highest);
        }
    }

    bool found_ = false;
    std::size_t row_ = 0;
    int number_ = 0;
};

void SortNewestFirst(std::vector<ImportedDraw>& draws) {
    std::ptrdiff_t rising = 0;
    for (std::size_t i = 1; i < draws.size(); ++i) {
        if (draws[i].date > draws[i - 1].date) ++rising;
        if (draws[i].date < draws[i - 1].date) --rising;
    }
    if (rising > 0) std::reverse(draws.begin(), draws.end());
    std::stable_sort(
        draws.begin(), draws.end(),
        [](const ImportedDraw& one, const ImportedDraw& other) { return one.date > other.date; });
}

std::optional<Reason> SecondDraw(const ImportedDraw& draw, const ImportedDraw& first,
                                 SameDate sameDate) {
    const std::string row = " stands in row " + PlainDigits(first.line) + ".";
    if (draw.SameNumbers(first)) return Reason{LeftOut::SameDraw, "The same draw" + row};
    if (sameDate == SameDate::KeepAll) return std::nullopt;
    return Reason{LeftOut::SecondDraw, "Another draw of " + FullDate(draw.date) + row};
}

// Whether the first of two rows of one date is rather the draw of that date.
class ComesFirst {
  public:
    ComesFirst(const ImportTable& table, const ImportMapping& mapping)
        : table_(table), mapping_(mapping) {}

    bool operator()(const ImportedDraw& one, const ImportedDraw& other) const {
        const bool oneMarked = Marked(one.row);
        if (oneMarked != Marked(other.row)) return !oneMarked;
        if (mapping_.drawNumberColumn >= 0) {
            const int first = DrawNumber(one.row);
            const int second = DrawNumber(other.row);
            if (first != second && first >= 0 && second >= 0) return first < second;
        }
        return one.row < other.row;
    }

  private:
    // A text such as "Bonus draw" in a column that is no part of the draw.
    bool Marked(std::size_t row) const {
        for (std::size_t column = 0; column < table_.Cells(row); ++column) {
            if (RoleOf(mapping_, column) != ColumnRole::Nothing) continue;
            const std::string cell = LowerCase(table_.Cell(row, column).substr(0, 40));
            for (const char* word : {"bonus", "special", "extra", "double", "second", "2nd"}) {
                if (cell.find(word) != std::string::npos) return true;
            }
        }
        return false;
    }

    int DrawNumber(std::size_t row) const {
        const std::string_view cell =
            table_.Cell(row, static_cast<std::size_t>(mapping_.drawNumberColumn));
        return cell.size() > 9 ? -1 : LeadingWhole(cell);
    }

    const ImportTable& table_;
    const ImportMapping& mapping_;
};

// Of the draws of one date the first is kept, the others are told by it.
void SettleSameDates(const ImportTable& table, const ImportMapping& mapping, Sieve& sieve,
                     const std::vector<ImportedDraw>& draws) {
    const ComesFirst comesFirst(table, mapping);
    std::map<std::size_t, Reason> aside;
    for (std::size_t start = 0; start < draws.size();) {
        std::size_t end = start + 1;
        while (end < draws.size() && draws[end].date == draws[start].date) ++end;
        std::vector<const ImportedDraw*> kept;
        std::vector<const ImportedDraw*> all;
        for (std::size_t i = start; i < end; ++i) all.push_back(&draws[i]);
        if (all.size() > 1) {
            std::stable_sort(all.begin(), all.end(), [&](const auto* one, const auto* other) {
                return comesFirst(*one, *other);
            });
        }
        for (const ImportedDraw* draw : all) {
            std::optional<Reason> reason;
            for (std::size_t i = 0; i < kept.size() && !reason; ++i) {
                reason = SecondDraw(*draw, *kept[i], mapping.sameDate);
            }
            if (reason) {
                aside.emplace(draw->row, std::move(*reason));
            } else if (kept.size() < mostOfOneDate) {
                kept.push_back(draw);
            }
        }
        start = end;
    }
    sieve.Keep([&aside](const ImportedDraw& draw) -> std::optional<Reason> {
        const auto found = aside.find(draw.row);
        return found == aside.end() ? std::nullopt : std::optional(found->second);
    });
}

void SortLeftOut(ImportedDraws& imported) {
    std::stable_sort(
        imported.leftOut.begin(), imported.leftOut.end(),
        [](const LeftOutRow& one, const LeftOutRow& other) { return one.row < other.row; });
}

}  // namespace

int ImportedDraw::Count() const {
    return static_cast<int>(std::find(numbers.begin(), numbers.end(), 0) - numbers.begin());
}

bool ImportedDraw::SameNumbers(const ImportedDraw& other) const {
    auto mine = numbers;
    auto others = other.numbers;
    std::sort(mine.begin(), mine.end());
    std::sort(others.begin(), others.end());
    return mine == others && extra == other.extra;
}

ImportedDraws ReadDraws(const ImportTable& table, const ImportMapping& mapping,
                        const DateRules& dates, const std::set<std::size_t>& unticked) {
    ImportedDraws imported;
    Sieve sieve(table, imported);
    const RowReader reader(table, mapping, dates);
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        ImportedDraw draw;
        std::optional<Reason> reason = reader.Read(row, draw);
        if (!reason && unticked.contains(row)) reason = Reason{LeftOut::ByUser, "Left out by you."};
        if (reason) {
            sieve.PutAside(row, std::move(*reason));
        } else {
            imported.draws.push_back(draw);
        }
    }
    const std::array<bool, 8> taken = CountsTaken(imported.draws);
    sieve.Keep([&taken](const ImportedDraw& draw) -> std::optional<Reason> {
        const int count = draw.Count();
        if (taken.at(static_cast<std::size_t>(count))) return std::nullopt;
        const std::string numbers = count == 1 ? " number stands" : " numbers stand";
        return Reason{LeftOut::TooFewNumbers, "Only " + PlainDigits(count) + numbers + " there."};
    });
    SortNewestFirst(imported.draws);
    sieve.Keep(LoneNumbers(imported.draws));
    SettleSameDates(table, mapping, sieve, std::vector(imported.draws));
    SortLeftOut(imported);
    return imported;
}

void KeepNewest(ImportedDraws& imported) {
    if (imported.draws.size() <= mostImportedDraws) return;
    for (std::size_t i = mostImportedDraws; i < imported.draws.size(); ++i) {
        const ImportedDraw& draw = imported.draws[i];
        imported.leftOut.push_back(
            {.row = draw.row,
             .line = draw.line,
             .reason = LeftOut::TooOld,
             .why = "Older than the newest " +
                    GroupedDigits(static_cast<long long>(mostImportedDraws)) + " draws.",
             .text = FullDate(draw.date) + ": " + DrawInWords(draw)});
    }
    imported.draws.resize(mostImportedDraws);
    SortLeftOut(imported);
}

std::string DrawInWords(const ImportedDraw& draw) {
    std::string words;
    for (int i = 0; i < draw.Count(); ++i) {
        if (i > 0) words += ", ";
        words += PlainDigits(draw.numbers.at(static_cast<std::size_t>(i)));
    }
    if (draw.extra > 0) words += " + " + PlainDigits(draw.extra);
    return words;
}
