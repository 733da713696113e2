// SPDX-License-Identifier: GPL-3.0-or-later
// Results files in the shapes that operators and archives around the world give them.
#include <gtest/gtest.h>

#include <functional>

#include "tests/databases/made_draws.h"

namespace {

using Draws = std::vector<MadeDraw>;
using Row = std::function<std::string(const MadeDraw& draw, int number, Chance& chance)>;

enum class Rows { NewestFirst, OldestFirst };

// A file of a heading and a row a draw; `number` of a row counts draws from the oldest.
std::string FileOf(const Draws& draws, const std::string& heading, Rows order, const Row& row,
                   const std::string& lineEnd = "\r\n") {
    Chance chance(7);
    std::string file = heading;
    if (!heading.empty()) file += lineEnd;
    const int count = static_cast<int>(draws.size());
    for (int i = 0; i < count; ++i) {
        const int index = order == Rows::NewestFirst ? i : count - 1 - i;
        const MadeDraw& draw = draws[static_cast<std::size_t>(index)];
        file += row(draw, 1000 + count - index, chance) + lineEnd;
    }
    return file;
}

void ExpectDraws(const std::string& file, const Draws& draws,
                 Region::Order order = Region::Order::DayMonthYear) {
    const Imported imported = ImportByProposal(file, ImportRulesOfDates(order));
    EXPECT_EQ(LinesOf(imported.draws.draws), LinesOf(draws))
        << NotesOf(imported.proposal) << file.substr(0, 600);
}

std::string Money(Chance& chance) {
    return std::to_string(chance.From(0, 900000)) + "." + std::to_string(chance.From(10, 99));
}

std::string GermanMoney(Chance& chance) {
    return std::to_string(chance.From(1, 99)) + "." + std::to_string(chance.From(100, 999)) + "." +
           std::to_string(chance.From(100, 999)) + ",50 EUR";
}

TEST(ImportOperators, EuroJackpotWithStakes) {
    const Draws draws = MakeDraws(
        {.picks = 5, .highest = 50, .highestExtra = 12, .extras = 2, .weekdays = {3, 6}}, 1);
    const Row row = [](const MadeDraw& draw, int, Chance& chance) {
        return DateBy("D.M.Y", draw.date) + ";" + Joined(draw.numbers, ";") + ";" +
               Joined(draw.extras, ";") + ";" + GermanMoney(chance) + ";" +
               std::to_string(chance.Below(3));
    };
    const std::string heading = "Datum;5 aus 50;;;;;Eurozahlen;;Spieleinsatz;Anzahl Kl. 1";
    ExpectDraws(FileOf(draws, heading, Rows::NewestFirst, row), draws);
    ExpectDraws(FileOf(draws, "Datum;Z1;Z2;Z3;Z4;Z5;Euro1;Euro2;Spieleinsatz;Gewinner",
                       Rows::OldestFirst, row),
                draws);
    ExpectDraws(FileOf(draws, "", Rows::NewestFirst, row), draws);
}

TEST(ImportOperators, SuperEnalottoWithJollyAndSuperStar) {
    Draws draws = MakeDraws({.picks = 6, .highest = 90, .extras = 1, .weekdays = {3, 5, 7}}, 2);
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        return std::to_string(number) + "\t" + DateBy("D/M/Y", draw.date) + "\t" +
               Joined(draw.numbers, "\t") + "\t" + std::to_string(draw.extras[0]) + "\t" +
               std::to_string(chance.From(1, 90));
    };
    ExpectDraws(FileOf(draws, "Concorso\tData\tN1\tN2\tN3\tN4\tN5\tN6\tJolly\tSuperStar",
                       Rows::NewestFirst, row, "\n"),
                draws);
}

TEST(ImportOperators, ElGordoWithOneHeadingOverFiveColumns) {
    const Draws draws = MakeDraws({.picks = 5,
                                   .highest = 54,
                                   .lowestExtra = 0,
                                   .highestExtra = 9,
                                   .extras = 1,
                                   .weekdays = {1}},
                                  3);
    const Row row = [](const MadeDraw& draw, int, Chance&) {
        return DateBy("d/M/Y", draw.date) + "," + Joined(draw.numbers, ",") + "," +
               Joined(draw.extras, ",");
    };
    ExpectDraws(FileOf(draws, "FECHA,COMB. GANADORA,,,,,CLAVE", Rows::NewestFirst, row), draws);
}

TEST(ImportOperators, PrimitivaWithComplementarioReintegroAndJoker) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .extras = 1, .weekdays = {5, 7}}, 4);
    const Row row = [](const MadeDraw& draw, int, Chance& chance) {
        return DateBy("d/M/Y", draw.date) + "," + Joined(draw.numbers, ",", true) + "," +
               Joined(draw.extras, ",") + "," + std::to_string(chance.Below(10)) + "," +
               std::to_string(chance.From(1000000, 9999999));
    };
    ExpectDraws(FileOf(draws, "FECHA,COMB. GANADORA,,,,,,COMP.,R.,JOKER", Rows::NewestFirst, row),
                draws);
    ExpectDraws(FileOf(draws, "", Rows::NewestFirst, row), draws);
}

TEST(ImportOperators, LotoSixWithJapaneseHeadings) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 43, .extras = 1, .weekdays = {2, 5}}, 5);
    std::string heading = "開催回,日付,";
    for (int i = 1; i <= 6; ++i) heading += "第" + std::to_string(i) + "数字,";
    heading += "BONUS数字,1等口数,2等口数,1等賞金,キャリーオーバー";
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        return std::to_string(number) + "," + DateBy("Y/m/d", draw.date) + "," +
               Joined(draw.numbers, ",") + "," + Joined(draw.extras, ",") + "," +
               std::to_string(chance.Below(4)) + "," + std::to_string(chance.From(1, 12)) + "," +
               std::to_string(chance.Below(600000000)) + ",0";
    };
    ExpectDraws(FileOf(draws, heading, Rows::OldestFirst, row), draws);
    const Row kanji = [](const MadeDraw& draw, int number, Chance&) {
        return "第" + std::to_string(number) + "回\t" + DateBy("Y年m月d日", draw.date) + "(月)\t" +
               Joined(draw.numbers, "\t", true) + "\t(" + Joined(draw.extras, "", true) + ")";
    };
    ExpectDraws(
        FileOf(draws, "回号\t抽せん日\t本数字\t\t\t\t\t\tボーナス数字", Rows::NewestFirst, kanji),
        draws);
}

TEST(ImportOperators, TotoWithCountsOfHighAndLow) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .extras = 1, .weekdays = {2, 5}}, 6);
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        const auto low = std::count_if(draw.numbers.begin(), draw.numbers.end(),
                                       [](int ball) { return ball < 25; });
        std::string text = std::to_string(number) + "," + DateBy("Y-M-D", draw.date) + "," +
                           Joined(draw.numbers, ",") + "," + Joined(draw.extras, ",") + ",";
        text += std::to_string(chance.Below(4)) + "," + std::to_string(low) + "," +
                std::to_string(6 - low);
        for (int decade = 0; decade < 5; ++decade) text += "," + std::to_string(chance.Below(4));
        return text + "," + std::to_string(chance.Below(5)) + "," + Money(chance);
    };
    ExpectDraws(FileOf(draws,
                       "Draw,Date,Winning Number 1,2,3,4,5,6,Additional Number,From Last,Low,High,"
                       "1-10,11-20,21-30,31-40,41-50,Division 1 Winners,Division 1 Prize",
                       Rows::NewestFirst, row, "\n"),
                draws);
}

TEST(ImportOperators, LottoMaxWithMaxMillionsOnTheSameDate) {
    const Draws draws = MakeDraws({.picks = 7, .highest = 50, .extras = 1, .weekdays = {3, 6}}, 7);
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        const auto line = [&](int sequence, const std::vector<int>& numbers, int bonus) {
            return "LOTTO MAX," + std::to_string(number) + "," + std::to_string(sequence) + ",\"" +
                   DateBy("Y-M-D", draw.date) + "\"," + Joined(numbers, ",") + "," +
                   std::to_string(bonus);
        };
        std::string text = line(0, draw.numbers, draw.extras[0]);
        for (int sequence = 1; number % 6 == 0 && sequence < 3; ++sequence) {
            std::vector<int> others;
            for (int i = 0; i < 7; ++i) others.push_back(i * 7 + chance.From(1, 7));
            text += "\r\n" + line(sequence, others, 0);
        }
        return text;
    };
    const std::string file = FileOf(
        draws,
        "PRODUCT,DRAW NUMBER,SEQUENCE NUMBER,DRAW DATE,NUMBER DRAWN 1,NUMBER DRAWN 2,NUMBER DRAWN "
        "3,NUMBER DRAWN 4,NUMBER DRAWN 5,NUMBER DRAWN 6,NUMBER DRAWN 7,BONUS NUMBER",
        Rows::OldestFirst, row);
    ExpectDraws(file, draws);
    const Imported imported = ImportByProposal(file);
    EXPECT_EQ(
        std::count_if(imported.draws.leftOut.begin(), imported.draws.leftOut.end(),
                      [](const LeftOutRow& left) { return left.reason == LeftOut::SecondDraw; }),
        40);
}

TEST(ImportOperators, MegaSenaWithCitiesAndMoney) {
    const Draws draws =
        MakeDraws({.picks = 6, .highest = 60, .ascending = false, .weekdays = {3, 5, 7}}, 8);
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        return std::to_string(number) + ";" + DateBy("D/M/Y", draw.date) + ";" +
               Joined(draw.numbers, ";", true) + ";" + std::to_string(chance.Below(3)) +
               ";\"SAO PAULO/SP; CURITIBA/PR\";R$ 1.234.567,89;" +
               std::to_string(chance.From(20, 99)) + ";R$ 45.678,90";
    };
    ExpectDraws(FileOf(draws,
                       "Concurso;Data do Sorteio;Bola1;Bola2;Bola3;Bola4;Bola5;Bola6;Ganhadores 6 "
                       "acertos;Cidade / UF;Rateio 6 acertos;Ganhadores 5 acertos;Rateio 5 acertos",
                       Rows::OldestFirst, row),
                draws);
    ExpectDraws(FileOf(draws, "", Rows::OldestFirst, row), draws);
}

TEST(ImportOperators, EurodreamsWithTwoDatesAndTheNumbersAgain) {
    const Draws draws = MakeDraws({.picks = 6,
                                   .highest = 40,
                                   .highestExtra = 5,
                                   .extras = 1,
                                   .ascending = false,
                                   .weekdays = {2, 5}},
                                  9);
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        std::vector<int> sorted = draw.numbers;
        std::sort(sorted.begin(), sorted.end());
        return std::to_string(2024000 + number) + ";LUNDI;" + DateBy("D/M/Y", draw.date) + ";" +
               DateBy("D/M/Y", DaysAfter(draw.date, 60)) + ";" + Joined(draw.numbers, ";") + ";" +
               Joined(draw.extras, "") + ";" + Joined(sorted, "-") + "+" + Joined(draw.extras, "") +
               ";" + std::to_string(chance.Below(2)) + ";20000,00;" +
               std::to_string(chance.Below(9)) + ";EUR;";
    };
    ExpectDraws(FileOf(draws,
                       "annee_numero_de_tirage;jour_de_tirage;date_de_tirage;date_de_forclusion;"
                       "boule_1;boule_2;boule_3;boule_4;boule_5;boule_6;numero_dream;combinaison_"
                       "gagnante_en_ordre_croissant;nombre_de_gagnant_au_rang1;rapport_du_rang1;"
                       "nombre_de_gagnant_au_rang2;devise;",
                       Rows::NewestFirst, row),
                draws);
}

TEST(ImportOperators, LotoWithASecondSetOfBalls) {
    const Draws draws = MakeDraws({.picks = 5,
                                   .highest = 49,
                                   .highestExtra = 10,
                                   .extras = 1,
                                   .ascending = false,
                                   .weekdays = {2, 4, 7}},
                                  10);
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        std::vector<int> second;
        for (int i = 0; i < 5; ++i) second.push_back(i * 9 + chance.From(1, 9));
        return std::to_string(number) + ";SAMEDI  ;" + DateBy("D/M/Y", draw.date) + ";" +
               Joined(draw.numbers, ";") + ";" + Joined(draw.extras, "") + ";" +
               std::to_string(chance.Below(2)) + ";" + Joined(second, ";") + ";3";
    };
    ExpectDraws(FileOf(draws,
                       "numero_de_tirage;jour_de_tirage;date_de_tirage;boule_1;boule_2;boule_3;"
                       "boule_4;boule_5;numero_chance;nombre_de_gagnant_au_rang1;boule_1_second_"
                       "tirage;boule_2_second_tirage;boule_3_second_tirage;boule_4_second_tirage;"
                       "boule_5_second_tirage;gagnants_second_tirage",
                       Rows::NewestFirst, row),
                draws);
}

TEST(ImportOperators, PowerballAustralia) {
    const Draws draws = MakeDraws({.picks = 7,
                                   .highest = 35,
                                   .highestExtra = 20,
                                   .extras = 1,
                                   .ascending = false,
                                   .weekdays = {5}},
                                  11);
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        std::string text = std::to_string(number) + "," + DateBy("D/M/Y", draw.date) + "," +
                           Joined(draw.numbers, ",") + "," + Joined(draw.extras, "");
        for (int division = 1; division <= 3; ++division) {
            text += "," + std::to_string(chance.Below(9 * division)) + "," + Money(chance);
        }
        return text;
    };
    ExpectDraws(FileOf(draws,
                       "Draw number,Draw date,Winning Number 1,Winning Number 2,Winning Number 3,"
                       "Winning Number 4,Winning Number 5,Winning Number 6,Winning Number 7,"
                       "Powerball Number,Division 1 winners,Division 1 amount,Division 2 winners,"
                       "Division 2 amount,Division 3 winners,Division 3 amount",
                       Rows::NewestFirst, row),
                draws);
}

TEST(ImportOperators, LottoOfTheGermanBlockWithBothExtraBallsOfTwoTimes) {
    Draws draws = MakeDraws(
        {.picks = 6, .highest = 49, .lowestExtra = 0, .highestExtra = 9, .extras = 1, .draws = 200},
        12);
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        const bool old = number < 1040;
        return DateBy("w", draw.date) + ", " + DateBy("D.M.Y", draw.date) + ";" +
               Joined(draw.numbers, "-") + ";" + (old ? std::to_string(chance.From(1, 49)) : "") +
               ";" + Joined(draw.extras, "");
    };
    ExpectDraws(FileOf(draws, "Datum;Gewinnzahlen;Zusatzzahl;Superzahl", Rows::NewestFirst, row),
                draws);
}

TEST(ImportOperators, LottoTexasWithoutAnExtraBall) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 54, .ascending = false}, 13);
    const Row row = [](const MadeDraw& draw, int, Chance&) {
        return "Lotto Texas," + DateBy("m,d,Y", draw.date) + "," + Joined(draw.numbers, ",");
    };
    const std::string file = FileOf(draws, "", Rows::OldestFirst, row, "\n");
    ExpectDraws(file, draws);
    EXPECT_EQ(ImportByProposal(file).proposal.title, "Lotto Texas");
}

TEST(ImportOperators, PowerballOfOpenDataWithTheExtraBallAmongTheNumbers) {
    const Draws draws = MakeDraws(
        {.picks = 5, .highest = 69, .highestExtra = 26, .extras = 1, .weekdays = {2, 4, 7}}, 14);
    const Row row = [](const MadeDraw& draw, int, Chance& chance) {
        return DateBy("M/D/Y", draw.date) + "," + Joined(draw.numbers, " ", true) + " " +
               TwoDigits(draw.extras[0]) + "," + std::to_string(chance.From(2, 5));
    };
    ExpectDraws(FileOf(draws, "Draw Date,Winning Numbers,Multiplier", Rows::NewestFirst, row, "\n"),
                draws);
}

TEST(ImportOperators, OpenDataWithTheTimeOfIsoDates) {
    const Draws draws = MakeDraws({.picks = 5,
                                   .highest = 60,
                                   .highestExtra = 4,
                                   .extras = 1,
                                   .weekdays = {1, 2, 3, 4, 5, 6, 7}},
                                  15);
    const Row row = [](const MadeDraw& draw, int, Chance&) {
        return "\"" + DateBy("Y-M-D", draw.date) + "T00:00:00.000\",\"" +
               Joined(draw.numbers, " ", true) + "\",\"" + Joined(draw.extras, "", true) + "\"";
    };
    ExpectDraws(
        FileOf(draws, "\"draw_date\",\"winning_numbers\",\"cash_ball\"", Rows::OldestFirst, row),
        draws);
}

TEST(ImportOperators, SetForLife) {
    const Draws draws = MakeDraws({.picks = 5,
                                   .highest = 47,
                                   .highestExtra = 10,
                                   .extras = 1,
                                   .ascending = false,
                                   .weekdays = {2, 5},
                                   .draws = 52},
                                  16);
    const Row row = [](const MadeDraw& draw, int number, Chance&) {
        return DateBy("D-b-Y", draw.date) + "," + Joined(draw.numbers, ",") + "," +
               Joined(draw.extras, "") + "," + std::to_string(number / 3 % 6 + 1) + ",Pearl " +
               std::to_string(number % 3) + "," + std::to_string(number);
    };
    ExpectDraws(FileOf(draws,
                       "DrawDate,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Life Ball,Ball Set,Machine,"
                       "DrawNumber",
                       Rows::NewestFirst, row, "\n"),
                draws);
    ExpectDraws(FileOf(draws, "", Rows::NewestFirst, row, "\n"), draws);
}

TEST(ImportOperators, MarkSixWithDrawsNumberedByYear) {
    const Draws draws =
        MakeDraws({.picks = 6, .highest = 49, .extras = 1, .weekdays = {3, 5, 7}}, 17);
    const Row row = [](const MadeDraw& draw, int number, Chance&) {
        return DateBy("y", draw.date) + "/" + std::to_string(number % 150) + "," +
               DateBy("D/M/Y", draw.date) + "," + Joined(draw.numbers, ",") + "," +
               Joined(draw.extras, "");
    };
    ExpectDraws(FileOf(draws, "Draw Number,Draw Date,Draw Result,,,,,,Extra Number",
                       Rows::NewestFirst, row),
                draws);
    ExpectDraws(FileOf(draws, "", Rows::NewestFirst, row), draws);
}

TEST(ImportOperators, PolishLottoWithCommasAmongBlanks) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .weekdays = {3, 5, 7}}, 18);
    const Row row = [](const MadeDraw& draw, int number, Chance&) {
        return std::to_string(number) + ". " + DateBy("D.M.Y", draw.date) + " " +
               Joined(draw.numbers, ",");
    };
    ExpectDraws(FileOf(draws, "", Rows::OldestFirst, row), draws);
}

TEST(ImportOperators, NordicLottoWithSevenNumbers) {
    const Draws draws = MakeDraws({.picks = 7, .highest = 34, .extras = 1, .weekdays = {7}}, 19);
    const Row row = [](const MadeDraw& draw, int, Chance&) {
        return DateBy("d.m.Y", draw.date) + ";" + Joined(draw.numbers, ", ") + ";" +
               Joined(draw.extras, "") + ";12 345 678 kr";
    };
    ExpectDraws(
        FileOf(draws, "Trekningsdato;Vinnertall;Tilleggstall;Omsetning", Rows::NewestFirst, row),
        draws);
}

TEST(ImportOperators, TableOfAWebPageWithBallsInLists) {
    const Draws draws =
        MakeDraws({.picks = 6, .highest = 47, .extras = 1, .weekdays = {4, 7}, .draws = 30}, 20);
    const Row row = [](const MadeDraw& draw, int, Chance& chance) {
        std::string balls;
        for (const int ball : draw.numbers)
            balls += "<li class=\"ball\">" + std::to_string(ball) + "</li>\n";
        return "<tr><td><a href=\"/draw\">" + DateBy("w d b Y", draw.date) + "</a></td>\n<td><ul>" +
               balls + "</ul></td><td><span>" + Joined(draw.extras, "") + "</span></td><td>&euro;" +
               std::to_string(chance.From(2, 12)) + ",000,000</td></tr>";
    };
    const std::string table =
        FileOf(draws, "<table><tr><th>Date</th><th>Numbers</th><th>Bonus</th><th>Jackpot</th></tr>",
               Rows::NewestFirst, row);
    const std::string page =
        "<!DOCTYPE html><html><head><title>Irish Lotto Results | Archive</title>"
        "<script>var a = '<table><tr><td>1</td></tr></table>';</script></head>"
        "<body><p>Results of 2025</p>" +
        table + "</table><p>17+</p></body></html>";
    ExpectDraws(page, draws);
    EXPECT_EQ(ImportByProposal(page).proposal.title, "Irish Lotto");
}

TEST(ImportOperators, TableCopiedFromAWebPage) {
    const Draws draws = MakeDraws(
        {.picks = 6, .highest = 45, .extras = 2, .ascending = false, .weekdays = {7}, .draws = 25},
        21);
    const Row row = [](const MadeDraw& draw, int number, Chance&) {
        return std::to_string(number) + "\t" + DateBy("w D/M/y", draw.date) + "\t" +
               Joined(draw.numbers, "\t") + "\t" + Joined(draw.extras, "\t");
    };
    ExpectDraws(FileOf(draws, "Draw\tDate\tWinning numbers\t\t\t\t\t\tSupps\t", Rows::NewestFirst,
                       row, "\n"),
                draws);
}

TEST(ImportOperators, LottoAmericaWithTwoBonusHeadings) {
    const Draws draws = MakeDraws(
        {.picks = 5, .highest = 52, .highestExtra = 10, .extras = 1, .weekdays = {2, 4, 7}}, 22);
    const Row row = [](const MadeDraw& draw, int, Chance& chance) {
        return DateBy("m/d/Y", draw.date) + "," + Joined(draw.numbers, ",") + "," +
               Joined(draw.extras, "") + "," + std::to_string(chance.From(2, 5)) +
               ",\"$2,340,000\"";
    };
    ExpectDraws(FileOf(draws, "Date,Ball1,Ball2,Ball3,Ball4,Ball5,Star Ball,All Star Bonus,Jackpot",
                       Rows::NewestFirst, row),
                draws, Region::Order::MonthDayYear);
    ExpectDraws(FileOf(draws, "", Rows::NewestFirst, row), draws, Region::Order::MonthDayYear);
}

TEST(ImportOperators, BarsAndLongDates) {
    const Draws draws = MakeDraws({.picks = 5,
                                   .highest = 69,
                                   .highestExtra = 26,
                                   .extras = 1,
                                   .weekdays = {2, 4, 7},
                                   .draws = 20},
                                  23);
    const Row row = [](const MadeDraw& draw, int, Chance&) {
        return "| " + DateBy("w, b d, Y", draw.date) + " | " + Joined(draw.numbers, " - ") +
               " | PB: " + Joined(draw.extras, "") + " |";
    };
    ExpectDraws(FileOf(draws, "| Date | Numbers | Powerball |\n|---|---|---|", Rows::NewestFirst,
                       row, "\n"),
                draws);
}

TEST(ImportOperators, SpreadsheetExportInUtf16) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 59, .extras = 1, .ascending = false}, 24);
    const Row row = [](const MadeDraw& draw, int, Chance&) {
        return DateBy("D/M/Y", draw.date) + "\t" + Joined(draw.numbers, "\t") + "\t" +
               Joined(draw.extras, "");
    };
    const std::string file = FileOf(draws, "Date\t1\t2\t3\t4\t5\t6\tBonus", Rows::NewestFirst, row);
    std::string wide = "\xFF\xFE";
    for (const char byte : file) {
        wide += byte;
        wide += '\0';
    }
    ExpectDraws(wide, draws);
}

TEST(ImportOperators, DataFrameWithAnIndexAndFractions) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 42, .extras = 1, .weekdays = {4, 7}}, 25);
    const Row row = [](const MadeDraw& draw, int number, Chance&) {
        std::string text = std::to_string(number - 1001) + "," + DateBy("Y-M-D", draw.date);
        for (const int ball : draw.numbers) text += "," + std::to_string(ball) + ".0";
        return text + "," + Joined(draw.extras, "") + ".0";
    };
    ExpectDraws(FileOf(draws, ",date,n1,n2,n3,n4,n5,n6,bonus", Rows::OldestFirst, row, "\n"),
                draws);
}

TEST(ImportOperators, ListsOfAScript) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .weekdays = {4, 7}}, 26);
    const Row row = [](const MadeDraw& draw, int, Chance&) {
        return DateBy("Y-M-D", draw.date) + ",\"[" + Joined(draw.numbers, ", ") + "]\"";
    };
    ExpectDraws(FileOf(draws, "date,numbers", Rows::OldestFirst, row, "\n"), draws);
}

TEST(ImportOperators, TwoGamesInOneFile) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 52, .extras = 1, .weekdays = {4, 7}}, 27);
    const Draws others =
        MakeDraws({.picks = 6, .highest = 52, .extras = 1, .weekdays = {4, 7}}, 28);
    std::string file = "Game,Draw Date,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Ball 6,Bonus Ball\n";
    for (std::size_t i = 0; i < draws.size(); ++i) {
        const auto add = [&file](const std::string& game, const MadeDraw& draw) {
            file += game + "," + DateBy("Y-M-D", draw.date) + "," + Joined(draw.numbers, ",") +
                    "," + Joined(draw.extras, "") + "\n";
        };
        add("LOTTO", draws[i]);
        if (i > 3) add("LOTTO PLUS 1", others[i]);
    }
    ExpectDraws(file, draws);
    EXPECT_EQ(ImportByProposal(file).proposal.title, "LOTTO");
    ExpectDraws(file.substr(file.find('\n') + 1), draws);
}

TEST(ImportOperators, MiddayAndEveningDraws) {
    MadeLottery lottery{.picks = 5, .highest = 39, .weekdays = {1, 2, 3, 4, 5, 6, 7}, .draws = 80};
    const Draws evenings = MakeDraws(lottery, 29);
    const Draws middays = MakeDraws(lottery, 30);
    std::string file = "Date,Time,Numbers\n";
    Draws both;
    for (std::size_t i = 0; i < evenings.size(); ++i) {
        for (const bool evening : {true, false}) {
            const MadeDraw& draw = evening ? evenings[i] : middays[i];
            file += DateBy("m/d/Y", draw.date) + (evening ? ",Evening," : ",Midday,") +
                    Joined(draw.numbers, "-") + "\n";
            both.push_back(draw);
        }
    }
    ExpectDraws(file, both, Region::Order::MonthDayYear);
}

TEST(ImportOperators, TitlesYearsAndTotalsBetweenTheRows) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .extras = 1, .draws = 150}, 31);
    int year = 0;
    const Row row = [&year](const MadeDraw& draw, int, Chance& chance) {
        std::string text;
        const int its = static_cast<int>(draw.date.year());
        if (its != year) {
            text += "\r\nResults of " + std::to_string(its) + "\r\n\r\n" +
                    "Date        N1  N2  N3  N4  N5  N6  BN  Winners  Prize\r\n" +
                    "----------  --  --  --  --  --  --  --  -------  -----\r\n";
            year = its;
        }
        text += DateBy("D/M/Y", draw.date) + "  ";
        for (const int ball : draw.numbers) text += TwoDigits(ball) + "  ";
        return text + TwoDigits(draw.extras[0]) + "  " + std::to_string(chance.Below(40)) + "  " +
               Money(chance);
    };
    std::string file = "The National Lottery\r\n" + FileOf(draws, "", Rows::NewestFirst, row);
    file += "==========\r\nTotal       150 draws  1234  5678.90\r\n";
    ExpectDraws(file, draws);
    EXPECT_EQ(ImportByProposal(file).proposal.title, "National Lottery");
}

TEST(ImportOperators, MoneyWithCommasAndNoHeading) {
    const Draws draws = MakeDraws(
        {.picks = 5, .highest = 35, .ascending = false, .weekdays = {2, 3, 4, 5, 6, 7}}, 32);
    const Row row = [](const MadeDraw& draw, int number, Chance& chance) {
        return std::to_string(number) + ",\"" + DateBy("w, b D, Y", draw.date) + "\"," +
               Joined(draw.numbers, ",") + ",\"$" + std::to_string(chance.From(10, 99)) +
               ",000\"," + std::to_string(chance.From(0, 3)) + "," +
               std::to_string(chance.From(40, 400));
    };
    ExpectDraws(FileOf(draws, "", Rows::NewestFirst, row, "\n"), draws);
}

TEST(ImportOperators, MonthsAndDaysOfTheWeekInOtherLanguages) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .weekdays = {5, 7}, .draws = 60}, 33);
    const std::vector<std::vector<std::string>> months = {
        {"enero", "febrero", "marzo", "abril", "mayo", "junio", "julio", "agosto", "septiembre",
         "octubre", "noviembre", "diciembre"},
        {"janv.", "f\xC3\xA9vr.", "mars", "avr.", "mai", "juin", "juil.", "ao\xC3\xBBt", "sept.",
         "oct.", "nov.",
         "d\xC3\xA9"
         "c."},
        {"gen", "feb", "mar", "apr", "mag", "giu", "lug", "ago", "set", "ott", "nov", "dic"}};
    const std::vector<std::vector<std::string>> days = {{"jueves",
                                                         "s\xC3\xA1"
                                                         "bado"},
                                                        {"jeu.", "sam."},
                                                        {"gio", "sab"}};
    for (std::size_t language = 0; language < months.size(); ++language) {
        const Row row = [&](const MadeDraw& draw, int, Chance&) {
            const auto month = static_cast<unsigned>(draw.date.month()) - 1;
            const std::string of = language == 0 ? " de " : " ";
            return days[language][WeekdayNumber(draw.date) == 5 ? 0 : 1] + " " +
                   DateBy("d", draw.date) + of + months[language][month] + of +
                   DateBy("Y", draw.date) + "\t" + Joined(draw.numbers, "\t");
        };
        ExpectDraws(FileOf(draws, "", Rows::NewestFirst, row, "\n"), draws);
    }
}

}  // namespace
