// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/lottery_info.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "tests/core/failures.h"

namespace {

using Sections = std::vector<LotteryInfoSection>;

class LotteryInfoFile : public testing::Test {
  protected:
    Sections Read(const std::string& content) {
        folder_.Write("Lottery Info.txt", content);
        return ReadLotteryInfo(folder_);
    }

    std::string FailureOfReading(const std::string& content) {
        return FailureOf([&] { Read(content); });
    }

    /// That many sections of one line each, and the spare line.
    static std::string Captions(int count) {
        std::string content;
        for (int i = 1; i <= count; ++i) content += "#" + std::to_string(i) + "\r\ntext\r\n";
        return content + "\r\n";
    }

    MemoryFolder folder_;
};

TEST_F(LotteryInfoFile, HasASectionForEachLineThatBeginsWithANumberSign) {
    EXPECT_EQ(Read("#One\r\nfirst\r\nsecond\r\n#Two\r\nthird\r\nspare\r\n"),
              (Sections{{"One", "first\r\nsecond\r\n"}, {"Two", "third\r\n"}}));
}

TEST_F(LotteryInfoFile, LosesItsLastLineWhateverThatHolds) {
    EXPECT_EQ(Read("#One\r\nfirst\r\n\r\n"), (Sections{{"One", "first\r\n"}}));
    EXPECT_EQ(Read("#One\r\nfirst\r\nlast"), (Sections{{"One", "first\r\n"}}));
    EXPECT_EQ(Read("#One\r\nfirst\r\n\r\n\r\n"), (Sections{{"One", "first\r\n\r\n"}}));
}

TEST_F(LotteryInfoFile, OpensNoSectionWithItsLastLine) {
    EXPECT_EQ(Read("#One\r\nfirst\r\n#Two\r\n"), (Sections{{"One", "first\r\n"}}));
    EXPECT_EQ(Read("#One\r\nfirst\r\n#Two"), (Sections{{"One", "first\r\n"}}));
    EXPECT_EQ(Read(Captions(10) + "#11\r\n").size(), 10U) << "an eleventh is none there";
}

TEST_F(LotteryInfoFile, OfOneLineHasNoSection) {
    EXPECT_EQ(Read("#One\r\n"), Sections());
    EXPECT_EQ(Read("#One"), Sections());
    EXPECT_EQ(Read("no caption"), Sections());
    EXPECT_EQ(Read("\r\n"), Sections());
}

TEST_F(LotteryInfoFile, MayHaveASectionWithoutLines) {
    EXPECT_EQ(Read("#One\r\n#Two\r\ntext\r\n#Three\r\nspare"),
              (Sections{{"One", ""}, {"Two", "text\r\n"}, {"Three", ""}}));
}

TEST_F(LotteryInfoFile, KeepsCaptionsAndLinesAsTheyStand) {
    EXPECT_EQ(Read("# A & B #\r\n  one, \"two\"\t3 \r\n #no caption\r\n##\r\n\r\nspare"),
              (Sections{{" A & B #", "  one, \"two\"\t3 \r\n #no caption\r\n"}, {"#", "\r\n"}}));
}

TEST_F(LotteryInfoFile, TakesEveryLineEnd) {
    EXPECT_EQ(Read("#One\nfirst\rsecond\r\nspare\n"), (Sections{{"One", "first\r\nsecond\r\n"}}));
}

TEST_F(LotteryInfoFile, IsAFailureWhereItIsEmptyOrMissing) {
    EXPECT_NE(FailureOfReading("").find("Lottery Info.txt, line 1"), std::string::npos);
    folder_.Delete("Lottery Info.txt");
    EXPECT_NE(FailureOf([&] { ReadLotteryInfo(folder_); }), "no failure");
}

TEST_F(LotteryInfoFile, IsAFailureWhereItDoesNotBeginWithASection) {
    const std::string failure = FailureOfReading("One\r\n#Two\r\ntext\r\n\r\n");
    EXPECT_NE(failure.find("Lottery Info.txt, line 1"), std::string::npos) << failure;
    EXPECT_NE(failure.find("\"One\""), std::string::npos) << failure;
}

TEST_F(LotteryInfoFile, HasRoomForTenSections) {
    EXPECT_EQ(Read(Captions(10)).size(), 10U);
    const std::string failure = FailureOfReading(Captions(11));
    EXPECT_NE(failure.find("Lottery Info.txt, line 21"), std::string::npos) << failure;
    EXPECT_NE(failure.find("\"#11\""), std::string::npos) << failure;
}

}  // namespace
