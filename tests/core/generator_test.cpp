// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/generator.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/failure.h"
#include "core/lines.h"
#include "tests/core/lines_support.h"

namespace {

// A generator of lines of two numbers of 49, whose clock stands still unless told otherwise. Every
// step that is taken is noted down.
class Generator : public testing::Test {
  protected:
    Generator() {
        steps.playLotto = [this] {
            journal.push_back("play");
            FillRows(state->Lines, lines);
        };
        steps.paintStatus = [this](const std::string& text) { painted.push_back(text); };
        steps.showLines = [this] {
            journal.push_back("show");
            shown = LinesOf(*state, 2);
        };
        steps.seconds = [this] { return now; };
    }

    std::string Generate() { return GenerateLines(*state, random, conditions, style, steps); }

    // A clock that goes on by `step` seconds between a try and the next.
    void TickEachTry(double step) {
        steps.playLotto = [this, step] {
            journal.push_back("play");
            now += step;
            FillRows(state->Lines, lines);
        };
    }

    std::size_t Tries() const {
        return static_cast<std::size_t>(std::count(journal.begin(), journal.end(), "play"));
    }

    std::unique_ptr<State> state = Lottery(2, 49);
    std::vector<Row> lines{{1, 40}, {2, 31}};
    std::vector<Row> shown;
    std::vector<std::string> journal;
    std::vector<std::string> painted;
    double now = 1000;
    Random random{[this] {
        journal.push_back("seed");
        return std::uint64_t{1};
    }};
    Conditions conditions;
    GeneratorStyle style;
    GeneratorSteps steps;
};

const char* const notComplying = " (Some lines do not comply with conditions)";

TEST(StatusText, GroupsTheTriesAndShowsTwoOrThreePlaces) {
    EXPECT_EQ(StatusText(1, 0, 3), "Tries: 1   Time: 0.000 sec");
    EXPECT_EQ(StatusText(1, 0.129, 2), "Tries: 1   Time: 0.13 sec");
    EXPECT_EQ(StatusText(1234567, 9.9994, 3), "Tries: 1,234,567   Time: 9.999 sec");
}

TEST_F(Generator, FirstTryStandsWithoutConditions) {
    EXPECT_EQ(Generate(), "Tries: 1   Time: 0.00 sec");
    EXPECT_EQ(shown, lines);
}

TEST_F(Generator, SeedsThenPlaysThenShows) {
    Generate();
    EXPECT_EQ(journal, (std::vector<std::string>{"seed", "play", "show"}));
}

TEST_F(Generator, ClearsTheLinesOnceBeforeTheFirstTry) {
    state->Lines.Fill(9);
    conditions.oddEven = true;
    steps.playLotto = [this] {
        journal.push_back("play");
        const Row before = AllLines(*state);
        if (Tries() == 1) {
            EXPECT_EQ(before, Row(181 * 15, 0));
        } else {
            EXPECT_EQ(state->Lines(1, 1), 1);
        }
        FillRows(state->Lines, {{1, Tries() < 3 ? 3 : 4}});
    };
    Generate();
    EXPECT_EQ(Tries(), 3U);
}

TEST_F(Generator, TimeCountsFromTheStart) {
    style.timeDecimals = 3;
    TickEachTry(0.1234);
    EXPECT_EQ(Generate(), "Tries: 1   Time: 0.123 sec");
}

TEST_F(Generator, RetriesUntilTheWholeSetPasses) {
    conditions = {.oddEven = true, .highLow = true, .history = true};
    FillRows(state->Draws, {{5, 48}});
    const std::vector<std::vector<Row>> sets{
        {{1, 40}, {1, 39}}, {{1, 40}, {1, 2}}, {{1, 40}, {5, 48}}, {{1, 40}, {3, 44}}};
    steps.playLotto = [&] {
        FillRows(state->Lines, sets[Tries()]);
        journal.push_back("play");
    };
    EXPECT_EQ(Generate(), "Tries: 4   Time: 0.00 sec");
    EXPECT_EQ(shown, sets.back());
}

TEST_F(Generator, ConditionsThatAreNotSetDoNotCount) {
    lines = {{1, 3}};
    conditions.highLow = false;
    conditions.history = true;
    Generate();
    EXPECT_EQ(Tries(), 1U);
}

TEST_F(Generator, PicksTwoAtStrengthTwoRunsItsTenSeconds) {
    state->Settings(setting::OddEvenStrength) = "2 Odd/even filter";
    conditions.oddEven = true;
    TickEachTry(0.25);
    EXPECT_EQ(Generate(), std::string("Tries: 41   Time: 10.25 sec") + notComplying);
    EXPECT_EQ(shown, lines);
}

TEST_F(Generator, TenSecondsExactlyAreNotOver) {
    lines = {{1, 3}};
    conditions.oddEven = true;
    TickEachTry(5);
    EXPECT_EQ(Generate(), std::string("Tries: 3   Time: 15.00 sec") + notComplying);
}

TEST_F(Generator, TenSecondsExactlyAppendNothing) {
    TickEachTry(10);
    EXPECT_EQ(Generate(), "Tries: 1   Time: 10.00 sec");
}

TEST_F(Generator, ClockIsReadForTheTextThenForTheLimitThenForTheWords) {
    lines = {{1, 3}};
    conditions.oddEven = true;
    int reading = 0;
    const Row readings{0, 1, 10, 9, 11, 12};
    steps.seconds = [&] { return readings[static_cast<std::size_t>(reading++)]; };
    EXPECT_EQ(Generate(), std::string("Tries: 2   Time: 9.00 sec") + notComplying);
    EXPECT_EQ(reading, 6);
}

TEST_F(Generator, SlowGridAppendsTheWordsEvenWhereAllComplies) {
    steps.showLines = [this] { now += 10.5; };
    EXPECT_EQ(Generate(), std::string("Tries: 1   Time: 0.00 sec") + notComplying);
}

TEST_F(Generator, LastTryStandsWithItsFailingLinesWhenTimeIsOver) {
    lines = {{1, 3}, {5, 40}};
    conditions.oddEven = true;
    TickEachTry(11);
    Generate();
    EXPECT_EQ(shown, lines);
}

TEST_F(Generator, DuplicatesGoWhereTheStyleSaysSo) {
    lines = {{1, 40}, {2, 31}, {1, 40}, {1, 40}};
    style.pruneDuplicates = true;
    EXPECT_EQ(Generate(), "Tries: 1   Time: 0.00 sec");
    EXPECT_EQ(shown, (std::vector<Row>{{1, 40}, {2, 31}}));
}

TEST_F(Generator, DuplicatesStayOtherwise) {
    lines = {{1, 40}, {2, 31}, {1, 40}};
    Generate();
    EXPECT_EQ(shown, lines);
}

TEST_F(Generator, LinesAreSortedAtTheEndWhereTheStyleSaysSo) {
    lines = {{40, 1}, {2, 31}};
    style.sortLines = true;
    Generate();
    EXPECT_EQ(shown, (std::vector<Row>{{1, 40}, {2, 31}}));
}

TEST_F(Generator, LinesStayAsTheyWerePlayedOtherwise) {
    lines = {{40, 1}, {2, 31}};
    Generate();
    EXPECT_EQ(shown, lines);
}

TEST_F(Generator, LinesThatOnlyTheSortMakesEqualArePruned) {
    lines = {{40, 1}, {2, 31}, {1, 40}};
    style = {.sortLines = true, .pruneDuplicates = true};
    Generate();
    EXPECT_EQ(shown, (std::vector<Row>{{1, 40}, {2, 31}}));
}

TEST_F(Generator, RetriesForAFurtherConditionThoughNoBoxIsSet) {
    steps.furtherCondition = [this] { return Tries() == 7; };
    EXPECT_EQ(Generate(), "Tries: 7   Time: 0.00 sec");
}

TEST_F(Generator, FurtherConditionAndTheBoxesMustHoldAtTheSameTry) {
    conditions.oddEven = true;
    const auto play = steps.playLotto;
    steps.playLotto = [&] {
        play();
        if (Tries() % 3 != 0) FillRows(state->Lines, {{1, 3}});
    };
    steps.furtherCondition = [this] { return Tries() % 2 == 0; };
    EXPECT_EQ(Generate(), "Tries: 6   Time: 0.00 sec");
}

TEST_F(Generator, FurtherConditionSeesTheLinesBeforeTheyAreSorted) {
    lines = {{40, 1}};
    style.sortLines = true;
    std::vector<Row> seen;
    steps.furtherCondition = [&] {
        seen = LinesOf(*state, 2);
        return true;
    };
    Generate();
    EXPECT_EQ(seen, lines);
}

TEST_F(Generator, FurtherConditionThatNeverHoldsRunsItsTenSeconds) {
    steps.furtherCondition = [] { return false; };
    TickEachTry(3);
    EXPECT_EQ(Generate(), std::string("Tries: 4   Time: 12.00 sec") + notComplying);
}

TEST_F(Generator, PaintsTheFirstTryAndTheEnd) {
    Generate();
    EXPECT_EQ(painted, (std::vector<std::string>(2, "Tries: 1   Time: 0.00 sec")));
}

TEST_F(Generator, PaintsTheWordsAtTheEnd) {
    lines = {{1, 3}};
    conditions.oddEven = true;
    TickEachTry(11);
    const std::string text = Generate();
    EXPECT_EQ(painted, (std::vector<std::string>{"Tries: 1   Time: 11.00 sec", text}));
}

TEST_F(Generator, PaintsAboutSixtyTimesASecond) {
    lines = {{1, 3}};
    conditions.oddEven = true;
    style.timeDecimals = 3;
    TickEachTry(0.001);
    Generate();
    EXPECT_GT(painted.size(), 500U);
    EXPECT_LE(painted.size(), 602U);
}

TEST_F(Generator, PaintsOnlyTheEndWhereTheStyleSaysSoWithTheTimeOfShowingTheLines) {
    style.paintTries = false;
    steps.showLines = [this] { now += 2; };
    TickEachTry(0.5);
    Generate();
    EXPECT_EQ(painted, (std::vector<std::string>{"Tries: 1   Time: 2.50 sec"}));
}

TEST_F(Generator, EveryPaintedStateIsATrueOne) {
    lines = {{1, 3}};
    conditions.oddEven = true;
    style.timeDecimals = 3;
    TickEachTry(0.004);
    std::vector<std::string> trueStates;
    const auto play = steps.playLotto;
    steps.playLotto = [&] {
        play();
        trueStates.push_back(StatusText(static_cast<int>(Tries()), now - 1000, 3));
    };
    const std::string last = Generate();
    ASSERT_EQ(painted.back(), last);
    EXPECT_EQ(last, trueStates.back() + notComplying);
    painted.pop_back();
    for (const std::string& text : painted) {
        EXPECT_NE(std::find(trueStates.begin(), trueStates.end(), text), trueStates.end());
    }
}

TEST_F(Generator, FailureInAStepLeavesThrough) {
    steps.playLotto = [] { throw Failure("no numbers"); };
    EXPECT_THROW(Generate(), Failure);
}

TEST_F(Generator, FailureInAFilterLeavesThrough) {
    conditions.oddEven = true;
    steps.playLotto = [this] {
        state->Lines.Fill(1);
        for (int row = 1; row <= 180; ++row) state->Lines(row, 2) = 2;
    };
    EXPECT_THROW(Generate(), Failure);
    EXPECT_TRUE(shown.empty());
}

}  // namespace
