// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_session.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "tests/support/results_text.h"

namespace {

class Session : public testing::Test {
  protected:
    void Open(const std::string& text, const ImportFormats& formats = {}) {
        session_.Open("results.csv", text, formats);
    }

    /// What is remembered of the session after an import into the database.
    ImportFormats Remembered(const std::string& database) {
        ImportFormats formats;
        Remember(formats, session_.FormatInto(database));
        return formats;
    }

    DateRules dates_{.region = {}, .today = std::chrono::year(2026) / 3 / 1};
    MemoryFolder folder_;
    ImportSession session_{dates_};
};

TEST_F(Session, TakesTheNextFileOfTheSameShapeAsTheLastOne) {
    const auto draws = PublishedDraws(40);
    Open(ResultsCsv({draws.begin() + 4, draws.end()}));
    session_.ChooseRole(7, ColumnRole::Nothing);
    const ImportFormats formats = Remembered("dbase1.txt");
    Open(ResultsCsv(draws), formats);
    EXPECT_TRUE(session_.IsRemembered());
    EXPECT_EQ(RoleOf(session_.Mapping(), 7), ColumnRole::Nothing);
    EXPECT_EQ(session_.Taken().draws.size(), 40U);
}

TEST_F(Session, CutsTheRowsOfTheSameSourceAsTheUserDid) {
    const std::string text =
        "Day | Numbers | Note\n2026-02-28 | 1 12 23 34 45 49 | a\n"
        "2026-02-21 | 2 13 24 35 46 48 | b\n";
    Open(text);
    const ImportSeparator guessed = session_.Mapping().separator;
    const ImportSeparator other =
        guessed == ImportSeparator::Blanks ? ImportSeparator::Bar : ImportSeparator::Blanks;
    session_.ChooseSeparator(other);
    ASSERT_TRUE(session_.HasDraws());
    const ImportFormats formats = Remembered("dbase1.txt");
    Open(text, formats);
    EXPECT_EQ(session_.Mapping().separator, other);
}

TEST_F(Session, LeadsBackToTheLotteryOfItsDrawsOnly) {
    const auto draws = PublishedDraws(40);
    folder_.Write("dbase1.txt", DatabaseText("Village", 49, draws));
    Open(ResultsCsv(draws));
    const ImportFormats formats = Remembered("dbase1.txt");
    Open(ResultsCsv(draws), formats);
    EXPECT_EQ(session_.RememberedDatabase(folder_), "dbase1.txt");

    // Another lottery of the same operator, in a file of the same name.
    Open(ResultsCsv(PublishedDraws(40, 47)), formats);
    EXPECT_TRUE(session_.IsRemembered());
    EXPECT_EQ(session_.RememberedDatabase(folder_), "");
}

TEST_F(Session, LeadsNowhereWhereTheLotteryIsGone) {
    Open(ResultsCsv(PublishedDraws(40)));
    const ImportFormats formats = Remembered("dbase1.txt");
    Open(ResultsCsv(PublishedDraws(40)), formats);
    EXPECT_EQ(session_.RememberedDatabase(folder_), "");
}

TEST_F(Session, BytesThatAreNoSuchTextStayReadAsTheyWere) {
    Open(ResultsCsv(PublishedDraws(40)));
    session_.ChooseEncoding(ImportEncoding::Utf16LittleEndian);
    EXPECT_TRUE(session_.HasRows());
    EXPECT_EQ(session_.Refusal(), "");
}

TEST_F(Session, SaysWhatATextWithoutDrawsIsUntilTheUserTakesItInHand) {
    Open("<html><body><p>No numbers today.</p></body></html>");
    EXPECT_TRUE(session_.Missing().starts_with("This is a web page without any table of draws."));
    session_.ChooseRole(0, ColumnRole::Dated);
    EXPECT_EQ(session_.Missing(), "Choose the columns of at least four main numbers.");
    Open("2024-01-06,1\n2024-01-13,2\n2024-01-20,1\n");
    EXPECT_NE(session_.Missing().find("a lottery here has four to seven"), std::string::npos)
        << session_.Missing();
}

TEST_F(Session, ADrawWhoseTickIsGoneIsStillOfferedAtItsDate) {
    const auto draws = PublishedDraws(10);
    Open(ResultsCsv(draws));
    session_.Tick({session_.Taken().draws[3].row}, false);
    EXPECT_EQ(session_.Taken().draws.size(), 9U);
    const std::vector<TickedDraw> offered = session_.Offered();
    ASSERT_EQ(offered.size(), 10U);
    EXPECT_FALSE(offered[3].ticked);
    EXPECT_EQ(offered[3].draw.date, draws[3].date);
    session_.Tick({offered[3].draw.row}, true);
    EXPECT_EQ(session_.Taken().draws.size(), 10U);
}

TEST_F(Session, OneLotteryForEachEraLosesNoDraw) {
    auto draws = PublishedDraws(300, 59);
    for (const PublishedDraw& draw : PublishedDraws(500, 49, 300)) draws.push_back(draw);
    Open(ResultsCsv(draws));
    session_.ChooseEras(EraChoice::Each);
    const std::vector<PlannedLottery> lotteries = session_.NewLotteries("Lotto");
    ASSERT_EQ(lotteries.size(), 2U);
    EXPECT_EQ(lotteries[0].draws.size(), 300U);
    EXPECT_EQ(lotteries[1].draws.size(), 500U);
    EXPECT_EQ(lotteries[1].name, "Lotto 2010 to 2020");
}

}  // namespace
