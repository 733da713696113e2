// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/check_summary.h"

#include <gtest/gtest.h>

namespace {

const Date october = std::chrono::October / 7 / 2015;

/// A check of so many entries, the best of which matched so many numbers.
CheckSummary Checked(int entries, const CheckSummary::Best& best = {.main = 4}) {
    CheckSummary summary;
    for (int entry = 1; entry < entries; ++entry) summary.AddChecked({.main = 0});
    summary.AddChecked(best);
    return summary;
}

TEST(CheckSummary, TellsHowManyWereCheckedAndTheBest) {
    EXPECT_EQ(SummaryText(Checked(1)), "1 entry checked. Best: 4 numbers.");
    EXPECT_EQ(SummaryText(Checked(5)), "All 5 entries checked. Best: 4 numbers.");
}

TEST(CheckSummary, TellsOfEntriesThatWaitForTheirDraw) {
    CheckSummary summary = Checked(1);
    summary.AddWaiting("UK Lotto", october);
    EXPECT_EQ(SummaryText(summary),
              "1 of 2 entries checked; 1 has no draw in its database yet (newest: 07 Oct 15). "
              "Best: 4 numbers.");
    summary.AddWaiting("UK Lotto", october);
    EXPECT_EQ(SummaryText(summary),
              "1 of 3 entries checked; 2 have no draw in their database yet (newest: 07 Oct 15). "
              "Best: 4 numbers.");
}

TEST(CheckSummary, NamesTheLotteriesWhereEntriesOfSeveralWait) {
    CheckSummary summary;
    summary.AddWaiting("UK Thunderball", DaysAfter(october, -1));
    summary.AddWaiting("UK Lotto", october);
    EXPECT_EQ(SummaryText(summary),
              "0 of 2 entries checked; 2 have no draw in their database yet (newest: 07 Oct 15 of "
              "UK Lotto, 06 Oct 15 of UK Thunderball).");
}

TEST(CheckSummary, NamesNoMoreThanTwoLotteries) {
    CheckSummary summary;
    for (const char* lottery : {"One", "Two", "Three"}) {
        summary.AddWaiting(lottery, october);
    }
    EXPECT_EQ(SummaryText(summary),
              "0 of 3 entries checked; 3 have no draw in their database yet.");
}

TEST(CheckSummary, TellsOfADatabaseWithoutDraws) {
    CheckSummary summary;
    summary.waiting = 1;
    EXPECT_EQ(SummaryText(summary), "0 of 1 entry checked; 1 has no draw in its database yet.");
}

TEST(CheckSummary, TellsOfDaysWithoutADraw) {
    CheckSummary summary = Checked(2);
    summary.withoutDraw = 1;
    EXPECT_EQ(SummaryText(summary),
              "2 of 3 entries checked; 1 is of a day without a draw. Best: 4 numbers.");
    summary.withoutDraw = 2;
    EXPECT_EQ(SummaryText(summary),
              "2 of 4 entries checked; 2 are of days without a draw. Best: 4 numbers.");
}

TEST(CheckSummary, TellsOfNothingToCheck) {
    EXPECT_EQ(SummaryText({}), "There are no entries to check.");
}

TEST(CheckSummary, WordsTheBestByItsNumbersAndBalls) {
    const auto best = [](const CheckSummary::Best& found) {
        const std::string text = SummaryText(Checked(1, found));
        return text.substr(text.find("Best: "));
    };
    EXPECT_EQ(best({.main = 0}), "Best: no numbers.");
    EXPECT_EQ(best({.main = 1}), "Best: 1 number.");
    EXPECT_EQ(best({.main = 0, .extra = true}), "Best: the extra ball.");
    EXPECT_EQ(best({.main = 2, .extra = true}), "Best: 2 numbers and the extra ball.");
    EXPECT_EQ(best({.main = 5, .extra = true, .extraIsBonus = true}),
              "Best: 5 numbers and the bonus ball.");
}

TEST(CheckSummary, CountsTheMainNumbersBeforeTheBall) {
    CheckSummary summary;
    summary.AddChecked({.main = 3, .extra = true});
    summary.AddChecked({.main = 4});
    summary.AddChecked({.main = 4, .extra = true});
    summary.AddChecked({.main = 4});
    EXPECT_EQ(SummaryText(summary), "All 4 entries checked. Best: 4 numbers and the extra ball.");
}

}  // namespace
