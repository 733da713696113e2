// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "core/failure.h"
#include "core/filters.h"
#include "tests/core/lines_support.h"

namespace {

std::int16_t History(const Row& line, const Row& draw, const std::string& strength) {
    const auto state = Lottery(6, 49);
    FillRows(state->Lines, {line});
    FillRows(state->Draws, {{41, 42, 43, 44, 45, 46}, draw});
    state->Settings(setting::HistoryStrength) = strength;
    return HistoryOK(*state, true);
}

TEST(History, FullRepeatFailsAtStrengthOneInAnyOrder) {
    EXPECT_EQ(History({1, 2, 3, 4, 5, 6}, {6, 1, 5, 2, 4, 3}, "1 Previous draws filter"),
              notPassed);
}

TEST(History, OneNumberDifferentPassesAtStrengthOneAndFailsAtTwo) {
    EXPECT_EQ(History({1, 2, 3, 4, 5, 7}, {1, 2, 3, 4, 5, 6}, "1"), passed);
    EXPECT_EQ(History({1, 2, 3, 4, 5, 7}, {1, 2, 3, 4, 5, 6}, "2"), notPassed);
    EXPECT_EQ(History({1, 2, 3, 4, 7, 8}, {1, 2, 3, 4, 5, 6}, "2"), passed);
}

TEST(History, StrengthThreeAsksForThreeDifferentNumbers) {
    EXPECT_EQ(History({1, 2, 3, 4, 7, 8}, {1, 2, 3, 4, 5, 6}, "3"), notPassed);
    EXPECT_EQ(History({1, 2, 3, 7, 8, 9}, {1, 2, 3, 4, 5, 6}, "3"), passed);
}

TEST(History, BonusBallNeverCounts) {
    EXPECT_EQ(History({1, 2, 3, 4, 5, 7}, {1, 2, 3, 4, 5, 6, 0, 7}, "1"), passed);
    EXPECT_EQ(History({1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 6, 0, 7}, "1"), notPassed);
}

TEST(History, EmptySlotPassesAFullRepeat) {
    EXPECT_EQ(History({1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 6}, ""), passed);
}

TEST(History, RepeatedNumberCountsOnceForEachPair) {
    EXPECT_EQ(History({1, 2, 3, 4, 5, 7}, {1, 1, 2, 3, 4, 5}, "1"), notPassed);
}

TEST(History, NoLinesPassWithoutALookAtAFullHistory) {
    const auto state = Lottery(6, 49);
    state->Draws.Fill(1);
    EXPECT_EQ(HistoryOK(*state, true), passed);
}

TEST(History, NoDrawsPassEveryLine) {
    const auto state = Lottery(6, 49);
    FillRows(state->Lines, {{1, 2, 3, 4, 5, 6}});
    state->Settings(setting::HistoryStrength) = "7";
    EXPECT_EQ(HistoryOK(*state, true), passed);
}

TEST(History, ThreeThousandDrawsCannotBeWalked) {
    const auto state = Lottery(6, 49);
    state->Draws.Fill(40);
    FillRows(state->Lines, {{1, 2, 3, 4, 5, 6}});
    EXPECT_THROW(HistoryOK(*state, true), Failure);
    EXPECT_THROW(PruneHistory(*state), Failure);
}

TEST(History, LastOf2999DrawsCounts) {
    const auto state = Lottery(2, 49);
    for (int draw = 1; draw <= 2999; ++draw) state->Draws(draw, 1) = 40;
    state->Draws(2999, 2) = 7;
    FillRows(state->Lines, {{7, 40}});
    EXPECT_EQ(HistoryOK(*state, true), notPassed);
    state->Draws(2999, 2) = 8;
    EXPECT_EQ(HistoryOK(*state, true), passed);
}

// A line with a number twice is compared pair by pair, and the lines behind it are not forgotten.
TEST(History, ALineBehindOneWithARepeatIsComparedToo) {
    const auto state = Lottery(6, 49);
    FillRows(state->Lines, {{1, 2, 3, 4, 5, 6}, {7, 7, 8, 9, 10, 11}, {9, 8, 7, 6, 5, 4}});
    FillRows(state->Draws, {{30, 31, 32, 33, 34, 35}, {4, 5, 6, 7, 8, 9}});
    state->Settings(setting::HistoryStrength) = "1";
    EXPECT_EQ(HistoryOK(*state, true), notPassed);
    state->Draws(2, 6) = 10;
    EXPECT_EQ(HistoryOK(*state, true), passed);
}

TEST(History, ALineWithARepeatCanHaveMoreMatchesThanPicks) {
    const auto state = Lottery(6, 49);
    FillRows(state->Lines, {{1, 2, 3, 4, 5, 6}, {7, 7, 7, 7, 7, 7}});
    FillRows(state->Draws, {{7, 7, 30, 31, 32, 33}});
    state->Settings(setting::HistoryStrength) = "-5";
    EXPECT_EQ(HistoryOK(*state, true), notPassed);
    state->Draws(1, 2) = 34;
    EXPECT_EQ(HistoryOK(*state, true), passed);
}

TEST(History, FollowsAChangeOfTheDrawsOrOfTheLottery) {
    const auto state = Lottery(6, 49);
    FillRows(state->Lines, {{1, 2, 3, 4, 5, 6}});
    FillRows(state->Draws, {{1, 2, 3, 4, 5, 7}});
    EXPECT_EQ(HistoryOK(*state, true), passed);
    state->Draws(1, 6) = 6;
    EXPECT_EQ(HistoryOK(*state, true), notPassed);
    state->Draws(1, 6) = 7;
    state->Picks = 5;
    EXPECT_EQ(HistoryOK(*state, true), notPassed);
    state->MaxNum = 4;
    EXPECT_EQ(HistoryOK(*state, true), notPassed);
}

TEST(PruneHistory, RemovesTheLinesThatRepeatADraw) {
    const auto state = Lottery(2, 49);
    FillRows(state->Lines, {{1, 2}, {3, 4}, {2, 1}, {5, 6}});
    FillRows(state->Draws, {{9, 8}, {1, 2}, {6, 5}});
    PruneHistory(*state);
    EXPECT_EQ(LinesOf(*state, 2), (std::vector<Row>{{3, 4}}));
}

TEST(PruneHistory, RemovesNothingWithoutDraws) {
    const auto state = Lottery(2, 49);
    FillRows(state->Lines, {{1, 2}, {3, 4}});
    PruneHistory(*state);
    EXPECT_EQ(LinesOf(*state, 2).size(), 2U);
}

TEST(PruneHistory, ComparesTheFirstDrawWhateverItHolds) {
    const auto state = Lottery(2, 49);
    FillRows(state->Draws, {{0, 5}});
    FillRows(state->Lines, {{5, 5}, {6, 5}});
    PruneHistory(*state);
    EXPECT_EQ(LinesOf(*state, 2), (std::vector<Row>{{6, 5}}));
}

TEST(PruneHistory, WithoutDrawsTheLineThatMovesUpIsPassedOver) {
    const auto state = Lottery(2, 49);
    state->Settings(setting::HistoryStrength) = "3";
    FillRows(state->Lines, {{1, 2}, {3, 4}, {5, 6}});
    PruneHistory(*state);
    EXPECT_EQ(LinesOf(*state, 2), (std::vector<Row>{{3, 4}}));
}

TEST(PruneHistory, NeverComparesOrRemovesTheEndMark) {
    const auto state = Lottery(2, 49);
    FillRows(state->Lines, {{0, 5}, {7, 8}});
    FillRows(state->Draws, {{5, 0}});
    const Row before = AllLines(*state);
    PruneHistory(*state);
    EXPECT_EQ(AllLines(*state), before);
}

TEST(PruneDuplicates, ThreeEqualLinesLeaveOne) {
    const auto state = Lottery(2, 49);
    FillRows(state->Lines, {{1, 2}, {1, 2}, {1, 2}});
    PruneDuplicates(*state);
    EXPECT_EQ(LinesOf(*state, 2), (std::vector<Row>{{1, 2}}));
}

TEST(PruneDuplicates, FirstOfEqualLinesStaysInItsPlace) {
    const auto state = Lottery(2, 49);
    FillRows(state->Lines, {{1, 2}, {3, 4}, {1, 2}, {5, 6}, {3, 4}});
    PruneDuplicates(*state);
    EXPECT_EQ(LinesOf(*state, 2), (std::vector<Row>{{1, 2}, {3, 4}, {5, 6}}));
}

TEST(PruneDuplicates, ExtraBallDoesNotCount) {
    const auto state = Lottery(2, 49);
    FillRows(state->Lines, {{1, 2, 0, 0, 0, 0, 0, 8}, {1, 2, 0, 0, 0, 0, 0, 9}});
    PruneDuplicates(*state);
    EXPECT_EQ(LinesOf(*state, 8), (std::vector<Row>{{1, 2, 0, 0, 0, 0, 0, 8}}));
}

TEST(PruneDuplicates, AllSevenColumnsCountWhateverTheLottery) {
    const auto state = Lottery(2, 49);
    FillRows(state->Lines, {{1, 2, 0, 0, 0, 0, 0}, {1, 2, 0, 0, 0, 0, 3}});
    PruneDuplicates(*state);
    EXPECT_EQ(LinesOf(*state, 2).size(), 2U);
}

TEST(PruneDuplicates, FullTableIsAFailure) {
    const auto state = Lottery(2, 49);
    state->Lines.Fill(1);
    EXPECT_THROW(PruneDuplicates(*state), Failure);
}

// What the odd cases are made of: a table of rows whose numbers are mostly of the field, and now
// and then repeats, zeros, negative or too large.
class OddTables {
  public:
    explicit OddTables(unsigned seed) : engine_(seed) {}

    int Between(int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(engine_);
    }
    bool Seldom(int once) { return Between(1, once) == 1; }

    void FillState(State& state) {
        state.Picks = Seldom(8) ? Between(-1, 10) : Between(1, 7);
        state.MaxNum = Seldom(4) ? Between(0, 140) : Between(7, 20);
        if (Seldom(50)) state.MaxNum = Between(-5, 32767);
        state.Settings(setting::HistoryStrength) = std::to_string(Between(-1, 8));
        oddness_ = Seldom(2) ? 1000000 : Between(3, 60);
        Fill(state.Draws, state.MaxNum, DrawCount());
        Fill(state.Lines, state.MaxNum, Seldom(30) ? 180 : Between(0, 25));
        CopySomeLines(state);
    }

  private:
    int DrawCount() {
        if (Seldom(100)) return 3000;
        return Seldom(8) ? Between(0, 2) : Between(0, 160);
    }

    // Rows below the end mark hold stale numbers in half of the tables.
    template <typename Table>
    void Fill(Table& table, int maxNum, int rowCount) {
        const bool stale = Seldom(2);
        const int last = static_cast<int>(Table::RowCount()) - 1;
        for (int row = 1; row <= last; ++row) {
            if (row > rowCount + 1 && !(stale && row < rowCount + 20)) break;
            const int columns = static_cast<int>(Table::ColumnCount()) - 1;
            for (int column = 1; column <= columns; ++column) {
                table(row, column) = static_cast<std::int16_t>(Number(table, row, column, maxNum));
            }
            if (table(row, 1) == 0) table(row, 1) = 1;
            if (row == rowCount + 1) table(row, 1) = 0;
        }
    }

    template <typename Table>
    int Number(const Table& table, int row, int column, int maxNum) {
        if (Seldom(oddness_)) return Between(-3, maxNum + 3);
        for (int attempt = 0; attempt < 20; ++attempt) {
            const int number = Between(1, std::max(maxNum, 1));
            const std::int16_t* numbers = table.Row(row) + 1;
            if (std::find(numbers, numbers + column - 1, number) == numbers + column - 1) {
                return number;
            }
        }
        return 0;
    }

    void CopySomeLines(State& state) {
        for (int times = Between(0, 5); times > 0; --times) {
            const int from = Between(1, 25);
            const int to = Between(1, 25);
            const bool marks = View(state).Lines(from, 1) == 0 || View(state).Lines(to, 1) == 0;
            if (marks) continue;
            for (int column = 1; column <= 7; ++column) {
                state.Lines(to, column) = state.Lines(from, column);
            }
        }
    }

    std::mt19937 engine_;
    int oddness_ = 0;
};

// What a routine did: its verdict or the text of its failure, and the lines it left.
struct Outcome {
    std::optional<int> verdict;
    std::string failure;
    Row lines;
    bool operator==(const Outcome&) const = default;
};

template <typename Routine>
Outcome Try(const State& start, const Routine& routine) {
    const auto state = std::make_unique<State>(start);
    Outcome outcome;
    try {
        outcome.verdict = routine(*state);
    } catch (const Failure& failure) {
        outcome.failure = failure.what();
    }
    outcome.lines = AllLines(*state);
    return outcome;
}

class SameAsPlain : public testing::TestWithParam<unsigned> {
  protected:
    static constexpr int cases = 150;

    template <typename Fast, typename Plain>
    void Compare(const Fast& fast, const Plain& plain) {
        OddTables tables(GetParam());
        for (int number = 0; number < cases; ++number) {
            const auto state = std::make_unique<State>();
            tables.FillState(*state);
            ASSERT_EQ(Try(*state, fast), Try(*state, plain))
                << "case " << number << ": " << state->Picks << " of " << state->MaxNum << ", t "
                << state->Settings(setting::HistoryStrength);
        }
    }
};

TEST_P(SameAsPlain, HistoryOK) {
    Compare([](State& state) { return HistoryOK(state, true); },
            [](State& state) { return plain::HistoryPasses(state) ? passed : notPassed; });
}

TEST_P(SameAsPlain, PruneHistory) {
    Compare([](State& state) { return PruneHistory(state), 0; },
            [](State& state) { return plain::PruneHistory(state), 0; });
}

TEST_P(SameAsPlain, PruneDuplicates) {
    Compare([](State& state) { return PruneDuplicates(state), 0; },
            [](State& state) { return plain::PruneDuplicates(state), 0; });
}

// Single lines meet both verdicts more evenly than whole sets do.
TEST_P(SameAsPlain, HistoryOKOfSingleLines) {
    OddTables tables(GetParam() + 1000);
    const auto state = std::make_unique<State>();
    tables.FillState(*state);
    for (int number = 0; number < cases; ++number) {
        if (number % 25 == 0) tables.FillState(*state);
        FillRows(state->Lines, {Row(14, 0)});
        for (int column = 1; column <= 8; ++column) {
            state->Lines(1, column) = static_cast<std::int16_t>(tables.Between(1, 20));
        }
        state->Settings(setting::HistoryStrength) = std::to_string(tables.Between(-1, 8));
        ASSERT_EQ(
            Try(*state, [](State& run) { return HistoryOK(run, true); }),
            Try(*state, [](State& run) { return plain::HistoryPasses(run) ? passed : notPassed; }));
    }
}

INSTANTIATE_TEST_SUITE_P(ManySeeds, SameAsPlain, testing::Range(1U, 9U));

}  // namespace
