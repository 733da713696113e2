// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/payments.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/settings.h"
#include "tests/core/failures.h"
#include "tests/core/regions.h"

namespace {

using std::chrono::June;
using std::chrono::May;

const Date today = June / 1 / 2005;

class Payments : public testing::Test {
  private:
    const std::unique_ptr<State> ownState_ = std::make_unique<State>();

  protected:
    Payments() {
        state_.Settings(setting::SyndicateFile) = "SMembers.000";
        state_.Members(0, 0) = "Ann";
    }

    void Fill(int members) {
        for (int row = 1; row <= members; ++row) state_.Members(row, 0) = "Bob";
    }

    bool OverdueWith(const std::string& date) {
        state_.Members(0, 9) = date;
        return IsOverdue(state_, 1, region_, today);
    }

    Date ProposedWith(const std::string& date) {
        state_.Members(0, 9) = date;
        return ProposedDate(state_, 1, region_, today);
    }

    State& state_ = *ownState_;
    Region region_ = EnglishRegion();
};

TEST_F(Payments, HaveARowForTheManagerAndEachMember) {
    EXPECT_EQ(PaymentCount(state_), 1);
    Fill(99);
    EXPECT_EQ(PaymentCount(state_), 100);
    Fill(100);
    EXPECT_EQ(FailureOf([this] { PaymentCount(state_); }),
              "SMembers.000: the payments have room for the manager and 99 members, but there are "
              "100 members.");
}

TEST_F(Payments, ShowTheNumberOfTheAmount) {
    const auto paid = [this](const char* text) {
        state_.Members(0, 8) = text;
        return AmountPaid(state_, 1).Pennies();
    };
    EXPECT_EQ(paid("5."), 500);
    EXPECT_EQ(paid("007.50"), 750);
    EXPECT_EQ(paid(""), 0);
    EXPECT_EQ(paid("\xA3"
                   "25.00"),
              0);
    EXPECT_EQ(paid("1234.5"), 123450);
    EXPECT_EQ(paid("0.001"), 0);
    EXPECT_EQ(FailureOf([&] { paid("99999999999999"); }),
              "SMembers.000, payments of \"Ann\": expected an amount of money, but "
              "\"99999999999999\" stands there, which is too large.");
}

TEST_F(Payments, AreOverdueBeforeTodayAndWithoutADate) {
    EXPECT_TRUE(OverdueWith(""));
    EXPECT_TRUE(OverdueWith("31-May-2005"));
    EXPECT_FALSE(OverdueWith("01-Jun-2005"));
    EXPECT_FALSE(OverdueWith("2 June 2005"));
    EXPECT_EQ(FailureOf([&] { OverdueWith("soon"); }).substr(0, 33),
              "SMembers.000, payments of \"Ann\": ");
}

TEST_F(Payments, ProposeNoDateInThePast) {
    EXPECT_EQ(ProposedWith(""), today);
    EXPECT_EQ(ProposedWith("31-May-2005"), today);
    EXPECT_EQ(ProposedWith("01-Jun-2005"), today);
    EXPECT_EQ(ProposedWith("02-Jun-2005"), June / 2 / 2005);
    EXPECT_EQ(ProposedWith("soon"), today);
}

TEST_F(Payments, KeepTheAmountAsTypedWithoutASymbolInFront) {
    EXPECT_EQ(KeptAmount(" 5. "), "5.");
    EXPECT_EQ(KeptAmount("\xA3"
                         "007.50"),
              "007.50");
    EXPECT_EQ(KeptAmount("EUR12.5"), "12.5");
    EXPECT_EQ(KeptAmount("$12"), "$12");
    EXPECT_EQ(KeptAmount(":9"), "9");
    EXPECT_EQ(KeptAmount("x"), "");
}

}  // namespace
