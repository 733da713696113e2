// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/syndicate.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/memory_folder.h"
#include "core/settings.h"
#include "tests/core/failures.h"

namespace {

const std::string emptyRow = R"("","","","","","","","","","","")";

class SyndicateFile : public testing::Test {
  private:
    const std::unique_ptr<State> ownState_ = std::make_unique<State>();

  protected:
    State& state_ = *ownState_;
    MemoryFolder folder_;

    // A file of as many rows as told: the syndicate, then empty ones.
    void WriteRows(int rows, const std::string& first = emptyRow) {
        std::string content = first + "\r\n";
        for (int row = 1; row < rows; ++row) content += emptyRow + "\r\n";
        folder_.Write("SMembers.000", content);
        state_.Settings(setting::SyndicateFile) = "SMembers.000";
    }

    bool MembersAreEmpty() const {
        for (int row = 0; row <= 100; ++row) {
            for (int column = 0; column <= 10; ++column) {
                if (!state_.Members(row, column).empty()) return false;
            }
        }
        return true;
    }
};

}  // namespace

TEST_F(SyndicateFile, IsReadIntoTheMembers) {
    WriteRows(101,
              R"("Ann","1, High Street","","","","555","a@b.example","Cash","5","","Winners")");
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Members(0, 0), "Ann");
    EXPECT_EQ(state_.Members(0, 1), "1, High Street");
    EXPECT_EQ(state_.Members(0, 10), "Winners");
    EXPECT_EQ(state_.Members(1, 0), "");
    EXPECT_EQ(state_.Settings(setting::SyndicateFile), "SMembers.000");
}

TEST_F(SyndicateFile, IsReadToItsLastRow) {
    WriteRows(100);
    folder_.Append("SMembers.000", R"("Zoe","","","","","","","","","","last")");
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Members(100, 0), "Zoe");
    EXPECT_EQ(state_.Members(100, 10), "last");
}

TEST_F(SyndicateFile, IsNotLookedForWithoutAName) {
    state_.Members(0, 0) = "Ann";
    state_.Members(100, 10) = "old";
    LoadSyndicate(state_, folder_);
    EXPECT_TRUE(MembersAreEmpty());
}

TEST_F(SyndicateFile, IsForgottenWhereItIsGone) {
    state_.Settings(setting::SyndicateFile) = "SMembers.007";
    state_.Members(0, 0) = "Ann";
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Settings(setting::SyndicateFile), "");
    EXPECT_TRUE(MembersAreEmpty());
}

TEST_F(SyndicateFile, LeavesTheRowBeyondTheMembersAlone) {
    state_.Members(101, 0) = "kept";
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Members(101, 0), "kept");
}

TEST_F(SyndicateFile, FailsWithFewerRows) {
    WriteRows(100);
    const auto before = folder_.Snapshot();
    EXPECT_EQ(FailureOf([this] { LoadSyndicate(state_, folder_); }),
              "SMembers.000, line 101: expected a field of row 100 of the syndicate, but the file "
              "ends there.");
    EXPECT_EQ(folder_.Snapshot(), before);
}

TEST_F(SyndicateFile, FailsWithFewerFields) {
    WriteRows(101, R"("Ann")");
    EXPECT_THROW(LoadSyndicate(state_, folder_), Failure);
}

TEST_F(SyndicateFile, MayBeReadTwice) {
    WriteRows(101, R"("Ann","","","","","","","","","","Winners")");
    LoadSyndicate(state_, folder_);
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Members(0, 10), "Winners");
}
