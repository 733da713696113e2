// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/stored_preferences.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"

namespace {

class StoredPreferences : public testing::Test {
  protected:
    StoredPreferences() { MakeDefaultSettings(state_, folder_); }

    std::string Stored(int slot) { return state_.Settings(slot); }

    /// What the slot of a filter shows.
    int Shown(std::size_t filter, const std::string& text) {
        state_.Settings(filterStrengths.at(filter).slot) = text;
        return ShownStrength(state_, filterStrengths.at(filter));
    }

    State state_;
    MemoryFolder folder_;
    EnteredPreferences entered_;
};

TEST_F(StoredPreferences, ShowTheSecondStrengthWhereTheNumberIsTwo) {
    for (std::size_t filter = 0; filter < filterStrengths.size(); ++filter) {
        EXPECT_EQ(Shown(filter, "2"), 1);
        EXPECT_EQ(Shown(filter, "2 of another label"), 1);
        EXPECT_EQ(Shown(filter, " 2"), 1);
        EXPECT_EQ(Shown(filter, "1 Odd/Even filter"), 0);
        EXPECT_EQ(Shown(filter, "3 Long Run filter"), 0);
        EXPECT_EQ(Shown(filter, "22"), 0);
        EXPECT_EQ(Shown(filter, "x2"), 0);
        EXPECT_EQ(Shown(filter, ""), 0);
    }
}

TEST_F(StoredPreferences, BearTheLabelsOfTheFilters) {
    StorePreferences(state_, entered_);
    EXPECT_EQ(Stored(11), "1 Odd/Even filter");
    EXPECT_EQ(Stored(12), "1 High/Low filter");
    EXPECT_EQ(Stored(13), "1 History  filter");
    EXPECT_EQ(Stored(14), "3 Long Run filter");
    entered_.strengths = {1, 1, 1, 1};
    StorePreferences(state_, entered_);
    EXPECT_EQ(Stored(11), "2 Odd/Even filter");
    EXPECT_EQ(Stored(12), "2 High/Low filter");
    EXPECT_EQ(Stored(13), "2 History  filter");
    EXPECT_EQ(Stored(14), "2 Long Run filter");
}

TEST_F(StoredPreferences, TakeEachFilterByItself) {
    entered_.strengths = {0, 1, 0, 1};
    StorePreferences(state_, entered_);
    EXPECT_EQ(Stored(11), "1 Odd/Even filter");
    EXPECT_EQ(Stored(12), "2 High/Low filter");
    EXPECT_EQ(Stored(13), "1 History  filter");
    EXPECT_EQ(Stored(14), "2 Long Run filter");
}

TEST_F(StoredPreferences, TellPicturesAndColoursAsABareNumber) {
    const auto bits = [this](bool pictures, bool colours) {
        entered_.pictures = pictures;
        entered_.colours = colours;
        StorePreferences(state_, entered_);
        return Stored(10);
    };
    EXPECT_EQ(bits(false, false), "0");
    EXPECT_EQ(bits(true, false), "1");
    EXPECT_EQ(bits(false, true), "2");
    EXPECT_EQ(bits(true, true), "3");
}

TEST_F(StoredPreferences, LeaveAllOtherSlotsAlone) {
    state_.Settings(15) = "4 May 1970";
    state_.Settings(1) = "&HFF";
    State before = state_;
    StorePreferences(state_, entered_);
    for (int slot = 0; slot <= setting::last; ++slot) {
        if (slot >= 10 && slot <= 14) continue;
        EXPECT_EQ(Stored(slot), before.Settings(slot)) << slot;
    }
}

TEST_F(StoredPreferences, PutEachLinkIntoItsTwoSlots) {
    for (std::size_t i = 0; i < entered_.links.size(); ++i) {
        entered_.links.at(i) = {"Link " + std::to_string(i + 1),
                                "http://www." + std::to_string(i + 1) + ".example"};
    }
    StorePreferences(state_, entered_);
    EXPECT_EQ(Stored(20), "Lottery Quillon");
    EXPECT_EQ(Stored(30), "http://www.lotteryquillon.example");
    for (int link = 1; link <= 9; ++link) {
        EXPECT_EQ(Stored(20 + link), "Link " + std::to_string(link));
        EXPECT_EQ(Stored(30 + link), "http://www." + std::to_string(link) + ".example");
    }
    EXPECT_EQ(Stored(40), "UK Lotto");
}

TEST_F(StoredPreferences, KeepBothOldValuesOfALinkWhoseCaptionIsEmptied) {
    entered_.links[2] = {"", "http://www.changed.example"};
    StorePreferences(state_, entered_);
    EXPECT_EQ(Stored(23), "US Powerball");
    EXPECT_EQ(Stored(33), "http://www.powerball.example");
    entered_.links[2] = {"   ", "http://www.changed.example"};
    StorePreferences(state_, entered_);
    EXPECT_EQ(Stored(23), "US Powerball");
    EXPECT_EQ(Stored(33), "http://www.powerball.example");
}

TEST_F(StoredPreferences, LeaveALinkEmptyThatGetsOnlyAnAddress) {
    entered_.links[8] = {"", "www.example"};
    StorePreferences(state_, entered_);
    EXPECT_EQ(Stored(29), "");
    EXPECT_EQ(Stored(39), "");
}

TEST_F(StoredPreferences, KeepALinkThatHasNoAddress) {
    entered_.links[8] = {"Later", " "};
    StorePreferences(state_, entered_);
    EXPECT_EQ(Stored(29), "Later");
    EXPECT_EQ(Stored(39), "http://");
}

TEST(StoredCaption, DoublesEachAmpersand) {
    EXPECT_EQ(StoredCaption("Bread & Butter"), "Bread && Butter");
    EXPECT_EQ(StoredCaption("Bread && Butter"), "Bread &&&& Butter");
    EXPECT_EQ(StoredCaption("&"), "&&");
}

TEST(StoredCaption, MakesACommaAnApostrophe) {
    EXPECT_EQ(StoredCaption("Lotto, UK"), "Lotto' UK");
    EXPECT_EQ(StoredCaption(","), "'");
    EXPECT_EQ(StoredCaption(",&,"), "'&&'");
}

TEST(StoredCaption, LosesBlanksAtItsEndsAlone) {
    EXPECT_EQ(StoredCaption("  UK  Lotto "), "UK  Lotto");
    EXPECT_EQ(StoredCaption("   "), "");
    EXPECT_EQ(StoredCaption(" , "), "'");
}

TEST(StoredAddress, GetsThePrefixThatItLacks) {
    EXPECT_EQ(StoredAddress("www.example"), "http://www.example");
    EXPECT_EQ(StoredAddress("  www.example "), "http://www.example");
    EXPECT_EQ(StoredAddress("http:/www.example"), "http://http:/www.example");
    EXPECT_EQ(StoredAddress("x http://"), "http://x http://");
}

TEST(StoredAddress, KeepsThePrefixAsItIsTyped) {
    EXPECT_EQ(StoredAddress("http://www.example"), "http://www.example");
    EXPECT_EQ(StoredAddress("HTTP://WWW.example"), "HTTP://WWW.example");
    EXPECT_EQ(StoredAddress(" Http://x"), "Http://x");
}

TEST(StoredAddress, PutsThePrefixBeforeASecureAddressToo) {
    EXPECT_EQ(StoredAddress("https://x"), "http://https://x");
}

TEST(StoredAddress, IsThePrefixAloneWhereNothingIsTyped) {
    EXPECT_EQ(StoredAddress(""), "http://");
    EXPECT_EQ(StoredAddress("   "), "http://");
}

TEST(StoredAddress, KeepsCommasAndAmpersands) {
    EXPECT_EQ(StoredAddress("http://x/?a=1&b=2,3"), "http://x/?a=1&b=2,3");
}

TEST_F(StoredPreferences, GiveTheColoursTheirDefaultsAndChangeNothingElse) {
    for (int slot = 1; slot <= 5; ++slot) state_.Settings(slot) = "&HFF00FF";
    state_.Settings(10) = "2";
    ResetColours(state_);
    EXPECT_EQ(Stored(1), "&H000000");
    EXPECT_EQ(Stored(2), "&H000000");
    EXPECT_EQ(Stored(3), "&H800000");
    EXPECT_EQ(Stored(4), "&H000080");
    EXPECT_EQ(Stored(5), "&H8000000F");
    EXPECT_EQ(Stored(10), "2");
}

}  // namespace
