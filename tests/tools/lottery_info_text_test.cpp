// SPDX-License-Identifier: GPL-3.0-or-later
// What is supplied about well-known lotteries, with every figure counted anew.
#include "tools/lottery_info_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "core/memory_folder.h"
#include "shell/lottery_info.h"
#include "test_folders.h"
#include "tools/lottery_odds.h"

namespace {

std::string SuppliedBytes(const std::string& name) {
    std::ifstream file(SUPPLIED_DATA "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<LotteryInfoSection> Sections() {
    MemoryFolder folder;
    folder.Write("Lottery Info.txt", SuppliedBytes("Lottery Info.txt"));
    return ReadLotteryInfo(folder);
}

/// How each lottery is drawn, told here once more.
struct Draw {
    int picks;
    int highest;
    int extraPicks;
    int highestExtra;  // 0: the extra ball is one of those that the numbers left over
    int classes;
    std::string days;
};

const std::map<std::string, Draw> draws = {
    {"UK Lotto", {6, 59, 1, 0, 6, "Wednesday and Saturday."}},
    {"Thunderball", {5, 39, 1, 14, 9, "Tuesday, Wednesday, Friday and Saturday."}},
    {"EuroMillions", {5, 50, 2, 12, 13, "Tuesday and Friday."}},
    {"Irish Lotto", {6, 47, 1, 0, 8, "Wednesday and Saturday."}},
    {"French Loto", {5, 49, 1, 10, 9, "Monday, Wednesday and Saturday."}},
    {"German Lotto", {6, 49, 1, 10, 9, "Wednesday and Saturday."}},
    {"Powerball", {5, 69, 1, 26, 9, "Monday, Wednesday and Saturday."}},
    {"Mega Millions", {5, 70, 1, 24, 9, "Tuesday and Friday."}},
    {"Canada 6/49", {6, 49, 1, 0, 7, "Wednesday and Saturday."}}};

/// The chance of matching so many of `picks` numbers where `drawn` of `highest` are drawn, ball by
/// ball: whatever ball comes next, it is one of ours as often as there are of ours among those
/// left.
double ChanceOfMatching(int matched, int picks, int highest, int drawn) {
    if (matched < 0 || matched > picks || matched > drawn) return 0;
    if (drawn == 0) return 1;
    const int left = highest - drawn + 1;
    const double hit =
        ChanceOfMatching(matched - 1, picks, highest, drawn - 1) * (picks - matched + 1) / left;
    const double miss =
        ChanceOfMatching(matched, picks, highest, drawn - 1) * (left - (picks - matched)) / left;
    return hit + miss;
}

double ChanceOf(const Draw& draw, int numbers, int extras) {
    const double main = ChanceOfMatching(numbers, draw.picks, draw.highest, draw.picks);
    if (draw.highestExtra > 0) {
        return main * ChanceOfMatching(extras, draw.extraPicks, draw.highestExtra, draw.extraPicks);
    }
    const double bonus = static_cast<double>(draw.picks - numbers) / (draw.highest - draw.picks);
    return main * (extras == 1 ? bonus : 1 - bonus);
}

/// What a line of the table says that an entry matches.
struct Match {
    std::set<int> numbers;
    int extras = 0;
};

Match MatchIn(const std::string& words) {
    Match match;
    std::smatch part;
    if (words.ends_with(" alone")) {
        return {.numbers = {0}, .extras = 1};
    }
    if (words.starts_with("no number or 1")) {
        match.numbers = {0, 1};
    } else if (std::regex_search(words, part, std::regex("^(?:all )?([1-6]) numbers?"))) {
        match.numbers = {std::stoi(part[1])};
    } else {
        ADD_FAILURE() << words;
    }
    if (words.find(" and the ") != std::string::npos) match.extras = 1;
    if (std::regex_search(words, part, std::regex(" and ([12]) stars?$"))) {
        match.extras = std::stoi(part[1]);
    }
    return match;
}

double NumberIn(std::string odds) {
    EXPECT_TRUE(odds.starts_with("1 in ")) << odds;
    odds.erase(0, 5);
    std::erase(odds, ',');
    return std::stod(odds);
}

/// A line of the table and the odds that it tells.
struct Row {
    std::string words;
    std::string odds;
};

std::vector<Row> TableOf(const LotteryInfoSection& section) {
    std::vector<Row> rows;
    std::istringstream lines(section.text);
    for (std::string line; std::getline(lines, line);) {
        const auto tab = line.find('\t');
        if (tab == std::string::npos) continue;
        rows.push_back({line.substr(0, tab), line.substr(tab + 1, line.size() - tab - 2)});
    }
    return rows;
}

void ExpectOdds(const Row& row, double chance) {
    const double odds = 1 / chance;
    EXPECT_NEAR(NumberIn(row.odds), odds, odds < 100 ? 0.0501 : 0.501) << row.words;
    EXPECT_EQ(row.odds.find('.') != std::string::npos, odds < 100) << row.words;
}

TEST(SuppliedLotteryInfo, IsWhatTheToolWrites) {
    EXPECT_TRUE(SuppliedBytes("Lottery Info.txt") == LotteryInfoText());
}

TEST(SuppliedLotteryInfo, TellsOfSixToTenLotteries) {
    EXPECT_GE(Sections().size(), 6U);
    EXPECT_LE(Sections().size(), 10U);
    EXPECT_EQ(Sections().size(), draws.size());
}

TEST(SuppliedLotteryInfo, TellsTheOddsOfEveryClass) {
    for (const LotteryInfoSection& section : Sections()) {
        SCOPED_TRACE(section.caption);
        const Draw& draw = draws.at(section.caption);
        const std::vector<Row> table = TableOf(section);
        ASSERT_EQ(std::ssize(table), draw.classes + 1);
        std::map<std::size_t, double> chances;
        double any = 0;
        for (int numbers = 0; numbers <= draw.picks; ++numbers) {
            for (int extras = 0; extras <= draw.extraPicks; ++extras) {
                for (std::size_t i = 0; i + 1 < table.size(); ++i) {
                    const Match match = MatchIn(table[i].words);
                    if (!match.numbers.contains(numbers) || extras < match.extras) continue;
                    chances[i] += ChanceOf(draw, numbers, extras);
                    any += ChanceOf(draw, numbers, extras);
                    break;
                }
            }
        }
        for (std::size_t i = 0; i + 1 < table.size(); ++i) ExpectOdds(table[i], chances[i]);
        EXPECT_EQ(table.back().words, "any of these");
        ExpectOdds(table.back(), any);
    }
}

TEST(SuppliedLotteryInfo, TellsFieldsAndDays) {
    const auto tells = [](const LotteryInfoSection& section, const std::string& words) {
        EXPECT_NE(section.text.find(words), std::string::npos) << section.caption << ": " << words;
    };
    for (const LotteryInfoSection& section : Sections()) {
        const Draw& draw = draws.at(section.caption);
        const std::string highest = std::to_string(draw.highest);
        tells(section, (draw.picks == 5 ? "Five" : "Six") + (" numbers from 1 to " + highest));
        tells(section, "Drawn on: " + draw.days + "\r\n");
        if (section.caption == "German Lotto") {
            tells(section, "from 0 to 9.");
        } else if (draw.highestExtra > 0) {
            tells(section, "from 1 to " + std::to_string(draw.highestExtra) + ".\r\n");
        }
    }
}

TEST(SuppliedLotteryInfo, KnowsTheOddsThatEverybodyKnows) {
    std::map<std::string, std::string> first;
    for (const LotteryInfoSection& section : Sections()) {
        first[section.caption] = TableOf(section).front().odds;
    }
    EXPECT_EQ(first["UK Lotto"], "1 in 45,057,474");
    EXPECT_EQ(first["Thunderball"], "1 in 8,060,598");
    EXPECT_EQ(first["EuroMillions"], "1 in 139,838,160");
    EXPECT_EQ(first["Irish Lotto"], "1 in 10,737,573");
    EXPECT_EQ(first["French Loto"], "1 in 19,068,840");
    EXPECT_EQ(first["German Lotto"], "1 in 139,838,160");
    EXPECT_EQ(first["Powerball"], "1 in 292,201,338");
    EXPECT_EQ(first["Mega Millions"], "1 in 290,472,336");
    EXPECT_EQ(first["Canada 6/49"], "1 in 13,983,816");
}

TEST(SuppliedLotteryInfo, NamesTemplatesThatThereAre) {
    const std::string templates = "\n" + SuppliedBytes("LotteryTemplates.txt");
    const std::regex quoted("\"([^\"]+)\"");
    int found = 0;
    for (const LotteryInfoSection& section : Sections()) {
        const std::string& text = section.text;
        for (std::sregex_iterator name(text.begin(), text.end(), quoted), end; name != end;
             ++name) {
            EXPECT_NE(templates.find("\n" + (*name)[1].str() + ","), std::string::npos)
                << (*name)[1];
            ++found;
        }
    }
    EXPECT_GE(found, 8);
}

TEST(SuppliedLotteryInfo, HoldsNoAddressAndNoPrice) {
    const std::string bytes = SuppliedBytes("Lottery Info.txt");
    EXPECT_FALSE(std::regex_search(bytes, std::regex("http|www|@|[$\x80\xa3]|\\.(com|org|uk)")));
}

TEST(SuppliedLotteryInfo, IsPlainTextWithASpareLine) {
    const std::string bytes = SuppliedBytes("Lottery Info.txt");
    EXPECT_TRUE(bytes.ends_with(".\r\n\r\n"));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool lineEnd = bytes[i] == '\r' || bytes[i] == '\n';
        EXPECT_EQ(bytes[i] == '\n', i > 0 && bytes[i - 1] == '\r') << "byte " << i;
        EXPECT_TRUE(lineEnd || bytes[i] == '\t' || (bytes[i] >= ' ' && bytes[i] <= '~'))
            << "byte " << i;
    }
}

TEST(LotteryOdds, CountsCombinations) {
    EXPECT_EQ(Combinations(49, 6), 13'983'816U);
    EXPECT_EQ(Combinations(5, 0), 1U);
    EXPECT_EQ(Combinations(5, 5), 1U);
    EXPECT_EQ(Combinations(4, 5), 0U);
    EXPECT_EQ(Combinations(4, -1), 0U);
}

TEST(LotteryOdds, AreRounded) {
    EXPECT_EQ(OddsText({.ways = 1, .all = 13'983'816}), "1 in 13,983,816");
    EXPECT_EQ(OddsText({.ways = 2, .all = 2001}), "1 in 1,001");
    EXPECT_EQ(OddsText({.ways = 3, .all = 1000}), "1 in 333");
    EXPECT_EQ(OddsText({.ways = 1, .all = 100}), "1 in 100");
    EXPECT_EQ(OddsText({.ways = 4, .all = 41}), "1 in 10.3");
}

TEST(LotteryOdds, CountEachDrawOnceInTheFirstClassThatItFulfils) {
    const DrawRules rules{.picks = 2, .highest = 4};
    const auto chances =
        ChancesOf(rules, {{.numbers = 2}, {.numbers = 1, .extras = 1}, {.numbers = 1}});
    ASSERT_EQ(chances.size(), 4U);
    EXPECT_EQ(chances[0].ways, 2U);
    EXPECT_EQ(chances[1].ways, 4U);
    EXPECT_EQ(chances[2].ways, 4U);
    EXPECT_EQ(chances[3].ways, 10U);
    EXPECT_EQ(chances[3].all, 12U);
}

}  // namespace
