// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/syndicate_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "core/memory_folder.h"
#include "core/settings.h"
#include "tests/core/failures.h"
#include "tests/core/taken_names.h"

namespace {

const std::string emptyRow = R"("","","","","","","","","","","")";

SyndicateDetails Details(const std::string& syndicate, const std::string& manager) {
    return {.syndicate = syndicate, .manager = {manager, "1, High Street", "", "", "", "555", ""}};
}

class Syndicates : public testing::Test {
  private:
    const std::unique_ptr<State> ownState_ = std::make_unique<State>();

  protected:
    State& state_ = *ownState_;
    MemoryFolder folder_;

    std::string& File() { return state_.Settings(setting::SyndicateFile); }

    void Start(const std::string& syndicate, const std::string& manager = "Ann") {
        StartSyndicate(state_, folder_, Details(syndicate, manager));
    }
};

TEST_F(Syndicates, AreNumberedFromNought) {
    Start("Winners");
    EXPECT_EQ(File(), "SMembers.000");
    EXPECT_TRUE(folder_.Exists("SMembers.000"));
}

TEST_F(Syndicates, TakeTheFirstFreeNumber) {
    folder_.Write("SMembers.000", "");
    folder_.Write("SMembers.002", "");
    Start("Winners");
    EXPECT_EQ(File(), "SMembers.001");
    EXPECT_EQ(folder_.Read("SMembers.000"), "");
}

TEST_F(Syndicates, LeaveAFileThatSomebodyElseMakesMeanwhile) {
    TakenNames taken(folder_, {"SMembers.000"});
    StartSyndicate(state_, taken, Details("Winners", "Ann"));
    EXPECT_EQ(File(), "SMembers.001");
    EXPECT_EQ(folder_.Read("SMembers.000"), theirs);
    EXPECT_EQ(folder_.Read("SMembers.001"), state_.MembersOnDisk);
}

TEST_F(Syndicates, AreMadeThoughTheOneThatWasOpenCannotBeSaved) {
    folder_.OfferRescue();
    Start("Winners");
    state_.Members(1, 0) = "Bob";
    folder_.Lock("SMembers.000");
    const std::string failure = FailureOf([&] { Start("Club"); });
    EXPECT_NE(failure.find("elsewhere/SMembers.000"), std::string::npos) << failure;
    EXPECT_NE(folder_.Rescued().at("SMembers.000").find("\"Bob\""), std::string::npos);
    EXPECT_NE(folder_.Read("SMembers.001").find("\"Club\""), std::string::npos);
}

TEST_F(Syndicates, ThatCannotBeMadeAreRescued) {
    folder_.OfferRescue();
    Start("Winners");
    folder_.FailAfterBytes(0);
    const std::string failure = FailureOf([&] { Start("Club"); });
    EXPECT_NE(failure.find("elsewhere/SMembers.001"), std::string::npos) << failure;
    EXPECT_NE(folder_.Rescued().at("SMembers.001").find("\"Club\""), std::string::npos);
}

TEST_F(Syndicates, GoOnWithNumber100AndAreThenNotListed) {
    for (int number = 0; number < 100; ++number) Start("Winners " + std::to_string(number));
    EXPECT_EQ(File(), "SMembers.099");
    Start("The hundred and first");
    EXPECT_EQ(File(), "SMembers.100");
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Members(0, 10), "The hundred and first");
    const auto listed = ListSyndicates(folder_);
    ASSERT_EQ(listed.size(), 100U);
    EXPECT_EQ(listed.back().file, "SMembers.099");
    EXPECT_EQ(listed.back().name, "Winners 99");
}

TEST_F(Syndicates, AreWrittenAs101LinesOfElevenFields) {
    Start("Winners");
    const std::string content = folder_.Read("SMembers.000");
    std::string expected = R"("Ann","1, High Street","","","","555","","","","","Winners")"
                           "\r\n";
    for (int row = 1; row <= 100; ++row) expected += emptyRow + "\r\n";
    EXPECT_EQ(content, expected);
}

TEST_F(Syndicates, AreWrittenWithAllTheirMembers) {
    Start("Winners");
    state_.Members(1, 0) = "Bob";
    state_.Members(100, 10) = "last";
    state_.Members(101, 0) = "beyond";
    SaveSyndicate(state_, folder_);
    const std::string content = folder_.Read("SMembers.000");
    EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 101);
    EXPECT_EQ(content.find("beyond"), std::string::npos);
    state_.Members(1, 0).clear();
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Members(1, 0), "Bob");
    EXPECT_EQ(state_.Members(100, 10), "last");
}

TEST_F(Syndicates, AreNotWrittenWhereNoneIsOpen) {
    state_.Members(0, 0) = "Ann";
    SaveSyndicate(state_, folder_);
    EXPECT_TRUE(folder_.Snapshot().empty());
}

TEST_F(Syndicates, KeepWhatStandsUnsavedInTheMembersOfTheOldOne) {
    Start("Old");
    state_.Members(1, 0) = "Bob";
    Start("New", "Eve");
    EXPECT_EQ(state_.Members(1, 0), "");
    EXPECT_EQ(state_.Members(0, 0), "Eve");
    File() = "SMembers.000";
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Members(1, 0), "Bob");
    EXPECT_EQ(state_.Members(0, 10), "Old");
}

TEST_F(Syndicates, StartEmptyButForTheirDetails) {
    Start("Old");
    for (int row = 0; row <= 100; ++row) state_.Members(row, 7) = "Cash";
    Start("New");
    for (int row = 0; row <= 100; ++row) EXPECT_EQ(state_.Members(row, 7), "");
}

TEST_F(Syndicates, NeedTwoNames) {
    EXPECT_TRUE(HasNames(Trimmed(Details(" Winners ", " Ann "))));
    EXPECT_FALSE(HasNames(Trimmed(Details("  ", "Ann"))));
    EXPECT_FALSE(HasNames(Trimmed(Details("Winners", ""))));
}

TEST_F(Syndicates, DetailsAreTrimmedEachAndReturn) {
    SyndicateDetails details{.syndicate = " Winners ",
                             .manager = {" Ann ", " a ", "b ", " c", "d", " 555", " @ "}};
    PutDetails(state_, Trimmed(details));
    EXPECT_EQ(state_.Members(0, 0), "Ann");
    EXPECT_EQ(state_.Members(0, 6), "@");
    EXPECT_EQ(state_.Members(0, 7), "");
    EXPECT_EQ(state_.Members(0, 10), "Winners");
    EXPECT_EQ(DetailsOf(state_).manager, Trimmed(details).manager);
    EXPECT_EQ(DetailsOf(state_).syndicate, "Winners");
}

TEST_F(Syndicates, AreListedInTheOrderOfTheirFilesWithEmptyNamesToo) {
    folder_.Write("SMembers.002", R"("Ann","","","","","","","","","","Second")");
    folder_.Write("smembers.001", emptyRow);
    folder_.Write("SMembers.100", R"("Ann","","","","","","","","","","Unlisted")");
    const auto listed = ListSyndicates(folder_);
    ASSERT_EQ(listed.size(), 2U);
    EXPECT_EQ(listed[0].name, "");
    EXPECT_EQ(listed[1].name, "Second");
    EXPECT_EQ(listed[1].file, "SMembers.002");
}

TEST_F(Syndicates, AreListedByTheirFirstElevenFields) {
    folder_.Write("SMembers.000", "Ann,a, b ,,,,,,,,\"Smith, Jones  \"\r\nand what else");
    EXPECT_EQ(ListSyndicates(folder_).front().name, "Smith, Jones  ");
    folder_.Write("SMembers.001", R"("Ann","","")");
    EXPECT_EQ(FailureOf([this] { ListSyndicates(folder_); }),
              "SMembers.001, line 1: expected a field of the syndicate, but the file ends there.");
}

TEST_F(Syndicates, AQuoteWithinANameBelongsToIt) {
    Start(R"(The "Lucky" Ones)", R"(Ann "A")");
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Members(0, 10), R"(The "Lucky" Ones)");
    EXPECT_EQ(state_.Members(0, 0), R"(Ann "A")");
}

TEST_F(Syndicates, AFileOfMoreLinesIsAccepted) {
    Start("Winners");
    folder_.Append("SMembers.000", "more\r\n");
    LoadSyndicate(state_, folder_);
    EXPECT_EQ(state_.Members(0, 10), "Winners");
}

TEST_F(Syndicates, AreDeletedWithTheirDiaries) {
    folder_.Write("SMembers.001", "");
    folder_.Write("Diary.001", "");
    folder_.Write("Diary.000", "");
    folder_.Write("SNotes.txt", "");
    DeleteSyndicateFiles(folder_, "SMembers.001");
    EXPECT_FALSE(folder_.Exists("SMembers.001"));
    EXPECT_FALSE(folder_.Exists("Diary.001"));
    EXPECT_TRUE(folder_.Exists("Diary.000"));
    EXPECT_TRUE(folder_.Exists("SNotes.txt"));
    folder_.Write("Diary.007", "");
    DeleteSyndicateFiles(folder_, "SMembers.007");
    EXPECT_FALSE(folder_.Exists("Diary.007")) << "the file of the syndicate was gone already";
}

TEST_F(Syndicates, StayAsTheyWereWhereAWriteFails) {
    Start("Old");
    state_.Members(1, 0) = "Bob";
    const auto before = folder_.Snapshot();
    folder_.FailAfterBytes(0);
    EXPECT_NE(FailureOf([this] { Start("New"); }), "no failure");
    EXPECT_EQ(folder_.Snapshot(), before);
}

}  // namespace
