// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/common_numbers.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <vector>

namespace {

class CommonNumbers : public testing::Test {
  protected:
    CommonNumbers() {
        state_->Picks = 2;
        state_->MaxNum = 5;
    }

    void Draw(int one, int other, int extra) {
        ++row_;
        state_->Draws(row_, 1) = static_cast<std::int16_t>(one);
        state_->Draws(row_, 2) = static_cast<std::int16_t>(other);
        state_->Draws(row_, 8) = static_cast<std::int16_t>(extra);
    }

    void Analyse(bool cold) { common_numbers::AnalyseDraws(*state_, cold, counts_); }

    static std::vector<int> Figures(const Counts& counts, int highest) {
        std::vector<int> figures;
        for (int number = 1; number <= highest; ++number) figures.push_back(counts(number));
        return figures;
    }

    static std::vector<int> ListOf(const TenNumbers& numbers) {
        return {numbers.begin(), numbers.end()};
    }

    std::unique_ptr<State> state_ = std::make_unique<State>();
    NumberCounts counts_;
    int row_ = 0;
};

TEST_F(CommonNumbers, AreCountedOverTheWholeHistory) {
    Draw(1, 2, 3);
    Draw(2, 5, 3);
    Analyse(false);
    EXPECT_EQ(Figures(counts_.MainCount, 5), (std::vector<int>{1, 2, 0, 0, 1}));
    EXPECT_EQ(Figures(counts_.ExtraCount, 5), (std::vector<int>{0, 0, 2, 0, 0}));
}

TEST_F(CommonNumbers, HaveTheirDistanceFromTheHottestInColdMode) {
    Draw(1, 2, 3);
    Draw(2, 5, 3);
    Analyse(true);
    EXPECT_EQ(Figures(counts_.MainCount, 5), (std::vector<int>{1, 0, 2, 2, 1}));
}

TEST_F(CommonNumbers, ReverseTheExtraBallsUpToTheHighestExtraBall) {
    state_->MaxPball = 3;
    Draw(1, 2, 3);
    Draw(2, 5, 3);
    Analyse(true);
    EXPECT_EQ(Figures(counts_.ExtraCount, 4), (std::vector<int>{2, 2, 0, 0}));
    EXPECT_EQ(common_numbers::ExtraRows(*state_), 3);
}

TEST_F(CommonNumbers, ReverseTheBonusBallsUpToTheHighestNumber) {
    state_->HasBonus = 1;
    Draw(1, 2, 3);
    Draw(2, 5, 3);
    Analyse(true);
    EXPECT_EQ(Figures(counts_.ExtraCount, 6), (std::vector<int>{2, 2, 0, 2, 2, 0}));
    EXPECT_EQ(common_numbers::ExtraRows(*state_), 5);
}

TEST_F(CommonNumbers, OfALotteryWithBothReverseUpToTheHighestNumberAndShowTheExtraBalls) {
    state_->HasBonus = 1;
    state_->MaxPball = 3;
    Draw(1, 2, 3);
    Draw(2, 5, 3);
    Analyse(true);
    EXPECT_EQ(Figures(counts_.ExtraCount, 5), (std::vector<int>{2, 2, 0, 2, 2}));
    EXPECT_EQ(common_numbers::ExtraRows(*state_), 3);
}

TEST_F(CommonNumbers, ReverseNothingOfColumnEightWithNeitherBonusNorExtraBall) {
    Draw(1, 2, 3);
    Analyse(true);
    EXPECT_EQ(Figures(counts_.ExtraCount, 5), (std::vector<int>{0, 0, 1, 0, 0}));
    EXPECT_EQ(common_numbers::ExtraRows(*state_), 0);
}

TEST_F(CommonNumbers, WithoutDrawsAreTheNumberOneTenTimes) {
    for (const bool cold : {false, true}) {
        Analyse(cold);
        EXPECT_EQ(Figures(counts_.MainCount, 5), std::vector<int>(5, 0));
        EXPECT_EQ(ListOf(common_numbers::TakeTen(*state_, counts_.MainCount)),
                  std::vector<int>(10, 1));
    }
}

TEST_F(CommonNumbers, PutTheLowerOfTwoThatTieFirstInBothModes) {
    Draw(2, 4, 0);
    Draw(2, 4, 0);
    Draw(1, 3, 0);
    Analyse(false);
    EXPECT_EQ(ListOf(common_numbers::TakeTen(*state_, counts_.MainCount)),
              (std::vector<int>{2, 4, 1, 3, 5, 5, 5, 5, 5, 5}));
    Analyse(true);
    EXPECT_EQ(ListOf(common_numbers::TakeTen(*state_, counts_.MainCount)),
              (std::vector<int>{5, 1, 3, 2, 2, 2, 2, 2, 2, 2}));
}

TEST_F(CommonNumbers, RepeatTheLowestNumberThatHoldsZeroWithFewerThanTenNumbers) {
    Draw(3, 5, 0);
    Analyse(false);
    EXPECT_EQ(ListOf(common_numbers::TakeTen(*state_, counts_.MainCount)),
              (std::vector<int>{3, 5, 1, 1, 1, 1, 1, 1, 1, 1}));
}

TEST_F(CommonNumbers, RepeatTheLastOneWhereAllOfFewerThanTenWereDrawn) {
    Draw(1, 2, 0);
    Draw(3, 4, 0);
    Draw(5, 4, 0);
    Draw(4, 3, 0);
    Analyse(false);
    EXPECT_EQ(ListOf(common_numbers::TakeTen(*state_, counts_.MainCount)),
              (std::vector<int>{4, 3, 1, 2, 5, 1, 1, 1, 1, 1}));
}

}  // namespace
