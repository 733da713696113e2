// SPDX-License-Identifier: GPL-3.0-or-later
// Results files whose words, signs and calendars are those of one country.
#include <gtest/gtest.h>

#include <functional>

#include "tests/databases/made_draws.h"

namespace {

using Draws = std::vector<MadeDraw>;
using Row = std::function<std::string(const MadeDraw& draw)>;

// A file of a heading and a row a draw, the newest first.
std::string FileOf(const Draws& draws, const std::string& heading, const Row& row) {
    std::string file = heading;
    for (const MadeDraw& draw : draws) file += row(draw) + "\n";
    return file;
}

void ExpectDraws(const std::string& file, const Draws& draws) {
    const Imported imported = ImportByProposal(file);
    EXPECT_EQ(LinesOf(imported.draws.draws), LinesOf(draws))
        << NotesOf(imported.proposal) << file.substr(0, 600);
}

const Draws& WithBonus() {
    static const Draws draws = MakeDraws({.picks = 6, .highest = 49, .extras = 1}, 61);
    return draws;
}

TEST(ImportOperatorsWords, NameExtraBallsInTheirCells) {
    const Draws gordo = MakeDraws({.picks = 5,
                                   .highest = 54,
                                   .lowestExtra = 0,
                                   .highestExtra = 9,
                                   .extras = 1,
                                   .weekdays = {1}},
                                  62);
    ExpectDraws(FileOf(gordo, "",
                       [](const MadeDraw& draw) {
                           return DateBy("D/M/Y", draw.date) + "," + Joined(draw.numbers, ",") +
                                  ",Nº Clave (Reintegro) " + Joined(draw.extras, "");
                       }),
                gordo);
    ExpectDraws(FileOf(WithBonus(), "",
                       [](const MadeDraw& draw) {
                           return DateBy("D-M-Y", draw.date) + "\t" + Joined(draw.numbers, " - ") +
                                  "\tC(" + Joined(draw.extras, "") + ")\tR(" +
                                  std::to_string(draw.numbers[0] % 10) + ")";
                       }),
                WithBonus());
}

TEST(ImportOperatorsWords, NameExtraBallsInTheCellBefore) {
    ExpectDraws(FileOf(WithBonus(), "Lotto Results History\n\n",
                       [](const MadeDraw& draw) {
                           return "Lotto " + DateBy("w D/M/Y", draw.date) + ": " +
                                  Joined(draw.numbers, " ", true) +
                                  " Bonus: " + Joined(draw.extras, "", true);
                       }),
                WithBonus());
    ExpectDraws(FileOf(WithBonus(), "",
                       [](const MadeDraw& draw) {
                           return DateBy("Y-M-D", draw.date) + " " + Joined(draw.numbers, " ") +
                                  " + " + Joined(draw.extras, "");
                       }),
                WithBonus());
}

TEST(ImportOperatorsWords, PlusBetweenAllNumbersTellsNothing) {
    ExpectDraws(FileOf(WithBonus(), "Draw Date Result\n",
                       [](const MadeDraw& draw) {
                           return DateBy("D/M/Y", draw.date) + " " + Joined(draw.numbers, " + ") +
                                  " + " + Joined(draw.extras, "");
                       }),
                WithBonus());
}

TEST(ImportOperatorsWords, ColonsBehindDatesAndCommasBehindNumbers) {
    ExpectDraws(FileOf(WithBonus(), "",
                       [](const MadeDraw& draw) {
                           return DateBy("D b Y", draw.date) + ": " + Joined(draw.numbers, ", ") +
                                  " (" + Joined(draw.extras, "") + ")";
                       }),
                WithBonus());
}

TEST(ImportOperatorsWords, CountedHeadingsOfExtraBallsAreNoSecondDraw) {
    const Draws draws = MakeDraws({.picks = 7, .highest = 35, .extras = 4}, 70);
    std::string heading = "Dragning;Datum";
    for (int i = 1; i <= 7; ++i) heading += ";Tal " + std::to_string(i);
    for (int i = 1; i <= 4; ++i) heading += ";Tilläggstal " + std::to_string(i);
    int number = 1000;
    ExpectDraws(FileOf(draws, heading + "\n",
                       [&](const MadeDraw& draw) {
                           return std::to_string(--number) + ";" + DateBy("Y-M-D", draw.date) +
                                  ";" + Joined(draw.numbers, ";") + ";" + Joined(draw.extras, ";");
                       }),
                draws);
}

TEST(ImportOperatorsWords, OrdinalsHeadBalls) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 40, .extras = 1, .ascending = false}, 63);
    const Row row = [](const MadeDraw& draw) {
        std::string strike;
        for (std::size_t i = 0; i < 4; ++i) strike += "," + std::to_string(draw.numbers[i]);
        return DateBy("D/M/Y", draw.date) + "," + Joined(draw.numbers, ",") + "," +
               Joined(draw.extras, "") + "," + std::to_string(draw.numbers[0] % 10 + 1) + strike;
    };
    ExpectDraws(FileOf(draws,
                       "Draw Date,1st,2nd,3rd,4th,5th,6th,Bonus,Power Ball,Strike 1,Strike 2,"
                       "Strike 3,Strike 4\n",
                       row),
                draws);
}

TEST(ImportOperatorsWords, NumbersBeforeSignsThatCannotBeReadAreRanksOfPrizes) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 45, .extras = 1, .weekdays = {7}}, 64);
    const Row row = [](const MadeDraw& draw) {
        return DateBy("Y.M.D", draw.date) + "," + std::to_string(draw.numbers[2]) +
               ",\"2,245,375,972원\"," + std::to_string(draw.numbers[3] + 30) +
               ",\"75,718,414원\"," + Joined(draw.numbers, ",") + "," + Joined(draw.extras, "");
    };
    ExpectDraws(FileOf(draws,
                       "추첨일,1등 당첨자수,1등 당첨금액,2등 당첨자수,2등 당첨금액,번호1,번호2,"
                       "번호3,번호4,번호5,번호6,보너스\n",
                       row),
                draws);
}

TEST(ImportOperatorsWords, YearsOfJapaneseErasAndOfTaiwan) {
    const Draws draws =
        MakeDraws({.picks = 6, .highest = 43, .extras = 1, .weekdays = {2, 5}, .draws = 760}, 65);
    const auto year = [](const MadeDraw& draw) { return static_cast<int>(draw.date.year()); };
    const auto balls = [](const MadeDraw& draw) {
        return "," + Joined(draw.numbers, ",", true) + "," + Joined(draw.extras, "", true);
    };
    ExpectDraws(FileOf(draws, "",
                       [&](const MadeDraw& draw) {
                           const bool heisei = year(draw) < 2019;
                           return (heisei ? "H" : "R") +
                                  std::to_string(year(draw) - (heisei ? 1988 : 2018)) +
                                  DateBy(".m.d", draw.date) + balls(draw);
                       }),
                draws);
    ExpectDraws(FileOf(draws, "",
                       [&](const MadeDraw& draw) {
                           const int counted = year(draw) - (year(draw) < 2019 ? 1988 : 2018);
                           return (year(draw) < 2019 ? "平成" : "令和") +
                                  (counted == 1 ? "元" : std::to_string(counted)) +
                                  DateBy("年m月d日", draw.date) + balls(draw);
                       }),
                draws);
    ExpectDraws(FileOf(draws, "",
                       [&](const MadeDraw& draw) {
                           return std::to_string(year(draw) - 1911) + DateBy("/M/D", draw.date) +
                                  balls(draw);
                       }),
                draws);
}

TEST(ImportOperatorsWords, MonthsOfEasternEurope) {
    const char* const polish[] = {"stycznia", "lutego",       "marca",     "kwietnia",
                                  "maja",     "czerwca",      "lipca",     "sierpnia",
                                  "września", "października", "listopada", "grudnia"};
    const char* const hungarian[] = {"január",     "február", "március",  "április",
                                     "május",      "június",  "július",   "augusztus",
                                     "szeptember", "október", "november", "december"};
    const auto of = [](const char* const* names, const MadeDraw& draw) {
        return std::string(names[static_cast<unsigned>(draw.date.month()) - 1]);
    };
    ExpectDraws(FileOf(WithBonus(), "",
                       [&](const MadeDraw& draw) {
                           return DateBy("d ", draw.date) + of(polish, draw) +
                                  DateBy(" Y;", draw.date) + Joined(draw.numbers, ";") + ";" +
                                  Joined(draw.extras, "");
                       }),
                WithBonus());
    ExpectDraws(FileOf(WithBonus(), "",
                       [&](const MadeDraw& draw) {
                           return DateBy("Y. ", draw.date) + of(hungarian, draw) +
                                  DateBy(" d.;", draw.date) + Joined(draw.numbers, ";") + ";" +
                                  Joined(draw.extras, "");
                       }),
                WithBonus());
}

TEST(ImportOperatorsWords, MonthsThatCannotBeReadAreRefusedAndNotMadeOfBalls) {
    const Draws draws =
        MakeDraws({.picks = 6, .highest = 45, .weekdays = {1, 2, 3, 4, 5, 6, 7}, .draws = 300}, 66);
    const Imported imported = ImportByProposal(FileOf(draws, "", [](const MadeDraw& draw) {
        return DateBy("d ตุลาคม Y\t", draw.date) + Joined(draw.numbers, " ");
    }));
    EXPECT_NE(imported.proposal.refusal.find("No dates"), std::string::npos)
        << NotesOf(imported.proposal);
}

TEST(ImportOperatorsWords, OfTwoDrawsNumberedAlikeTheFirstIsKept) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .extras = 1, .ascending = false}, 67);
    const Draws seconds =
        MakeDraws({.picks = 6, .highest = 49, .extras = 1, .ascending = false}, 68);
    std::string file =
        "annee_numero_de_tirage;1er_ou_2eme_tirage;date_de_tirage;boule_1;boule_2;boule_3;boule_4;"
        "boule_5;boule_6;boule_complementaire\n";
    for (std::size_t i = 0; i < draws.size(); ++i) {
        const std::string number = DateBy("Y", draws[i].date) + std::to_string(100 + i % 104);
        for (const auto* draw : {&seconds[i], &draws[i]}) {
            file += number + (draw == &draws[i] ? ";1;" : ";2;") + DateBy("YMD", draw->date) + ";" +
                    Joined(draw->numbers, ";") + ";" + Joined(draw->extras, "") + "\n";
        }
    }
    ExpectDraws(file, draws);
}

TEST(ImportOperatorsWords, OneHeadingOverSixCellsPutsNothingInLine) {
    ExpectDraws(FileOf(WithBonus(), "Date,Numbers,Bonus\n",
                       [](const MadeDraw& draw) {
                           return DateBy("D/M/Y", draw.date) + "," + Joined(draw.numbers, ",") +
                                  "," + Joined(draw.extras, "");
                       }),
                WithBonus());
}

TEST(ImportOperatorsWords, TooManyNumbersAreToldByTheRightSeparator) {
    const Draws draws = MakeDraws({.picks = 15, .highest = 25}, 69);
    const Imported imported = ImportByProposal(FileOf(draws, "", [](const MadeDraw& draw) {
        return DateBy("D/M/Y", draw.date) + "\t" + Joined(draw.numbers, "\t");
    }));
    EXPECT_NE(imported.proposal.refusal.find("four to seven"), std::string::npos)
        << imported.proposal.refusal;
    EXPECT_EQ(imported.proposal.mapping.separator, ImportSeparator::Tab);
}

TEST(ImportOperatorsWords, TitleOfAPageGoesBeforeItsTablesForLayout) {
    const std::string page =
        "<html><head><title>Irish Lotto</title></head><body><table><tr><td>Home</td></tr></table>"
        "<table><tr><th>Date</th><th>Numbers</th><th>Bonus</th></tr>" +
        FileOf(WithBonus(), "",
               [](const MadeDraw& draw) {
                   return "<tr><td>" + DateBy("D/M/Y", draw.date) + "</td><td>" +
                          Joined(draw.numbers, " ") + "</td><td>" + Joined(draw.extras, "") +
                          "</td></tr>";
               }) +
        "</table></body></html>";
    ExpectDraws(page, WithBonus());
    EXPECT_NE(ImportByProposal(page).proposal.title.find("Irish"), std::string::npos);
}

}  // namespace
