// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/number_stats.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <random>

#include "tests/core/failures.h"
#include "tests/core/lines_support.h"
#include "tests/support/each_real_history.h"

namespace {

using namespace number_stats;

std::vector<TableRow> TableOfDraws(State& state, const std::vector<std::vector<int>>& draws) {
    FillRows(state.Draws, draws);
    return TableOf(Analyse(state));
}

/// The table as it is told: number by number, draw by draw.
std::vector<TableRow> PlainTable(const State& state) {
    std::vector<TableRow> rows;
    int total = 0;
    do ++total;
    while (state.Draws(total + 1, 1) != 0);
    for (int number = 1; number <= state.MaxNum; ++number) {
        int last = 0;
        int times = 0;
        for (int row = 1; row <= total; ++row) {
            for (int column = 1; column <= state.Picks; ++column) {
                if (state.Draws(row, column) != number) continue;
                ++times;
                if (last == 0) last = row;
            }
        }
        TableRow texts{std::to_string(number), "Never",
                       std::to_string(times) + " / " + std::to_string(total) + " draws", "Never"};
        if (times > 0) {
            const long long thousandths = 1000LL * total / times;
            const bool up = thousandths % 10 >= 5;
            const long long hundredths = thousandths / 10 + (up ? 1 : 0);
            std::array<char, 40> average{};
            std::snprintf(average.data(), average.size(), "%lld.%02lld draws", hundredths / 100,
                          hundredths % 100);
            texts[1] = std::to_string(last) + " draws ago";
            texts[3] = average.data();
        }
        rows.push_back(texts);
    }
    return rows;
}

/// Exchanges of neighbours in passes, until a pass makes none.
void PlainSort(std::vector<TableRow>& rows, int column, Order order) {
    const auto key = [&](const TableRow& row) {
        return std::atoi(row[static_cast<std::size_t>(column)].c_str());
    };
    bool swapped = true;
    while (swapped) {
        swapped = false;
        for (std::size_t row = 1; row < rows.size(); ++row) {
            const int above = key(rows[row - 1]);
            const int below = key(rows[row]);
            if (order == Order::HighestFirst ? below > above : below < above) {
                std::swap(rows[row - 1], rows[row]);
                swapped = true;
            }
        }
    }
}

std::vector<std::string> NumbersOf(const std::vector<TableRow>& rows) {
    std::vector<std::string> numbers;
    for (const TableRow& row : rows) numbers.push_back(row[0]);
    return numbers;
}

TEST(NumberStats, TellWhenAndHowOftenANumberWasDrawn) {
    const auto state = Lottery(2, 4);
    const auto rows = TableOfDraws(*state, {{1, 2}, {3, 1}, {1, 3}});
    EXPECT_EQ(rows, (std::vector<TableRow>{{"1", "1 draws ago", "3 / 3 draws", "1.00 draws"},
                                           {"2", "1 draws ago", "1 / 3 draws", "3.00 draws"},
                                           {"3", "2 draws ago", "2 / 3 draws", "1.50 draws"},
                                           {"4", "Never", "0 / 3 draws", "Never"}}));
}

TEST(NumberStats, CountMainNumbersOnly) {
    const auto state = Lottery(2, 4);
    const auto rows = TableOfDraws(*state, {{1, 2, 4, 0, 0, 0, 0, 3}});
    EXPECT_EQ(rows[2], (TableRow{"3", "Never", "0 / 1 draws", "Never"}));
    EXPECT_EQ(rows[3], (TableRow{"4", "Never", "0 / 1 draws", "Never"}));
}

TEST(NumberStats, OfNoDrawsTellOfOneDrawOfZeros) {
    const auto state = Lottery(6, 49);
    const auto rows = TableOfDraws(*state, {});
    ASSERT_EQ(rows.size(), 49U);
    for (const TableRow& row : rows) {
        EXPECT_EQ(row, (TableRow{row[0], "Never", "0 / 1 draws", "Never"}));
    }
    EXPECT_EQ(state->Pool(0), 1);
    EXPECT_EQ(state->Pool(1), -1);
    EXPECT_EQ(state->Pool(49), -1);
}

TEST(NumberStats, TakeTheFirstDrawWhateverItHolds) {
    const auto state = Lottery(2, 3);
    const auto rows = TableOfDraws(*state, {{0, 3}, {2, 3}});
    EXPECT_EQ(rows[2], (TableRow{"3", "1 draws ago", "2 / 2 draws", "1.00 draws"}));
    EXPECT_EQ(state->Pool(0), 1);
    EXPECT_EQ(state->Pool(2), 2);
}

TEST(NumberStats, KeepTheFirstRowWithAnEmptyField) {
    const auto state = Lottery(2, 3);
    TableOfDraws(*state, {{1, 3}, {2, 0}, {3, 0}});
    EXPECT_EQ(state->Pool(0), 2);
}

TEST(NumberStats, LeavePoolZeroToOthersWhereNoFieldIsEmpty) {
    const auto state = Lottery(2, 3);
    state->Pool(0) = 77;
    TableOfDraws(*state, {{1, 3}, {2, 3}});
    EXPECT_EQ(state->Pool(0), 77);
}

TEST(NumberStats, RoundAHalfOfTheAverageUp) {
    const auto average = [](int total, int times) {
        return TableOf({.total = total, .numbers = {{.lastDrawn = 1, .timesDrawn = times}}})[0][3];
    };
    EXPECT_EQ(average(25, 8), "3.13 draws");
    EXPECT_EQ(average(107, 40), "2.68 draws");
    EXPECT_EQ(average(1, 3), "0.33 draws");
    EXPECT_EQ(average(2, 3), "0.67 draws");
    EXPECT_EQ(average(2999, 1), "2999.00 draws");
    EXPECT_EQ(average(2008, 2000), "1.00 draws");
    EXPECT_EQ(average(201, 200), "1.01 draws");
}

TEST(NumberStats, CountUpToSeventyAndShowUpToTheHighestNumber) {
    const auto state = Lottery(2, 3);
    EXPECT_EQ(TableOfDraws(*state, {{1, 70}}).size(), 3U);
    EXPECT_EQ(state->Pool(70), 0);
    state->MaxNum = 70;
    EXPECT_EQ(TableOfDraws(*state, {{1, 70}})[69][1], "1 draws ago");
}

TEST(NumberStats, EndInTheReportAboveSeventy) {
    const auto state = Lottery(2, 3);
    state->DbaseFile = "dbase9.txt";
    const std::string drawn = FailureOf([&] { TableOfDraws(*state, {{1, 2}, {1, 71}}); });
    EXPECT_NE(drawn.find("dbase9.txt, line 5"), std::string::npos) << drawn;
    EXPECT_NE(drawn.find("71"), std::string::npos) << drawn;
    state->MaxNum = 71;
    const std::string highest = FailureOf([&] { TableOfDraws(*state, {{1, 2}}); });
    EXPECT_NE(highest.find("dbase9.txt, line 3"), std::string::npos) << highest;
}

TEST(NumberStats, CannotWalkThreeThousandDraws) {
    const auto state = Lottery(1, 3);
    state->Draws.Fill(2);
    EXPECT_THROW(Analyse(*state), Failure);
    state->Draws(3000, 1) = 0;
    EXPECT_EQ(Analyse(*state).total, 2999);
}

TEST(NumberStats, SortNeverLikeZeroAndKeepTheOrderOfEquals) {
    const auto state = Lottery(2, 5);
    auto rows = TableOfDraws(*state, {{1, 2}, {4, 2}, {5, 2}});
    SortRows(rows, lastDrawnColumn, Order::HighestFirst);
    EXPECT_EQ(NumbersOf(rows), (std::vector<std::string>{"5", "4", "1", "2", "3"}));
    SortRows(rows, timesDrawnColumn, Order::HighestFirst);
    EXPECT_EQ(NumbersOf(rows), (std::vector<std::string>{"2", "5", "4", "1", "3"}));
    SortRows(rows, timesDrawnColumn, Order::LowestFirst);
    EXPECT_EQ(NumbersOf(rows), (std::vector<std::string>{"3", "5", "4", "1", "2"}));
}

TEST(NumberStats, SortTwiceAsOnce) {
    const auto state = Lottery(2, 5);
    auto rows = TableOfDraws(*state, {{1, 2}, {4, 2}, {5, 2}});
    SortRows(rows, timesDrawnColumn, Order::LowestFirst);
    const auto once = rows;
    SortRows(rows, timesDrawnColumn, Order::LowestFirst);
    EXPECT_EQ(rows, once);
}

TEST(NumberStats, NameTheFirstTenWithAPlaceForEachThatIsMissing) {
    const auto state = Lottery(2, 12);
    EXPECT_EQ(FirstTen(TableOfDraws(*state, {{1, 2}})), " 1, 2, 3, 4, 5, 6, 7, 8, 9, 10");
    state->MaxNum = 8;
    EXPECT_EQ(FirstTen(TableOfDraws(*state, {{1, 2}})), " 1, 2, 3, 4, 5, 6, 7, 8, , ");
}

TEST(NumberStats, AreThoseOfAPlainCountAndSortOnRealHistories) {
    const auto state = std::make_unique<State>();
    const bool present = ForEachRealHistory(*state, [&](const std::string& lottery) {
        auto rows = TableOf(Analyse(*state));
        auto plain = PlainTable(*state);
        ASSERT_EQ(rows, plain) << lottery;
        std::mt19937 random(7);
        for (int sort = 0; sort < 20; ++sort) {
            const int column = random() % 2 == 0 ? lastDrawnColumn : timesDrawnColumn;
            const Order order = random() % 2 == 0 ? Order::HighestFirst : Order::LowestFirst;
            SortRows(rows, column, order);
            PlainSort(plain, column, order);
            ASSERT_EQ(rows, plain) << lottery;
        }
    });
    if (!present) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace
