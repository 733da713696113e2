// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/members.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/settings.h"
#include "tests/core/failures.h"

namespace {

class Members : public testing::Test {
  private:
    const std::unique_ptr<State> ownState_ = std::make_unique<State>();

  protected:
    State& state_ = *ownState_;

    void Add(const std::string& name, const std::string& phone = "",
             const std::string& payBy = "Cash") {
        AddMember(state_, {.texts = {name, "", "", "", "", phone, ""}, .payBy = payBy});
    }

    void AddHundred() {
        for (int number = 1; number <= 100; ++number) Add("Member " + std::to_string(number));
    }

    std::string Names() {
        std::string names;
        for (int row = 1; row <= MemberCount(state_); ++row) {
            names += (row == 1 ? "" : ",") + state_.Members(row, 0);
        }
        return names;
    }
};

TEST_F(Members, AreAddedBehindTheLast) {
    Add("Ann", "555", "Cheque");
    Add("Bob");
    EXPECT_EQ(Names(), "Ann,Bob");
    EXPECT_EQ(state_.Members(1, 5), "555");
    EXPECT_EQ(state_.Members(1, 7), "Cheque");
}

TEST_F(Members, OfANameThatIsThereAreUpdatedAndKeepTheirPayments) {
    Add("Ann", "555");
    Add("Bob");
    state_.Members(1, 8) = "25";
    state_.Members(1, 9) = "01-Jul-2005";
    Add("Ann", "777", "Cheque");
    EXPECT_EQ(Names(), "Ann,Bob");
    EXPECT_EQ(state_.Members(1, 5), "777");
    EXPECT_EQ(state_.Members(1, 7), "Cheque");
    EXPECT_EQ(state_.Members(1, 8), "25");
    EXPECT_EQ(state_.Members(1, 9), "01-Jul-2005");
}

TEST_F(Members, DifferByTheCaseOfTheirNames) {
    Add("Ann");
    Add("ANN");
    EXPECT_EQ(Names(), "Ann,ANN");
}

TEST_F(Members, BeyondAHundredAreAFailureButOneOfTheHundredIsUpdated) {
    state_.Settings(setting::SyndicateFile) = "SMembers.000";
    AddHundred();
    Add("Member 100", "555");
    EXPECT_EQ(state_.Members(100, 5), "555");
    EXPECT_EQ(FailureOf([this] { Add("Zoe"); }),
              "SMembers.000: a syndicate has 100 members at most, and there is no row for "
              "\"Zoe\".");
    EXPECT_EQ(state_.Members(101, 0), "");
}

TEST_F(Members, BehindADeletedOneMoveUpWithAllTheirColumns) {
    for (const char* name : {"Ann", "Bob", "Cid"}) Add(name);
    state_.Members(3, 10) = "unused";
    state_.Members(3, 8) = "5";
    DeleteMember(state_, "Bob");
    EXPECT_EQ(Names(), "Ann,Cid");
    EXPECT_EQ(state_.Members(2, 8), "5");
    EXPECT_EQ(state_.Members(2, 10), "unused");
    EXPECT_EQ(state_.Members(3, 8), "");
}

TEST_F(Members, TheOnlyOneLeavesAnEmptyRow) {
    Add("Ann", "555");
    DeleteMember(state_, "Ann");
    for (int column = 0; column <= 10; ++column) EXPECT_EQ(state_.Members(1, column), "");
}

TEST_F(Members, TheFirstOfTwoNamesakesIsDeletedAndUpdated) {
    for (const char* name : {"Ann", "Bob", "Cid"}) Add(name);
    state_.Members(3, 0) = "Ann";
    Add("Ann", "555");
    EXPECT_EQ(state_.Members(1, 5), "555");
    DeleteMember(state_, "Ann");
    EXPECT_EQ(Names(), "Bob,Ann");
}

TEST_F(Members, DeletedOutOfAFullTableLeaveTheLastOneTwice) {
    AddHundred();
    DeleteMember(state_, "Member 1");
    EXPECT_EQ(MemberCount(state_), 100);
    EXPECT_EQ(state_.Members(1, 0), "Member 2");
    EXPECT_EQ(state_.Members(99, 0), "Member 100");
    EXPECT_EQ(state_.Members(100, 0), "Member 100");
}

TEST_F(Members, TheHundredthIsDeletedItself) {
    AddHundred();
    DeleteMember(state_, "Member 100");
    EXPECT_EQ(MemberCount(state_), 99);
}

TEST_F(Members, AreSortedByTheWholeNameAsTyped) {
    for (const char* name : {"Zoe Adams", "bob", "Bob Young", "\xC4nne", "Ann"}) Add(name);
    SortMembers(state_);
    EXPECT_EQ(Names(), "Ann,Bob Young,Zoe Adams,bob,\xC4nne");
}

TEST_F(Members, OfOneNameKeepTheirOrderWhenSorted) {
    for (const char* name : {"Cid", "Ann", "Bob"}) Add(name);
    state_.Members(1, 0) = "Bob";
    state_.Members(1, 5) = "first";
    SortMembers(state_);
    EXPECT_EQ(Names(), "Ann,Bob,Bob");
    EXPECT_EQ(state_.Members(2, 5), "first");
}

TEST_F(Members, OfOneNameKeepTheirOrderHoweverManyThereAre) {
    AddHundred();
    for (int row = 1; row <= 100; ++row) {
        state_.Members(row, 0) = row % 2 == 0 ? "Ann" : "Bob";
        state_.Members(row, 5) = std::to_string(row);
    }
    SortMembers(state_);
    for (int row = 1; row <= 50; ++row) {
        EXPECT_EQ(state_.Members(row, 5), std::to_string(2 * row));
        EXPECT_EQ(state_.Members(row + 50, 5), std::to_string(2 * row - 1));
    }
}

TEST_F(Members, PayInFourWays) {
    EXPECT_EQ(PayByIndex("Cash"), 0);
    EXPECT_EQ(PayByIndex("Internet transfer"), 3);
    EXPECT_EQ(PayByIndex(""), -1);
    EXPECT_EQ(PayByIndex("cash"), -1);
}

}  // namespace
