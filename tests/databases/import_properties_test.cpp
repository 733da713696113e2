// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the shape of a results file, its draws are those that it was made from.
#include <gtest/gtest.h>

#include "tests/databases/made_draws.h"

namespace {

using Draws = std::vector<MadeDraw>;

// One column of a file, or a group that stays together.
struct Column {
    std::vector<std::string> headings;
    std::vector<std::vector<std::string>> cells;  // by draw, then by heading
};

struct Shape {
    char separator = ',';
    bool blanks = false;  // runs of them separate
    bool headings = true;
    bool quotes = false;
    int order = 0;  // newest first, oldest first, neither
    std::string lineEnd = "\n";
};

class FileMaker {
  public:
    FileMaker(const Draws& draws, std::uint32_t seed) : draws_(draws), chance_(seed) {
        shape_.separator = ",;\t|  "[static_cast<std::size_t>(chance_.Below(6))];
        shape_.blanks = shape_.separator == ' ';
        shape_.headings = chance_.Below(3) > 0;
        shape_.quotes = !shape_.blanks && chance_.Below(3) == 0;
        shape_.order = chance_.Below(3);
        shape_.lineEnd = chance_.Below(2) == 0 ? "\n" : "\r\n";
    }

    std::string Make() {
        AddDate();
        AddNumbers();
        for (int noise = chance_.Below(5); noise > 0; --noise) AddNoise();
        chance_.Shuffle(columns_);
        std::vector<std::string> lines = Lines();
        if (shape_.order == 1) std::reverse(lines.begin(), lines.end());
        if (shape_.order == 2) std::rotate(lines.begin(), lines.begin() + 37, lines.end());
        if (shape_.headings) lines.insert(lines.begin(), Heading());
        if (shape_.headings && chance_.Below(4) == 0) lines.insert(lines.begin() + 60, Heading());
        std::string file;
        for (const std::string& line : lines) file += line + shape_.lineEnd;
        if (chance_.Below(3) == 0) file.resize(file.size() - shape_.lineEnd.size());
        return file;
    }

  private:
    void AddDate() {
        static const std::vector<std::string> together = {
            "Y-M-D",  "D/M/Y",   "d/m/Y",    "D.M.Y", "D-b-Y", "d b Y",
            "b d, Y", "w d b Y", "w, D.M.Y", "YMD",   "D/M/y", "w b D, Y"};
        if (chance_.Below(4) == 0) {
            static const std::vector<std::string> apart = {"d m Y", "m d Y", "Y m d", "D b Y",
                                                           "Y M D"};
            AddDateParts(apart[static_cast<std::size_t>(chance_.Below(5))]);
            return;
        }
        std::string form = together[static_cast<std::size_t>(chance_.Below(12))];
        if (form.find('/') != std::string::npos && chance_.Below(2) == 0) {
            std::swap(*std::find_if(form.begin(), form.end(),
                                    [](char c) { return c == 'd' || c == 'D'; }),
                      *std::find_if(form.begin(), form.end(),
                                    [](char c) { return c == 'm' || c == 'M'; }));
        }
        Column column{.headings = {"Draw Date"}, .cells = {}};
        for (const MadeDraw& draw : draws_) column.cells.push_back({DateBy(form, draw.date)});
        columns_.push_back(column);
    }

    void AddDateParts(const std::string& form) {
        Column column;
        for (std::size_t i = 0; i < form.size(); i += 2) {
            column.headings.push_back(form[i] == 'Y'                     ? "Year"
                                      : form[i] == 'd' || form[i] == 'D' ? "DD"
                                                                         : "Month");
        }
        for (const MadeDraw& draw : draws_) {
            std::vector<std::string> cells;
            for (std::size_t i = 0; i < form.size(); i += 2) {
                cells.push_back(DateBy(form.substr(i, 1), draw.date));
            }
            column.cells.push_back(cells);
        }
        columns_.push_back(column);
    }

    // Main numbers and extra balls keep their order, in columns of their own or in one.
    void AddNumbers() {
        const bool oneField = chance_.Below(3) == 0;
        const bool padded = chance_.Below(2) == 0;
        static const std::vector<std::string> betweens = {" ", "-", " - ", "+"};
        const std::string between =
            shape_.blanks ? "-" : betweens[static_cast<std::size_t>(chance_.Below(4))];
        const std::string prefix =
            std::vector<std::string>{"Ball ", "N", "Winning Number ", "num_",
                                     "Zahl "}[static_cast<std::size_t>(chance_.Below(5))];
        Column column;
        const int picks = static_cast<int>(draws_.front().numbers.size());
        if (oneField) {
            column.headings.emplace_back("Winning Numbers");
        } else {
            for (int i = 1; i <= picks; ++i) column.headings.push_back(prefix + std::to_string(i));
        }
        const bool extra = !draws_.front().extras.empty();
        if (extra) column.headings.emplace_back("Bonus Ball");
        for (const MadeDraw& draw : draws_) {
            std::vector<std::string> cells;
            if (oneField) {
                cells.push_back(Joined(draw.numbers, between, padded));
            } else {
                for (const int ball : draw.numbers) {
                    cells.push_back(padded ? TwoDigits(ball) : std::to_string(ball));
                }
            }
            if (extra) cells.push_back(std::to_string(draw.extras.front()));
            column.cells.push_back(cells);
        }
        columns_.push_back(column);
    }

    void AddNoise() {
        Column column;
        const int kind = chance_.Below(6);
        static const std::vector<std::string> names = {"Draw Number", "Machine", "Jackpot",
                                                       "Winners",     "Raffle",  "Venue"};
        column.headings = {names[static_cast<std::size_t>(kind)]};
        static const std::vector<std::string> machines = {"Arthur", "Merlin", "Guinevere",
                                                          "Lancelot"};
        for (std::size_t i = 0; i < draws_.size(); ++i) {
            std::string cell;
            switch (kind) {
                case 0:
                    cell = std::to_string(3000 - i);
                    break;
                case 1:
                    cell = machines[static_cast<std::size_t>(chance_.Below(4))];
                    break;
                case 2:
                    cell = std::to_string(chance_.From(100000, 9000000)) + ".50";
                    break;
                case 3:
                    cell = std::to_string(chance_.From(100, 70000));
                    break;
                case 4:
                    cell = "AB" + std::to_string(chance_.From(10000000, 90000000));
                    break;
                default:
                    cell = "London";
            }
            if (kind == 4 && shape_.quotes) {
                cell += std::string(1, shape_.separator) + "CD" + cell.substr(2);
            }
            column.cells.push_back({cell});
        }
        columns_.push_back(column);
    }

    std::string Line(const std::vector<std::string>& cells) {
        std::string line;
        const std::string between = shape_.blanks ? "   " : std::string(1, shape_.separator);
        for (const std::string& cell : cells) {
            if (!line.empty()) line += between;
            const bool quoted = cell.find(shape_.separator) != std::string::npos && !shape_.blanks;
            line += quoted || shape_.quotes ? '"' + cell + '"' : cell;
        }
        return line;
    }

    std::string Heading() {
        std::vector<std::string> cells;
        for (const Column& column : columns_) {
            cells.insert(cells.end(), column.headings.begin(), column.headings.end());
        }
        return Line(cells);
    }

    std::vector<std::string> Lines() {
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < draws_.size(); ++i) {
            std::vector<std::string> cells;
            for (const Column& column : columns_) {
                cells.insert(cells.end(), column.cells[i].begin(), column.cells[i].end());
            }
            lines.push_back(Line(cells));
        }
        return lines;
    }

    const Draws& draws_;
    Chance chance_;
    Shape shape_;
    std::vector<Column> columns_;
};

MadeLottery SomeLottery(std::uint32_t seed) {
    Chance chance(seed);
    static const std::vector<MadeLottery> lotteries = {
        {.picks = 6, .highest = 49, .extras = 1},
        {.picks = 6, .highest = 59, .extras = 1, .ascending = false},
        {.picks = 5, .highest = 50, .highestExtra = 12, .extras = 1},
        {.picks = 5, .highest = 69, .highestExtra = 26, .extras = 1, .ascending = false},
        {.picks = 6, .highest = 54},
        {.picks = 5, .highest = 39, .ascending = false},
        {.picks = 7, .highest = 35, .highestExtra = 20, .extras = 1, .ascending = false},
        {.picks = 7, .highest = 39, .extras = 1},
        {.picks = 4, .highest = 24, .ascending = false}};
    MadeLottery lottery = lotteries[static_cast<std::size_t>(chance.Below(9))];
    lottery.draws = 110 + chance.Below(60);
    return lottery;
}

TEST(ImportProperties, AnyShapeOfAHistoryGivesItsDraws) {
    for (std::uint32_t seed = 1; seed <= 80; ++seed) {
        const Draws draws = MakeDraws(SomeLottery(seed), seed);
        const std::string file = FileMaker(draws, seed * 977).Make();
        const Imported imported = ImportByProposal(file);
        ASSERT_EQ(LinesOf(imported.draws.draws), LinesOf(draws))
            << "seed " << seed << "\n"
            << NotesOf(imported.proposal) << file.substr(0, 500);
    }
}

}  // namespace
