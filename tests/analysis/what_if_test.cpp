// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/what_if.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <memory>
#include <numeric>
#include <random>

#include "core/lines.h"
#include "core/memory_folder.h"
#include "tests/core/failures.h"
#include "tests/core/lines_support.h"
#include "tests/support/each_real_history.h"

namespace {

using namespace what_if;

/// The counts above 0, by index.
std::map<int, int> CountsOf(const MatchCounts& counts) {
    std::map<int, int> found;
    int index = 0;
    for (const int count : counts) {
        if (count != 0) found[index] = count;
        ++index;
    }
    return found;
}

class WhatIfCheck : public testing::Test {
  protected:
    void Lottery(int picks, int maxNum, int maxPball, std::int16_t hasBonus) {
        state_->Picks = picks;
        state_->MaxNum = maxNum;
        state_->MaxPball = maxPball;
        state_->HasBonus = hasBonus;
        state_->Crlf = "\r\n";
    }

    /// What both ways give, which is the same.
    std::map<int, int> Check(const std::vector<Row>& lines, const std::vector<Row>& draws) {
        FillRows(state_->Lines, lines);
        FillRows(state_->Draws, draws);
        const auto counts = CountsOf(CountMatches(*state_));
        EXPECT_EQ(counts, CountsOf(plain::CountMatches(*state_)));
        return counts;
    }

    int RandomTo(int highest) {
        return static_cast<int>(random_() % static_cast<unsigned>(highest + 1));
    }

    std::unique_ptr<State> state_ = std::make_unique<State>();
    std::mt19937 random_{49};
};

TEST_F(WhatIfCheck, CountsMatchesOfEveryLineInEveryDraw) {
    Lottery(3, 9, 0, 0);
    EXPECT_EQ(Check({{1, 2, 3}, {7, 8, 9}}, {{3, 1, 2}, {1, 4, 7}}),
              (std::map<int, int>{{3, 1}, {0, 1}, {1, 2}}));
}

TEST_F(WhatIfCheck, CountsADrawWithTheBonusInTheSecondListOnly) {
    Lottery(3, 9, 0, 1);
    const Row draw = {1, 2, 4, 0, 0, 0, 0, 3};
    EXPECT_EQ(Check({{1, 2, 3}}, {draw}), (std::map<int, int>{{12, 1}}));
    EXPECT_EQ(Check({{1, 2, 5}}, {draw}), (std::map<int, int>{{2, 1}}));
    EXPECT_EQ(Check({{3, 5, 6}}, {draw}), (std::map<int, int>{{10, 1}}));
}

TEST_F(WhatIfCheck, LooksForTheBonusAmongTheMainNumbersOfTheLineOnly) {
    Lottery(3, 9, 0, 1);
    EXPECT_EQ(Check({{1, 2, 5, 3, 0, 0, 0, 3}}, {{1, 2, 4, 0, 0, 0, 0, 3}}),
              (std::map<int, int>{{2, 1}}));
}

TEST_F(WhatIfCheck, CountsADrawWithTheExtraBallInTheSecondListAlsoWithoutAMatch) {
    Lottery(3, 9, 5, 1);
    const Row line = {1, 2, 3, 0, 0, 0, 0, 4};
    EXPECT_EQ(Check({line}, {{1, 2, 3, 0, 0, 0, 0, 4}}), (std::map<int, int>{{13, 1}}));
    EXPECT_EQ(Check({line}, {{7, 8, 9, 0, 0, 0, 0, 4}}), (std::map<int, int>{{10, 1}}));
    EXPECT_EQ(Check({line}, {{1, 8, 9, 0, 0, 0, 0, 1}}), (std::map<int, int>{{1, 1}}));
}

TEST_F(WhatIfCheck, CountsARepeatedNumberEachTime) {
    Lottery(3, 9, 0, 0);
    EXPECT_EQ(Check({{1, 1, 2}}, {{1, 2, 3}}), (std::map<int, int>{{3, 1}}));
    EXPECT_EQ(Check({{1, 2, 3}}, {{1, 1, 9}}), (std::map<int, int>{{2, 1}}));
    EXPECT_EQ(Check({{1, 1, 1}}, {{1, 1, 1}}), (std::map<int, int>{{9, 1}}));
}

TEST_F(WhatIfCheck, TakesAnEmptyFieldForTheEqualOfAnother) {
    Lottery(3, 9, 0, 0);
    EXPECT_EQ(Check({{1, 2, 0}}, {{1, 8, 0}}), (std::map<int, int>{{2, 1}}));
    Lottery(3, 9, 0, 1);
    EXPECT_EQ(Check({{1, 2, 0}}, {{1, 8, 9}}), (std::map<int, int>{{11, 1}}));
    Lottery(3, 9, 5, 0);
    EXPECT_EQ(Check({{1, 2, 3}}, {{1, 8, 9}}), (std::map<int, int>{{11, 1}}));
}

TEST_F(WhatIfCheck, CountsMoreMatchesThanNumbersAtTheirOwnIndex) {
    Lottery(4, 9, 0, 0);
    EXPECT_EQ(Check({{1, 1, 1, 2}}, {{1, 1, 1, 1}}), (std::map<int, int>{{12, 1}}));
}

TEST_F(WhatIfCheck, CountsTheFirstNumbersOnly) {
    Lottery(4, 49, 0, 0);
    EXPECT_EQ(Check({{1, 2, 3, 4}}, {{9, 8, 7, 6, 1, 2}, {1, 2, 3, 6, 4, 5}}),
              (std::map<int, int>{{0, 1}, {3, 1}}));
}

TEST_F(WhatIfCheck, CountsNothingWithoutDraws) {
    Lottery(3, 9, 0, 1);
    EXPECT_EQ(Check({{1, 2, 3}}, {}), (std::map<int, int>{}));
}

TEST_F(WhatIfCheck, CannotWalkThreeThousandDraws) {
    Lottery(2, 9, 0, 0);
    FillRows(state_->Lines, {{1, 2}});
    state_->Draws.Fill(2);
    EXPECT_THROW(CountMatches(*state_), Failure);
    EXPECT_THROW(plain::CountMatches(*state_), Failure);
    state_->Draws(3000, 1) = 0;
    EXPECT_EQ(CountsOf(CountMatches(*state_)), (std::map<int, int>{{2, 2999}}));
}

TEST_F(WhatIfCheck, FollowsAChangeOfTheDraws) {
    Lottery(2, 9, 0, 0);
    EXPECT_EQ(Check({{1, 2}}, {{1, 3}}), (std::map<int, int>{{1, 1}}));
    EXPECT_EQ(Check({{1, 2}}, {{1, 2}}), (std::map<int, int>{{2, 1}}));
}

TEST_F(WhatIfCheck, GivesTheSameBothWaysOnRandomLotteries) {
    for (int round = 0; round < 200; ++round) {
        const int picks = 1 + RandomTo(6);
        const int maxNum = picks + RandomTo(50);
        Lottery(picks, maxNum, RandomTo(2) == 0 ? 1 + RandomTo(30) : 0,
                static_cast<std::int16_t>(RandomTo(1)));
        std::vector<int> field(static_cast<std::size_t>(maxNum));
        std::iota(field.begin(), field.end(), 1);
        const int oddness = RandomTo(20);  // of a hundred numbers
        const auto row = [&] {
            std::shuffle(field.begin(), field.end(), random_);
            Row numbers(field.begin(), field.begin() + picks);
            numbers.resize(8);
            numbers[7] = RandomTo(31);
            for (int& number : numbers) {
                if (RandomTo(99) < oddness) number = RandomTo(140) - 10;
            }
            if (numbers[0] == 0) numbers[0] = 1;
            return numbers;
        };
        std::vector<Row> lines(static_cast<std::size_t>(1 + RandomTo(20)));
        std::vector<Row> draws(static_cast<std::size_t>(RandomTo(300)));
        std::generate(lines.begin(), lines.end(), row);
        std::generate(draws.begin(), draws.end(), row);
        Check(lines, draws);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST_F(WhatIfCheck, GivesTheSameBothWaysOnRealHistories) {
    const bool present = ForEachRealHistory(*state_, [&](const std::string& lottery) {
        ClearLines(*state_);
        for (int line = 1; line <= 179; ++line) {
            std::vector<int> field(static_cast<std::size_t>(state_->MaxNum));
            std::iota(field.begin(), field.end(), std::int16_t{1});
            std::shuffle(field.begin(), field.end(), random_);
            for (int column = 1; column <= state_->Picks; ++column) {
                state_->Lines(line, column) =
                    static_cast<std::int16_t>(field[static_cast<std::size_t>(column)]);
            }
            const int highest = std::max(state_->MaxPball, 1);
            state_->Lines(line, 8) = static_cast<std::int16_t>(RandomTo(highest));
        }
        EXPECT_EQ(CountMatches(*state_), plain::CountMatches(*state_)) << lottery;
    });
    if (!present) GTEST_SKIP() << "no folder of real histories";
}

TEST_F(WhatIfCheck, AddsItsCountsToThePool) {
    Lottery(3, 9, 0, 1);
    Check({{1, 2, 3}}, {{1, 2, 4, 0, 0, 0, 0, 3}, {1, 2, 4, 0, 0, 0, 0, 9}, {7, 8, 9}});
    state_->Pool(0) = 5;
    CheckIt(*state_);
    EXPECT_EQ(state_->Pool(0), 6);
    EXPECT_EQ(state_->Pool(2), 1);
    EXPECT_EQ(state_->Pool(12), 1);
}

TEST_F(WhatIfCheck, EndsInTheReportAboveWhatACountHolds) {
    Lottery(1, 9, 0, 0);
    FillRows(state_->Lines, std::vector<Row>(10, Row{1}));
    FillRows(state_->Draws, std::vector<Row>(2999, Row{2}));
    CheckIt(*state_);
    EXPECT_EQ(state_->Pool(0), 29990);
    const std::string text = FailureOf([&] { CheckIt(*state_); });
    EXPECT_NE(text.find("59980"), std::string::npos) << text;
    EXPECT_EQ(state_->Pool(0), 29990);
}

TEST_F(WhatIfCheck, HoldsTheHighestNumberThatACountHas) {
    Lottery(1, 9, 0, 0);
    FillRows(state_->Lines, {{1}});
    FillRows(state_->Draws, {{2}});
    state_->Pool(0) = 32766;
    CheckIt(*state_);
    EXPECT_EQ(state_->Pool(0), 32767);
    EXPECT_THROW(CheckIt(*state_), Failure);
}

TEST_F(WhatIfCheck, ReportsAPlainLottery) {
    Lottery(2, 9, 0, 0);
    Check({{1, 2}}, {{1, 2}, {1, 3}, {4, 5}});
    CheckIt(*state_);
    EXPECT_EQ(Report(*state_),
              "Your lottery entries were checked against 3 draw results:\r\n\r\n"
              " 2 - match = 1 times\r\n 1 - match = 1 times\r\n 0 - match = 1 times\r\n");
}

TEST_F(WhatIfCheck, ReportsBonusAndExtraBallInListsOfTheirOwn) {
    Lottery(1, 9, 0, 1);
    Check({{1}}, {{1, 0, 0, 0, 0, 0, 0, 7}, {2, 0, 0, 0, 0, 0, 0, 1}});
    CheckIt(*state_);
    EXPECT_EQ(Report(*state_),
              "Your lottery entries were checked against 2 draw results:\r\n\r\n"
              " 1 - match = 1 times\r\n 0 - match = 0 times\r\n\r\n"
              " 1 - match + bonus = 0 times\r\n 0 - match + bonus = 1 times\r\n");
    Lottery(1, 9, 5, 0);
    EXPECT_EQ(Report(*state_),
              "Your lottery entries were checked against 2 draw results:\r\n\r\n"
              " 1 - match = 1 times\r\n 0 - match = 0 times\r\n\r\n"
              " 1 - match + powerball = 0 times\r\n 0 - match + powerball = 1 times\r\n");
    Lottery(1, 9, 5, 1);
    EXPECT_EQ(Report(*state_),
              "Your lottery entries were checked against 2 draw results:\r\n\r\n"
              " 1 - match = 1 times\r\n 0 - match = 0 times\r\n\r\n"
              " 1 - match + bonus = 0 times\r\n 0 - match + bonus = 1 times\r\n\r\n"
              " 1 - match + powerball = 0 times\r\n 0 - match + powerball = 1 times\r\n");
}

TEST_F(WhatIfCheck, ReportsNoDraws) {
    Lottery(1, 9, 0, 0);
    Check({{1}}, {});
    EXPECT_EQ(Report(*state_),
              "Your lottery entries were checked against 0 draw results:\r\n\r\n"
              " 1 - match = 0 times\r\n 0 - match = 0 times\r\n");
}

TEST_F(WhatIfCheck, TellsWhatChanceGives) {
    Lottery(6, 49, 0, 0);
    Check({{1, 2, 3, 4, 5, 6}}, std::vector<Row>(1000, Row{1, 2, 3, 4, 5, 6}));
    // C(6, 3) C(43, 3) / C(49, 6) = 246820 / 13983816.
    const std::string text = ByChance(*state_);
    EXPECT_EQ(text,
              "By chance: 6 - match 0.000072 times, 5 - match 0.018 times, 4 - match 0.97 times,"
              " 3 - match 17.7 times, 2 - match 132.4 times, 1 - match 413.0 times,"
              " 0 - match 436.0 times");
}

/// Every figure of the text.
std::vector<double> FiguresIn(const std::string& text) {
    std::vector<double> figures;
    for (std::size_t end = text.find(" times"); end != std::string::npos;
         end = text.find(" times", end + 1)) {
        figures.push_back(std::stod(text.substr(text.rfind(' ', end - 1))));
    }
    return figures;
}

TEST_F(WhatIfCheck, TellsChancesThatAddUpToAllComparisons) {
    for (const int maxPball : {0, 14}) {
        Lottery(5, 34, maxPball, maxPball > 0 ? 0 : 1);
        Check({{1, 2, 3, 4, 5, 0, 0, 3}, {6, 7, 8, 9, 10, 0, 0, 14}},
              std::vector<Row>(700, Row{1, 2, 3, 4, 5, 0, 0, 9}));
        const std::vector<double> figures = FiguresIn(ByChance(*state_));
        ASSERT_EQ(figures.size(), 12U);
        EXPECT_NEAR(std::accumulate(figures.begin(), figures.end(), 0.0), 1400, 0.5);
    }
}

TEST_F(WhatIfCheck, TellsTheChanceOfTheBonusAsCountingAllDrawsDoes) {
    Lottery(2, 5, 0, 1);
    std::vector<Row> draws;
    for (int one = 1; one <= 5; ++one) {
        for (int two = 1; two <= 5; ++two) {
            for (int bonus = 1; bonus <= 5; ++bonus) {
                if (one == two || one == bonus || two == bonus) continue;
                draws.push_back({one, two, 0, 0, 0, 0, 0, bonus});
            }
        }
    }
    const auto counts = Check({{2, 4}}, draws);
    const std::vector<double> figures = FiguresIn(ByChance(*state_));
    ASSERT_EQ(figures.size(), 6U);
    const std::vector<int> indices = {2, 1, 0, 12, 11, 10};
    for (std::size_t i = 0; i < indices.size(); ++i) {
        const auto found = counts.find(indices[i]);
        EXPECT_NEAR(figures[i], found == counts.end() ? 0 : found->second, 0.05) << indices[i];
    }
}

TEST_F(WhatIfCheck, TellsNoChanceWhereTheOddsDoNotHold) {
    Lottery(3, 9, 5, 0);
    const std::vector<Row> draws = {{1, 2, 3, 0, 0, 0, 0, 4}};
    const Row good = {1, 2, 3, 0, 0, 0, 0, 5};
    Check({good}, draws);
    EXPECT_FALSE(ByChance(*state_).empty());
    for (const Row& odd :
         {Row{1, 1, 3, 0, 0, 0, 0, 5}, Row{1, 2, 10, 0, 0, 0, 0, 5}, Row{1, 2, 0, 0, 0, 0, 0, 5},
          Row{1, 2, 3, 0, 0, 0, 0, 6}, Row{1, 2, 3, 0, 0, 0, 0, 0}}) {
        Check({good, odd}, draws);
        EXPECT_EQ(ByChance(*state_), "");
    }
    Check({good}, {});
    EXPECT_EQ(ByChance(*state_), "");
    Check({}, draws);
    EXPECT_EQ(ByChance(*state_), "");
}

class WhatIfEntries : public testing::Test {
  protected:
    int Load(const std::string& content) {
        folder_.Write("MyLottery.txt", content);
        return LoadEntries(*state_, folder_, "UK Lotto");
    }

    std::unique_ptr<State> state_ = std::make_unique<State>();
    MemoryFolder folder_;
};

constexpr auto annsEntry = "01-Jun-2005,3,14,15,26,35,44,,,UK Lotto,Ann,dbase100.txt\r\n";

TEST_F(WhatIfEntries, AreThoseOfTheLotteryWithExactlyThatName) {
    EXPECT_EQ(Load(std::string(annsEntry) +
                   "01-Jun-2005,1,2,3,4,5,6,,,UK Lotto Extra,Ann,dbase103.txt\r\n"
                   "01-Jun-2005,1,2,3,4,5,6,,,uk lotto,Ann,dbase100.txt\r\n"
                   "some day,7,8,9,10,11,12,,9,UK Lotto,,\r\n"),
              2);
    EXPECT_EQ(LinesOf(*state_, 8),
              (std::vector<Row>{{3, 14, 15, 26, 35, 44, 0, 0}, {7, 8, 9, 10, 11, 12, 0, 9}}));
}

TEST_F(WhatIfEntries, EndTheLinesOfTheEntriesBefore) {
    FillRows(state_->Lines, {{1}, {2}, {3}});
    EXPECT_EQ(Load(annsEntry), 1);
    EXPECT_EQ(LineCount(*state_), 1);
    EXPECT_EQ(Load(""), 0);
    EXPECT_EQ(LineCount(*state_), 0);
}

TEST_F(WhatIfEntries, LeaveTheNumbersOfTheLastInThePool) {
    Load(std::string(annsEntry) + "x,1,2,3,4,5,6,7,8,Other,,\r\n");
    EXPECT_EQ(state_->Pool(1), 1);
    EXPECT_EQ(state_->Pool(8), 8);
}

TEST_F(WhatIfEntries, MayHaveCommasInThePlayersName) {
    EXPECT_EQ(
        Load("x,1,2,3,4,5,6,,,UK Lotto,Ann, Tom, Sue,dbase100.txt\r\n" + std::string(annsEntry)),
        2);
}

TEST_F(WhatIfEntries, WithoutAFirstNumberBecomeALineAllTheSame) {
    EXPECT_EQ(Load("x,,2,3,4,5,6,,,UK Lotto,,\r\n" + std::string(annsEntry)), 2);
    EXPECT_EQ(state_->Lines(1, 1), 0);
    EXPECT_EQ(state_->Lines(1, 2), 2);
    EXPECT_EQ(state_->Lines(2, 1), 3);
}

TEST_F(WhatIfEntries, EndInTheReportWhereTheFileIsCutShort) {
    for (const char* end : {"\r\n", "x,1,2", "x,1,2,3,4,5,6,,,UK Lotto"}) {
        const std::string text = FailureOf([&] { Load(std::string(annsEntry) + end); });
        EXPECT_NE(text.find("MyLottery.txt, line"), std::string::npos) << text;
    }
}

TEST_F(WhatIfEntries, EndInTheReportOnANumberBeyondTheTable) {
    const std::string text =
        FailureOf([&] { Load("x,1,2,3,40000,5,6,,,UK Lotto,Ann,dbase100.txt\r\n"); });
    EXPECT_NE(text.find("MyLottery.txt, line 1"), std::string::npos) << text;
    EXPECT_NE(text.find("40000"), std::string::npos) << text;
}

TEST_F(WhatIfEntries, AreAHundredAndSeventyNineAtMost) {
    std::string content;
    for (int entry = 1; entry <= 179; ++entry) content += annsEntry;
    EXPECT_EQ(Load(content), 179);
    EXPECT_THROW(Load(content + annsEntry), Failure);
}

}  // namespace
