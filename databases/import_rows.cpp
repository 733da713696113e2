// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_rows.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <tuple>

#include "core/text.h"
#include "databases/import_characters.h"
#include "databases/import_numbers.h"

namespace {

constexpr std::size_t mostDateColumns = 60;
constexpr std::size_t widest = 4;

std::string Joined(const ImportTable& table, std::size_t row,
                   const std::vector<std::size_t>& columns) {
    std::string text;
    for (const std::size_t column : columns) {
        if (!text.empty()) text += ' ';
        text += table.Cell(row, column);
    }
    return text;
}

/// Tries columns on a part of the rows.
class DateSearch {
  public:
    DateSearch(const ImportTable& table, const DateReader& reader)
        : table_(table), reader_(reader) {
        constexpr std::size_t most = 1500;
        const std::size_t step = table.Rows() / most + 1;
        for (std::size_t row = 0; row < table.Rows(); row += step) sample_.push_back(row);
    }

    std::vector<std::size_t> Best() {
        const std::size_t last = std::min(table_.Columns(), mostDateColumns);
        for (std::size_t column = 0; column < last; ++column) Try({column});
        if (const auto told = ByHeadings()) Try(*told, true);
        // Several columns are looked at only where none is a date by itself.
        for (std::size_t width = 2;
             width <= widest && best_.count < 3 && best_.count * 4 < sample_.size(); ++width) {
            for (std::size_t column = 0; column + width <= last; ++column) {
                std::vector<std::size_t> columns;
                for (std::size_t i = 0; i < width; ++i) columns.push_back(column + i);
                Try(columns);
            }
        }
        return best_.columns;
    }

  private:
    struct Candidate {
        std::vector<std::size_t> columns;
        std::size_t count = 0;
        int rank = 0;  // by heading
    };

    bool IsDate(const std::string& text, bool together) const {
        const auto written = reader_.Read(text);
        if (!written) return false;
        // Several columns, unlike one, might be balls beside a part of the date.
        if (together && written->year < 100) return false;
        return reader_.DateOf(*written, Region::Order::DayMonthYear) ||
               reader_.DateOf(*written, Region::Order::MonthDayYear) ||
               reader_.DateOf(*written, Region::Order::YearMonthDay);
    }

    void Try(const std::vector<std::size_t>& columns, bool told = false) {
        Candidate candidate{.columns = columns, .count = 0, .rank = RankOf(columns.front())};
        const bool together = columns.size() > 1;
        std::size_t others = 0;
        for (const std::size_t row : sample_) {
            const auto empty = [&](std::size_t column) { return table_.Cell(row, column).empty(); };
            if (std::any_of(columns.begin(), columns.end(), empty)) continue;
            // A year in the middle may be that of the date beside a ball.
            if (columns.size() > 2 && !told && PlainNumber(table_.Cell(row, columns[1])) > 99)
                continue;
            const auto digits = [&](std::size_t column) {
                return IsDigitByte(table_.Cell(row, column).front());
            };
            if (IsDate(Joined(table_, row, columns), together)) {
                ++candidate.count;
            } else if (std::all_of(columns.begin(), columns.end(), digits)) {
                ++others;
            }
        }
        // Nor are a year and two balls, of which most but not all could be a month and a day.
        if (columns.size() > 2 && !told && others * 20 > candidate.count) return;
        const bool many = candidate.count * 10 > best_.count * 9;
        const bool better = many && (candidate.rank > best_.rank || best_.count == 0 ||
                                     best_.count * 10 <= candidate.count * 9);
        if (candidate.count > 0 && better) best_ = std::move(candidate);
    }

    int RankOf(std::size_t column) const {
        int rank = 0;
        for (std::size_t row = 0; row < std::min<std::size_t>(table_.Rows(), 30); ++row) {
            const std::string_view cell = table_.Cell(row, column);
            if (cell.empty() || cell.size() > 60 || IsDigitByte(cell.front())) continue;
            const HeadingKind kind = ReadHeading(cell).kind;
            if (kind == HeadingKind::Dated) rank = 1;
            if (kind == HeadingKind::Other && rank == 0) rank = -1;
        }
        return rank;
    }

    // Day, month and year in columns of those names.
    std::optional<std::vector<std::size_t>> ByHeadings() const {
        for (std::size_t row = 0; row < std::min<std::size_t>(table_.Rows(), 30); ++row) {
            std::set<std::size_t> columns;
            std::set<HeadingKind> kinds;
            for (std::size_t column = 0; column < table_.Cells(row); ++column) {
                const HeadingKind kind = ReadHeading(table_.Cell(row, column)).kind;
                const bool part = kind == HeadingKind::Day || kind == HeadingKind::Month ||
                                  kind == HeadingKind::Year;
                // Of two columns for the day the later is the one of the month.
                if (!part || (kind == HeadingKind::Day && !HoldsNumbers(row, column))) continue;
                kinds.insert(kind);
                columns.insert(column);
            }
            if (kinds.size() == 3 && columns.size() == 3) {
                return std::vector<std::size_t>(columns.begin(), columns.end());
            }
        }
        return std::nullopt;
    }

    bool HoldsNumbers(std::size_t heading, std::size_t column) const {
        for (std::size_t row = heading + 1; row < std::min(table_.Rows(), heading + 20); ++row) {
            const int number = PlainNumber(table_.Cell(row, column));
            if (number >= 1 && number <= 31) return true;
        }
        return false;
    }

    const ImportTable& table_;
    const DateReader& reader_;
    std::vector<std::size_t> sample_;
    Candidate best_;
};

bool IsTimeOfDay(std::string_view name) {
    constexpr std::string_view words[] = {"mid",   "even", "noon",  "night", "morn", "day",
                                          "matin", "soir", "tarde", "noche", "1st",  "2nd"};
    const std::string lower = LowerCase(name);
    if (lower == "am" || lower == "pm") return true;
    return std::any_of(std::begin(words), std::end(words),
                       [&](std::string_view word) { return lower.starts_with(word); });
}

/// The names in one column, as long as there are few.
class Names {
  public:
    Names(const ImportTable& table, const DatedRows& dated, std::size_t column)
        : table_(table), dated_(dated), column_(column) {
        constexpr std::size_t most = 40;
        for (const DatedRow& row : dated.rows) {
            const std::string_view name = table.Cell(row.row, column);
            if (name.empty() || !IsLetterByte(name.front())) return;
            ++counts_[name];
            if (counts_.size() > most) return;
        }
        few_ = counts_.size() > 1;
    }

    bool Few() const { return few_; }
    std::size_t Count() const { return counts_.size(); }

    bool TimesOfDay() const {
        return std::all_of(counts_.begin(), counts_.end(),
                           [](const auto& entry) { return IsTimeOfDay(entry.first); });
    }

    // Whether dates stand twice, but hardly any with the same name.
    bool TellDatesApart() const {
        std::set<std::tuple<int, int, int>> dates;
        std::set<std::tuple<int, int, int, std::string_view>> named;
        for (const DatedRow& row : dated_.rows) {
            const WrittenDate& date = row.written;
            dates.emplace(date.year, date.second, date.first);
            named.emplace(date.year, date.second, date.first, table_.Cell(row.row, column_));
        }
        const std::size_t rows = dated_.rows.size();
        return named.size() * 50 >= rows * 49 && dates.size() * 10 <= rows * 8;
    }

    std::string Commonest() const {
        std::string_view commonest;
        std::size_t most = 0;
        for (const DatedRow& row : dated_.rows) {
            const std::string_view name = table_.Cell(row.row, column_);
            const auto count = counts_.find(name);
            if (count == counts_.end() || count->second <= most) continue;
            most = count->second;
            commonest = name;
        }
        return std::string(commonest);
    }

  private:
    const ImportTable& table_;
    const DatedRows& dated_;
    std::size_t column_;
    std::map<std::string_view, std::size_t> counts_;
    bool few_ = false;
};

}  // namespace

DatedRows FindDates(const ImportTable& table, const DateReader& reader) {
    DatedRows dated{.columns = DateSearch(table, reader).Best(), .rows = {}};
    if (dated.columns.empty()) return dated;
    dated.rows.reserve(table.Rows());
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        const auto written = reader.Read(Joined(table, row, dated.columns));
        if (written) dated.rows.push_back({row, *written});
    }
    return dated;
}

std::size_t FindHeading(const ImportTable& table, const DatedRows& dated) {
    std::size_t best = table.Rows();
    int most = 1;
    std::size_t looked = 0;
    std::size_t next = 0;  // in the rows with dates
    for (std::size_t row = 0; row < table.Rows() && looked < 100; ++row) {
        while (next < dated.rows.size() && dated.rows[next].row < row) ++next;
        if (next < dated.rows.size() && dated.rows[next].row == row) continue;
        ++looked;
        const int known = KnownHeadings(table, row);
        if (known <= most) continue;
        most = known;
        best = row;
    }
    return best;
}

ProductChoice FindProduct(const ImportTable& table, const DatedRows& dated,
                          const std::vector<ColumnHeading>& headings) {
    for (std::size_t column = 0; column < std::min(table.Columns(), mostDateColumns); ++column) {
        const auto& dates = dated.columns;
        if (std::find(dates.begin(), dates.end(), column) != dates.end()) continue;
        const Names names(table, dated, column);
        if (!names.Few() || names.TimesOfDay()) continue;
        const bool told = column < headings.size() && headings[column].kind == HeadingKind::Product;
        if (!told && !names.TellDatesApart()) continue;
        return {.column = static_cast<int>(column),
                .product = names.Commonest(),
                .games = names.Count()};
    }
    return {};
}
