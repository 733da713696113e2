// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_draws.h"

#include <gtest/gtest.h>

#include "databases/import_balls.h"
#include "databases/import_eras.h"
#include "tests/databases/made_draws.h"

namespace {

using Lines = std::vector<std::string>;
using enum ColumnRole;

// Date, four numbers and an extra ball, separated by commas.
ImportMapping FourAndOne() {
    ImportMapping mapping;
    mapping.columns = {Dated, Number, Number, Number, Number, Extra, Nothing};
    mapping.picks = 4;
    return mapping;
}

ImportedDraws Read(std::string_view text, const ImportMapping& mapping = FourAndOne(),
                   const std::set<std::size_t>& unticked = {}) {
    return ReadDraws(ImportTable(text, mapping.separator), mapping, ImportRulesOfDates(), unticked);
}

Lines Reasons(const ImportedDraws& imported) {
    Lines reasons;
    for (const LeftOutRow& row : imported.leftOut) {
        reasons.push_back(std::to_string(row.line) + ": " + row.why);
    }
    return reasons;
}

TEST(ImportDraws, AreNewestFirstWhateverTheOrderOfTheRows) {
    const ImportedDraws imported =
        Read("2024-01-03,4,3,2,1,9\n2024-01-09,5,6,7,8,\n2024-01-01,1,2,3,4,7\n");
    EXPECT_EQ(LinesOf(imported.draws),
              (Lines{"2024-01-09: 5, 6, 7, 8", "2024-01-03: 4, 3, 2, 1 + 9",
                     "2024-01-01: 1, 2, 3, 4 + 7"}));
    EXPECT_EQ(imported.draws[0].row, 1U);
    EXPECT_EQ(imported.draws[0].line, 2);
    EXPECT_TRUE(imported.leftOut.empty());
}

TEST(ImportDraws, LeaveRowsOutWithAReason) {
    const ImportedDraws imported = Read(
        "Results\nDate,Ball 1,Ball 2,Ball 3,Ball 4,Bonus\n-----,--,--,--,--,--\n"
        "2024-01-01,1,2,3,4,7\n31/02/2024,1,2,3,4,5\nTotal,4,5,6,7,8\n,4,5,6,7,8\n"
        "2024-01-02,1,2,3,,7\n2024-01-03,1,2,3,100,7\n2024-01-04,1,2,2,4,7\n"
        "2024-01-05,1,2,3,4,x\n2024-01-01,4,3,2,1,7\n2024-01-01,5,6,7,8,9\n2024-01-08,1,2,3,5,6\n");
    EXPECT_EQ(LinesOf(imported.draws),
              (Lines{"2024-01-08: 1, 2, 3, 5 + 6", "2024-01-01: 1, 2, 3, 4 + 7"}));
    EXPECT_EQ(
        Reasons(imported),
        (Lines{"1: A text between the draws.", "2: A heading.", "3: A line between the draws.",
               "5: \"31/02/2024\" is no date.", "6: \"Total\" is no date.", "7: There is no date.",
               "8: Only 3 numbers stand there.", "9: \"100\" is no number from 1 to 99.",
               "10: 2 stands there twice.", "11: \"x\" is no extra ball.",
               "12: The same draw stands in row 4.",
               "13: Another draw of 01 Jan 2024 stands in row 4."}));
    EXPECT_EQ(imported.leftOut[3].text, "31/02/2024, 1, 2, 3, 4, 5");
    EXPECT_EQ(imported.leftOut[11].reason, LeftOut::SecondDraw);
}

TEST(ImportDraws, LeaveOutWhatTheUserUnticks) {
    const ImportedDraws imported =
        Read("2024-01-01,1,2,3,4,7\n2024-01-02,1,2,3,5,7\n", FourAndOne(), {0});
    EXPECT_EQ(LinesOf(imported.draws), Lines{"2024-01-02: 1, 2, 3, 5 + 7"});
    EXPECT_EQ(Reasons(imported), Lines{"1: Left out by you."});
}

TEST(ImportDraws, OfOneDateAreAllKeptWhereTheMappingSaysSo) {
    ImportMapping mapping = FourAndOne();
    mapping.sameDate = SameDate::KeepAll;
    const std::string_view text =
        "2024-01-02,5,6,7,8,9\n2024-01-02,1,2,3,4,7\n2024-01-01,1,2,3,4,7\n";
    EXPECT_EQ(LinesOf(Read(text, mapping).draws),
              (Lines{"2024-01-02: 5, 6, 7, 8 + 9", "2024-01-02: 1, 2, 3, 4 + 7",
                     "2024-01-01: 1, 2, 3, 4 + 7"}));
    EXPECT_EQ(
        LinesOf(Read("2024-01-01,1,2,3,4,7\n2024-01-02,1,2,3,4,7\n2024-01-02,5,6,7,8,9\n", mapping)
                    .draws)[0],
        "2024-01-02: 5, 6, 7, 8 + 9");
}

TEST(ImportDraws, OfOneDateGoByMarksAndNumbersOfDraws) {
    ImportMapping mapping = FourAndOne();
    EXPECT_EQ(LinesOf(Read("2024-01-02,5,6,7,8,9,Bonus draw\n2024-01-02,1,2,3,4,7,\n").draws),
              Lines{"2024-01-02: 1, 2, 3, 4 + 7"});
    mapping.drawNumberColumn = 6;
    EXPECT_EQ(LinesOf(Read("2024-01-02,5,6,7,8,9,12\n2024-01-02,1,2,3,4,7,11\n", mapping).draws),
              Lines{"2024-01-02: 1, 2, 3, 4 + 7"});
}

TEST(ImportDraws, OfOneGameAreTaken) {
    ImportMapping mapping = FourAndOne();
    mapping.productColumn = 6;
    mapping.product = "Lotto";
    const ImportedDraws imported =
        Read("2024-01-01,1,2,3,4,7,Lotto\n2024-01-01,5,6,7,8,9,Lotto Plus\n", mapping);
    EXPECT_EQ(LinesOf(imported.draws), Lines{"2024-01-01: 1, 2, 3, 4 + 7"});
    EXPECT_EQ(Reasons(imported), Lines{"2: A draw of \"Lotto Plus\"."});
}

TEST(ImportDraws, AreReadFromSeveralNumbersInAField) {
    ImportMapping mapping;
    mapping.separator = ImportSeparator::Semicolon;
    mapping.columns = {Dated, Numbers};
    mapping.picks = 5;
    EXPECT_EQ(LinesOf(Read("2024-01-01;1-2-3-4-5 + 7, 8\n", mapping).draws),
              Lines{"2024-01-01: 1, 2, 3, 4, 5 + 7"});
    mapping.keptExtra = 2;
    EXPECT_EQ(LinesOf(Read("2024-01-01;1-2-3-4-5 + 7, 8\n", mapping).draws),
              Lines{"2024-01-01: 1, 2, 3, 4, 5 + 8"});
    mapping.columns = {Dated, Numbers, Extra};
    EXPECT_EQ(LinesOf(Read("2024-01-01;1 2 3 4 5;3 9\n", mapping).draws),
              Lines{"2024-01-01: 1, 2, 3, 4, 5 + 9"});
}

TEST(ImportDraws, MayHaveTwoCountsOfNumbersWhereBothAreCommon) {
    std::string text;
    Date date = std::chrono::year(2024) / 1 / 1;
    for (int i = 0; i < 60; ++i) {
        date = DaysAfter(date, 7);
        text += IsoDate(date) + (i < 30 ? ",1,2,3,4,5\n" : ",1,2,3,4,5,6\n");
    }
    ImportMapping mapping;
    mapping.columns = {Dated, Number, Number, Number, Number, Number, Number};
    EXPECT_EQ(Read(text, mapping).draws.size(), 60U);
    text += "2030-01-01,1,2,3,4\n";
    EXPECT_EQ(Reasons(Read(text, mapping)), Lines{"61: Only 4 numbers stand there."});
}

TEST(ImportDraws, HaveNoNumberFarFromAllOthers) {
    const auto draws = MakeDraws({.picks = 6, .highest = 49, .draws = 300}, 3);
    std::string text;
    for (std::size_t i = 0; i < draws.size(); ++i) {
        std::vector<int> numbers = draws[i].numbers;
        if (i == 150) numbers[2] = 94;
        text += IsoDate(draws[i].date) + "," + Joined(numbers, ",") + "\n";
    }
    ImportMapping mapping;
    mapping.columns = {Dated, Number, Number, Number, Number, Number, Number};
    EXPECT_EQ(Reasons(Read(text, mapping)), Lines{"151: 94 stands in no other draw."});
}

TEST(ImportDraws, KeepTheNewest) {
    ImportedDraws imported;
    Date date = std::chrono::year(2024) / 1 / 1;
    for (std::size_t i = 0; i < mostImportedDraws + 3; ++i) {
        imported.draws.push_back(
            {.date = date, .numbers = {1, 2, 3, 4}, .row = i, .line = static_cast<int>(i) + 1});
        date = DaysAfter(date, -1);
    }
    KeepNewest(imported);
    EXPECT_EQ(imported.draws.size(), 2999U);
    ASSERT_EQ(imported.leftOut.size(), 3U);
    EXPECT_EQ(imported.leftOut[0].line, 3000);
    EXPECT_EQ(imported.leftOut[0].reason, LeftOut::TooOld);
    EXPECT_EQ(imported.leftOut[0].why, "Older than the newest 2,999 draws.");
    KeepNewest(imported);
    EXPECT_EQ(imported.leftOut.size(), 3U);
}

TEST(ImportDraws, AreComparedAsSets) {
    const ImportedDraw one{.date = {}, .numbers = {3, 1, 2, 4}, .extra = 7};
    EXPECT_TRUE(one.SameNumbers({.date = {}, .numbers = {1, 2, 3, 4}, .extra = 7}));
    EXPECT_FALSE(one.SameNumbers({.date = {}, .numbers = {1, 2, 3, 4}, .extra = 8}));
    EXPECT_FALSE(one.SameNumbers({.date = {}, .numbers = {1, 2, 3, 5}, .extra = 7}));
    EXPECT_EQ(one.Count(), 4);
}

TEST(ImportMapping, SaysWhatItLacks) {
    EXPECT_EQ(MissingInMapping(FourAndOne()), "");
    ImportMapping mapping;
    EXPECT_EQ(MissingInMapping(mapping), "Choose the column of the date.");
    mapping.columns = {Dated, Number, Number, Number};
    EXPECT_EQ(MissingInMapping(mapping), "Choose the columns of at least four main numbers.");
    mapping.columns.assign(9, Number);
    mapping.columns[0] = Dated;
    EXPECT_EQ(MissingInMapping(mapping), "Choose at most seven columns of main numbers.");
    mapping.columns = {Dated, Numbers};
    EXPECT_EQ(MissingInMapping(mapping), "");
    mapping.picks = 8;
    EXPECT_EQ(MissingInMapping(mapping), "A lottery has four to seven main numbers.");
    EXPECT_EQ(RoleOf(mapping, 1), Numbers);
    EXPECT_EQ(RoleOf(mapping, 9), Nothing);
}

std::vector<ImportedDraw> DrawsOf(const std::vector<MadeDraw>& made) {
    std::vector<ImportedDraw> draws;
    for (const MadeDraw& from : made) {
        ImportedDraw draw{.date = from.date};
        for (std::size_t i = 0; i < from.numbers.size(); ++i) {
            draw.numbers.at(i) = static_cast<std::int16_t>(from.numbers[i]);
        }
        if (!from.extras.empty()) draw.extra = static_cast<std::int16_t>(from.extras.front());
        draw.row = draws.size();
        draws.push_back(draw);
    }
    return draws;
}

// Draws by one lottery after the other, the newest first.
std::vector<ImportedDraw> OneAfterTheOther(std::vector<MadeLottery> lotteries, std::uint32_t seed) {
    std::vector<MadeDraw> all;
    for (MadeLottery& lottery : lotteries) {
        if (!all.empty()) lottery.last = DaysAfter(all.back().date, -1);
        const auto draws = MakeDraws(lottery, seed++);
        all.insert(all.end(), draws.begin(), draws.end());
    }
    return DrawsOf(all);
}

TEST(ImportEras, AreToldWhereTheRulesChanged) {
    const auto draws = OneAfterTheOther({{.picks = 6, .highest = 59, .extras = 1, .draws = 300},
                                         {.picks = 6, .highest = 49, .extras = 1, .draws = 400}},
                                        5);
    const auto eras = FindEras(draws, true);
    ASSERT_EQ(eras.size(), 2U);
    EXPECT_EQ(RulesInWords(eras[0].rules), "6 of 1 to 59, bonus from the same numbers");
    EXPECT_EQ(RulesInWords(eras[1].rules), "6 of 1 to 49, bonus from the same numbers");
    EXPECT_NEAR(static_cast<double>(eras[0].count), 300, 3);
    EXPECT_EQ(eras[0].count + eras[1].count, draws.size());
    EXPECT_EQ(eras[0].change, "numbers above 49 from " + FullDate(eras[0].from) + " on");
    EXPECT_EQ(eras[1].change, "");
    EXPECT_EQ(eras[0].to, draws.front().date);
    EXPECT_EQ(eras[1].from, draws.back().date);
}

TEST(ImportEras, AreNotMadeByChance) {
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        const MadeLottery lottery{.picks = 5,
                                  .highest = 50,
                                  .highestExtra = 12,
                                  .extras = 1,
                                  .draws = 100 + static_cast<int>(seed) * 20};
        EXPECT_EQ(FindEras(DrawsOf(MakeDraws(lottery, seed)), false).size(), 1U) << seed;
    }
}

TEST(ImportEras, AreToldByTheExtraBallAndTheCountToo) {
    const auto draws = OneAfterTheOther(
        {{.picks = 5, .highest = 70, .highestExtra = 25, .extras = 1, .draws = 200},
         {.picks = 5, .highest = 75, .highestExtra = 15, .extras = 1, .draws = 200}},
        9);
    const auto eras = FindEras(draws, false);
    ASSERT_EQ(eras.size(), 2U);
    EXPECT_EQ(eras[0].change,
              "no numbers above 70, extra balls above 15 from " + FullDate(eras[0].from) + " on");
    const auto counts = OneAfterTheOther(
        {{.picks = 7, .highest = 47, .draws = 100}, {.picks = 6, .highest = 47, .draws = 100}}, 9);
    ASSERT_EQ(FindEras(counts, false).size(), 2U);
    EXPECT_EQ(FindEras(counts, false)[0].count, 100U);
    EXPECT_EQ(FindEras(counts, false)[0].rules.picks, 7);
    EXPECT_TRUE(FindEras({}, false).empty());
}

TEST(ImportEras, MayBeTakenAlone) {
    ImportedDraws imported;
    imported.draws =
        OneAfterTheOther({{.highest = 59, .draws = 200}, {.highest = 49, .draws = 300}}, 5);
    const auto eras = FindEras(imported.draws, false);
    ASSERT_EQ(eras.size(), 2U);
    const ImportedDraws newest = OnlyEra(imported, eras[0]);
    EXPECT_EQ(newest.draws.size(), eras[0].count);
    EXPECT_EQ(newest.leftOut.size(), eras[1].count);
    EXPECT_EQ(newest.leftOut[0].reason, LeftOut::OlderRules);
    EXPECT_EQ(newest.draws.front().date, imported.draws.front().date);
    EXPECT_EQ(OnlyEra(imported, eras[1]).draws.back().date, imported.draws.back().date);
}

TEST(ImportEras, WarnOfNumbersThatAreNotCounted) {
    ImportRules rules{.picks = 5, .highest = 70, .highestExtra = 70, .hasBonus = false};
    EXPECT_EQ(CautionAbout(rules), "");
    rules.highest = 75;
    EXPECT_NE(CautionAbout(rules).find("Numbers above 70 are not counted"), std::string::npos);
    rules = {.picks = 5, .highest = 49, .highestExtra = 90, .hasBonus = false};
    EXPECT_NE(CautionAbout(rules), "");
}

TEST(ImportProposal, TellsFewRowsByTheirHeading) {
    const Imported bonus = ImportByProposal(
        "Date,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Ball 6,Bonus\n"
        "2024-01-06,17,3,44,21,9,30,5\n2024-01-03,1,2,3,44,5,6,7\n");
    EXPECT_TRUE(bonus.proposal.mapping.extraFromSameDrum);
    const Imported star = ImportByProposal(
        "Date,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Lucky Star 1\n"
        "2024-01-06,17,3,44,21,9,10\n2024-01-03,1,2,3,44,5,12\n");
    EXPECT_FALSE(star.proposal.mapping.extraFromSameDrum);
    EXPECT_EQ(LinesOf(star.draws.draws)[0], "2024-01-06: 17, 3, 44, 21, 9 + 10");
}

TEST(ImportProposal, SaysWhyThereAreNoDraws) {
    const auto refusal = [](std::string_view text) {
        return ImportByProposal(text).proposal.refusal;
    };
    EXPECT_NE(refusal("a,b,c\n1,2,3\n").find("No dates are to be seen"), std::string::npos);
    EXPECT_NE(refusal("<html><body><p>Hello</p></body></html>").find("web page without any table"),
              std::string::npos);
    for (const char* text : {"{\"draws\": [{\"date\": \"2024-01-06\", \"balls\": [1, 2]}]}",
                             "[ {\n\"a\": 1}]", "{}"}) {
        EXPECT_TRUE(refusal(text).starts_with("This is JSON")) << text;
    }
    for (const char* text :
         {" <?xml version=\"1.0\"?>\n<draws><draw/></draws>", "<draws></draws>"}) {
        EXPECT_TRUE(refusal(text).starts_with("This is XML")) << text;
    }
    for (const char* text : {"[1] 2 3", "[", "{1}", "a < b"}) {
        EXPECT_TRUE(refusal(text).starts_with("No dates")) << text;
    }
    std::string threes;
    std::string twenty;
    for (const MadeDraw& draw : MakeDraws({.picks = 20, .highest = 80, .draws = 50}, 1)) {
        twenty += IsoDate(draw.date) + "," + Joined(draw.numbers, ",") + "\n";
        threes += IsoDate(draw.date) + "," + std::to_string(draw.numbers[0] % 10) + "\n";
    }
    EXPECT_NE(refusal(threes).find("four to seven"), std::string::npos);
    EXPECT_NE(refusal(twenty).find("four to seven"), std::string::npos);
    EXPECT_EQ(refusal("%PDF-1.4").substr(0, 14), "This is a PDF.");
}

TEST(ImportProposal, NamesTheLottery) {
    EXPECT_EQ(NameFromSource("uk_lotto-2014.csv"), "Uk lotto 2014");
    EXPECT_EQ(NameFromSource("https://www.example.org/files/EuroJackpot-results.csv?year=2024"),
              "EuroJackpot");
    EXPECT_EQ(NameFromSource("results.csv"), "");
    EXPECT_EQ(NameFromSource("C:\\draws\\my lotto.txt"), "My lotto");
}

}  // namespace
