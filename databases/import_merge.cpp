// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_merge.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <utility>

#include "core/failure.h"
#include "core/field_reader.h"
#include "core/text.h"

namespace {

// A draw as it stands in the database.
struct Stored {
    ImportedDraw draw;
    std::string_view bytes;  // its line with the line end
};

/// A draw database in its lines.
class Database {
  public:
    Database(std::string_view content, std::string_view file, const DateRules& dates)
        : rest_(content), file_(file), dates_(dates) {
        for (const char* expected : {"the name of the lottery", "the web address of the lottery"}) {
            TakeLine(expected);
        }
        ReadRules(TakeLine("the rules of the lottery"));
        heading_ = content.substr(0, content.size() - rest_.size());
        while (!rest_.empty()) ReadRecord();
    }

    std::string_view Heading() const { return heading_; }
    const std::vector<Stored>& Draws() const { return draws_; }
    int Highest() const { return rules_[1]; }
    int HighestExtra() const { return rules_[3]; }
    bool HasBonus() const { return rules_[4] > 0; }
    bool HasExtra() const { return HighestExtra() > 0 || HasBonus(); }

    // Whether its draws have so many balls, which may be more than an entry names; without any draw
    // the rules tell.
    bool HasBalls(int count) const {
        if (draws_.empty()) return count == rules_[0];
        return std::any_of(draws_.begin(), draws_.end(),
                           [count](const Stored& stored) { return stored.draw.Count() == count; });
    }

    // Whether the main numbers of all draws stand in ascending order, and that is no chance.
    bool Ascending() const {
        constexpr std::size_t enough = 5;
        return draws_.size() >= enough &&
               std::all_of(draws_.begin(), draws_.end(), [](const Stored& stored) {
                   const auto& numbers = stored.draw.numbers;
                   return std::is_sorted(numbers.begin(), numbers.begin() + stored.draw.Count());
               });
    }

  private:
    // The next line with its end.
    std::string_view TakeLine(const char* expected) {
        ++line_;
        if (rest_.empty()) {
            throw FailureInFile(file_, line_,
                                std::string("expected ") + expected + ", but the file ends there.");
        }
        std::size_t end = std::min(rest_.find_first_of("\r\n"), rest_.size());
        if (end < rest_.size()) end += rest_.substr(end, 2) == "\r\n" ? 2 : 1;
        const std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end);
        return line;
    }

    void ReadRules(std::string_view line) {
        FieldReader reader(line, std::string(file_));
        for (int& rule : rules_) rule = LeadingWhole(reader.ReadField("the rules of the lottery"));
    }

    void ReadRecord() {
        const std::string_view line = TakeLine("a draw");
        FieldReader reader(line, std::string(file_));
        Stored stored{.draw = {}, .bytes = line};
        const std::string where = std::string(file_) + ", line " + PlainDigits(line_);
        stored.draw.date =
            DateFromText(reader.AtEnd() ? std::string_view() : reader.ReadField("a date"),
                         dates_.region, dates_.today, where);
        stored.draw.line = line_;
        std::array<std::int16_t, 9> row{};
        for (std::size_t column = 1; column < row.size() && !reader.AtEnd(); ++column) {
            row.at(column) = LeadingInt16(reader.ReadField("a number")).value_or(0);
        }
        std::copy(row.begin() + 1, row.end() - 1, stored.draw.numbers.begin());
        stored.draw.extra = row.back();
        draws_.push_back(std::move(stored));
    }

    std::string_view rest_;
    std::string_view file_;
    const DateRules& dates_;
    std::string_view heading_;
    std::array<int, 5> rules_{};
    std::vector<Stored> draws_;
    int line_ = 0;
};

std::string RecordOf(const ImportedDraw& draw, Date today) {
    std::array<std::string, 8> fields;
    for (std::size_t i = 0; i < draw.numbers.size(); ++i)
        fields.at(i) = PlainDigits(draw.numbers.at(i));
    fields.back() = PlainDigits(draw.extra);
    std::string record = MakeDrawRecord(draw.date, fields).text;
    // A year of two digits would be read back in another century.
    const int age = static_cast<int>(today.year()) - static_cast<int>(draw.date.year());
    if (age >= 80 || age < -20) record.replace(0, record.find(','), MediumDate(draw.date));
    return record + "\r\n";
}

/// Decides draw by draw, all of one date together.
class Merge {
  public:
    Merge(const Database& database, MergedDatabase& result) : database_(database), result_(result) {
        for (const Stored& stored : database.Draws())
            stored_[Day(stored.draw.date)].push_back(&stored.draw);
        ascending_ = database.Ascending();
    }

    void Take(const std::vector<ImportedDraw>& draws) {
        importHasExtra_ = std::any_of(draws.begin(), draws.end(),
                                      [](const ImportedDraw& draw) { return draw.extra > 0; });
        std::map<int, std::vector<const ImportedDraw*>> imported;
        for (const ImportedDraw& draw : draws) imported[Day(draw.date)].push_back(&draw);
        for (const ImportedDraw& draw : draws) TakeOne(draw, imported.at(Day(draw.date)));
    }

    std::vector<ImportedDraw>& Added() { return added_; }

  private:
    static int Day(Date date) {
        return static_cast<int>(std::chrono::sys_days(date).time_since_epoch().count());
    }

    void TakeOne(const ImportedDraw& draw, const std::vector<const ImportedDraw*>& ofItsDate) {
        const auto found = stored_.find(Day(draw.date));
        if (found != stored_.end()) {
            const auto& there = found->second;
            if (Among(draw, there)) {
                ++result_.there;
                return;
            }
            const bool allKnown = std::all_of(there.begin(), there.end(), [&](const auto* stored) {
                return Among(*stored, ofItsDate);
            });
            if (!allKnown) {
                result_.conflicts.push_back({draw, "The lottery has " +
                                                       DrawInWords(*there.front()) + " on " +
                                                       FullDate(draw.date) + "."});
                return;
            }
        }
        if (auto why = Unfit(draw)) {
            result_.unfit.push_back({draw, std::move(*why)});
            return;
        }
        added_.push_back(draw);
        ImportedDraw& added = added_.back();
        if (ascending_) std::sort(added.numbers.begin(), added.numbers.begin() + added.Count());
        if (!database_.HasExtra()) added.extra = 0;
    }

    bool Among(const ImportedDraw& draw, const std::vector<const ImportedDraw*>& others) const {
        return std::any_of(others.begin(), others.end(), [&](const ImportedDraw* other) {
            ImportedDraw one = draw;
            // An import without any extra ball says nothing of it.
            if (!database_.HasExtra() || !importHasExtra_) one.extra = other->extra;
            return one.SameNumbers(*other);
        });
    }

    std::optional<std::string> Unfit(const ImportedDraw& draw) const {
        if (!database_.HasBalls(draw.Count())) {
            return "The lottery's draws do not have " + PlainDigits(draw.Count()) + " numbers.";
        }
        for (const std::int16_t number : draw.numbers) {
            if (number <= database_.Highest()) continue;
            return Above(number, database_.Highest());
        }
        if (!database_.HasExtra()) return std::nullopt;
        if (!importHasExtra_) return "It lacks the lottery's extra ball.";
        const int highest =
            database_.HighestExtra() > 0 ? database_.HighestExtra() : database_.Highest();
        return draw.extra > highest ? std::optional(Above(draw.extra, highest)) : std::nullopt;
    }

    static std::string Above(int number, int highest) {
        return PlainDigits(number) + " is above " + PlainDigits(highest) +
               ", the highest number by the lottery's rules.";
    }

    const Database& database_;
    MergedDatabase& result_;
    std::map<int, std::vector<const ImportedDraw*>> stored_;
    std::vector<ImportedDraw> added_;
    bool ascending_ = false;
    bool importHasExtra_ = false;
};

// Each new draw in front of the first record that is not later.
std::string WithDraws(const Database& database, const std::vector<ImportedDraw>& added,
                      Date today) {
    std::string bytes(database.Heading());
    const auto endLine = [&bytes] {
        if (!bytes.ends_with('\n') && !bytes.ends_with('\r')) bytes += "\r\n";
    };
    endLine();
    auto next = added.begin();
    for (const Stored& stored : database.Draws()) {
        for (; next != added.end() && next->date >= stored.draw.date; ++next) {
            bytes += RecordOf(*next, today);
        }
        bytes += stored.bytes;
        endLine();
    }
    for (; next != added.end(); ++next) bytes += RecordOf(*next, today);
    return bytes;
}

// A line of a heading must not become two.
std::string OneLine(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char byte) { return static_cast<unsigned char>(byte) < 32; },
        ' ');
    return Trim(line);
}

}  // namespace

std::string NewImportDatabase(std::string_view name, std::string_view address,
                              const ImportRules& rules, const std::vector<ImportedDraw>& draws,
                              Date today) {
    std::string bytes = OneLine(name) + "\r\n" + OneLine(address) + "\r\n";
    bytes += PlainDigits(rules.picks) + "," + PlainDigits(rules.highest) + "," +
             (rules.highestExtra > 0 ? "1," : "0,") + PlainDigits(rules.highestExtra) + "," +
             (rules.hasBonus ? "1" : "0") + "\r\n";
    for (const ImportedDraw& draw : draws) bytes += RecordOf(draw, today);
    return bytes;
}

MergedDatabase MergeDraws(std::string_view database, std::string_view file,
                          const std::vector<ImportedDraw>& draws, const DateRules& dates) {
    const Database read(database, file, dates);
    MergedDatabase result;
    Merge merge(read, result);
    merge.Take(draws);
    std::vector<ImportedDraw>& added = merge.Added();
    std::stable_sort(
        added.begin(), added.end(),
        [](const ImportedDraw& one, const ImportedDraw& other) { return one.date > other.date; });
    const std::size_t room = mostImportedDraws - std::min(mostImportedDraws, read.Draws().size());
    if (added.size() > room) {
        result.tooMany = static_cast<int>(added.size() - room);
        added.resize(room);
    }
    result.added = static_cast<int>(added.size());
    result.bytes = added.empty() ? std::string(database) : WithDraws(read, added, dates.today);
    return result;
}
