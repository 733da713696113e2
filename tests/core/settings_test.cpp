// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/settings.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/default_settings.h"
#include "core/memory_folder.h"
#include "tests/core/failures.h"

namespace {

std::string Lines(int count, const std::string& text = "x") {
    std::string lines;
    for (int line = 0; line < count; ++line) lines += text + "\r\n";
    return lines;
}

class SettingsFile : public testing::Test {
  private:
    const std::unique_ptr<State> ownState_ = std::make_unique<State>();

  protected:
    State& state_ = *ownState_;
    MemoryFolder folder_;

    std::string FailureOfLoading() {
        return FailureOf([this] { LoadSettings(state_, folder_); });
    }
};

TEST(DefaultSetting, IsTheTextThatANewFileHolds) {
    const auto state = std::make_unique<State>();
    MemoryFolder folder;
    MakeDefaultSettings(*state, folder);
    for (int slot = 1; slot <= setting::last; ++slot) {
        EXPECT_EQ(DefaultSetting(slot), state->Settings(slot)) << slot;
    }
}

}  // namespace

TEST_F(SettingsFile, IsMadeWithTheDefaultsWhereItIsMissing) {
    LoadSettings(state_, folder_);
    const std::map<int, std::string> filled = {
        {1, "&H000000"},
        {2, "&H000000"},
        {3, "&H800000"},
        {4, "&H000080"},
        {5, "&H8000000F"},
        {10, "1 Skinning/colours"},
        {11, "1 Odd/Even filter"},
        {12, "1 High/Low filter"},
        {13, "1 History  filter"},
        {14, "3 Long Run filter"},
        {15, "01/01/1970"},
        {19, "0"},
        {20, "Lottery Quillon"},
        {21, "UK National Lottery"},
        {22, "Camelot (UK Lottery)"},
        {23, "US Powerball"},
        {24, "US Mega Millions"},
        {30, "http://www.lotteryquillon.example"},
        {31, "http://www.national-lottery.example"},
        {32, "http://www.camelot.example"},
        {33, "http://www.powerball.example"},
        {34, "http://www.megamillions.example"},
        {40, "UK Lotto"},
        {41, "UK Thunderball"},
        {42, "UK Daily Play"},
        {43, "UK Lotto Extra"},
        {44, "UK Lotto Hot Picks"},
        {50, "http://www.national-lottery.example/player/files/Lotto.csv"},
        {51, "http://www.national-lottery.example/player/files/Thunderball.csv"},
        {52, "http://www.national-lottery.example/player/files/DailyPlay.csv"},
        {53, "http://www.national-lottery.example/player/files/Extra.csv"},
        {54, "http://www.national-lottery.example/player/files/HotPicks.csv"},
        {68, "http://www.megamillions.example/winningpicks/download_numbers_execute.asp"},
        {69, "http://www.powerball.example/powerball/winnums-text.txt"}};
    std::string file;
    for (int slot = 0; slot <= 100; ++slot) {
        const auto found = filled.find(slot);
        const std::string expected = found == filled.end() ? "" : found->second;
        EXPECT_EQ(state_.Settings(slot), expected) << slot;
        if (slot > 0) file += expected + "\r\n";
    }
    EXPECT_EQ(folder_.Read("quillon.ini"), file);
}

TEST_F(SettingsFile, HasOneHundredLinesWhateverIsInThem) {
    for (int slot = 0; slot <= 100; ++slot) state_.Settings(slot) = std::to_string(slot);
    SaveSettings(state_, folder_);
    std::string expected;
    for (int slot = 1; slot <= 100; ++slot) expected += std::to_string(slot) + "\r\n";
    EXPECT_EQ(folder_.Read("quillon.ini"), expected);
}

TEST_F(SettingsFile, ComesBackAsItWasSaved) {
    for (int slot = 1; slot <= 100; ++slot) {
        state_.Settings(slot) = slot % 3 == 0 ? "" : " \"" + std::to_string(slot) + ", \xE9 ";
    }
    SaveSettings(state_, folder_);
    const auto second = std::make_unique<State>();
    LoadSettings(*second, folder_);
    for (int slot = 0; slot <= 100; ++slot)
        EXPECT_EQ(second->Settings(slot), state_.Settings(slot));
}

TEST_F(SettingsFile, StoresALineAsItStands) {
    folder_.Write("quillon.ini", " a, \"b\" \t\nsecond\rthird");
    LoadSettings(state_, folder_);
    EXPECT_EQ(state_.Settings(1), " a, \"b\" \t");
    EXPECT_EQ(state_.Settings(2), "second");
    EXPECT_EQ(state_.Settings(3), "third");
}

TEST_F(SettingsFile, LeavesTheEntriesBeyondItsLastLineAlone) {
    state_.Settings(99) = "kept";
    state_.Settings(100) = "kept too";
    folder_.Write("quillon.ini", Lines(99));
    LoadSettings(state_, folder_);
    EXPECT_EQ(state_.Settings(99), "x");
    EXPECT_EQ(state_.Settings(100), "kept too");
}

TEST_F(SettingsFile, MayBeEmpty) {
    state_.Settings(1) = "kept";
    folder_.Write("quillon.ini", "");
    LoadSettings(state_, folder_);
    EXPECT_EQ(state_.Settings(1), "kept");
}

TEST_F(SettingsFile, MayHoldOneHundredLines) {
    folder_.Write("quillon.ini", Lines(100));
    LoadSettings(state_, folder_);
    EXPECT_EQ(state_.Settings(100), "x");
}

TEST_F(SettingsFile, MayHoldOneHundredLinesWithoutTheLastLineEnd) {
    folder_.Write("quillon.ini", Lines(99) + "last");
    LoadSettings(state_, folder_);
    EXPECT_EQ(state_.Settings(100), "last");
}

TEST_F(SettingsFile, FailsAtLineOneHundredAndOne) {
    folder_.Write("quillon.ini", Lines(100) + "one more");
    const auto before = folder_.Snapshot();
    EXPECT_EQ(
        FailureOfLoading(),
        "quillon.ini, line 101: expected no more than 100 lines, but \"one more\" stands there.");
    EXPECT_EQ(folder_.Snapshot(), before);
}

TEST_F(SettingsFile, FailsAtAnEmptyLineOneHundredAndOne) {
    folder_.Write("quillon.ini", Lines(100) + "\r\n");
    EXPECT_EQ(FailureOfLoading(),
              "quillon.ini, line 101: expected no more than 100 lines, but \"\" stands there.");
}

TEST_F(SettingsFile, IsNotTouchedByAFailingWriteAtAnyByte) {
    MakeDefaultSettings(state_, folder_);
    const auto before = folder_.Snapshot();
    state_.Settings(17) = "Ann";
    const std::size_t size = before.at("quillon.ini").size() + 3;
    for (std::size_t bytes = 0; bytes < size; ++bytes) {
        folder_.FailAfterBytes(bytes);
        ASSERT_THROW(SaveSettings(state_, folder_), Failure) << bytes;
        ASSERT_EQ(folder_.Snapshot(), before) << bytes;
    }
    folder_.FailAfterBytes(size);
    SaveSettings(state_, folder_);
    EXPECT_EQ(folder_.Snapshot().at("quillon.ini").size(), size);
}

TEST_F(SettingsFile, IsNotTouchedByAFailureAtAnyOperation) {
    MakeDefaultSettings(state_, folder_);
    const auto before = folder_.Snapshot();
    folder_.FailAtOperation(0);
    EXPECT_THROW(SaveSettings(state_, folder_), Failure);
    EXPECT_EQ(folder_.Snapshot(), before);
}

TEST_F(SettingsFile, IsNotHalfMadeWhereTheDefaultsCannotBeWritten) {
    folder_.FailAfterBytes(100);
    EXPECT_THROW(LoadSettings(state_, folder_), Failure);
    EXPECT_TRUE(folder_.Snapshot().empty());
}

TEST_F(SettingsFile, FailsWhereItIsLocked) {
    MakeDefaultSettings(state_, folder_);
    folder_.Lock("quillon.ini");
    EXPECT_EQ(FailureOfLoading(), "quillon.ini: the file is locked.");
}

TEST_F(SettingsFile, NamesItsPlacesForReports) {
    EXPECT_EQ(PlaceOf(setting::BackgroundColour), "quillon.ini, line 5");
}

TEST_F(SettingsFile, KeepsTheNamedSlotsInTheirPlaces) {
    for (int slot = 1; slot <= 100; ++slot) state_.Settings(slot) = std::to_string(slot);
    EXPECT_EQ(state_.Settings(setting::SyndicateFile), "16");
    EXPECT_EQ(state_.Settings(setting::PlayerName), "17");
    EXPECT_EQ(state_.Settings(setting::DrawDate), "18");
    EXPECT_EQ(state_.Settings(setting::LinkCaptions + setting::links - 1), "29");
    EXPECT_EQ(state_.Settings(setting::LinkAddresses + setting::links - 1), "39");
    EXPECT_EQ(state_.Settings(setting::UkDownloadNames + setting::ukDownloads - 1), "44");
    EXPECT_EQ(state_.Settings(setting::UkDownloadAddresses + setting::ukDownloads - 1), "54");
}
