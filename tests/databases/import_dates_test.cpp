// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_dates.h"

#include <gtest/gtest.h>

#include "databases/import_headings.h"
#include "databases/import_numbers.h"
#include "databases/import_rows.h"
#include "tests/databases/made_draws.h"

namespace {

using Order = Region::Order;

std::string Read(std::string_view text, Order order = Order::DayMonthYear) {
    const DateReader reader(ImportRulesOfDates());
    const auto written = reader.Read(text);
    if (!written) return "none";
    const auto date = reader.DateOf(*written, order);
    return date ? IsoDate(*date) : "no day";
}

TEST(ImportDates, AreReadInManyForms) {
    for (const char* text : {"2024-10-14",
                             "2024/10/14",
                             "2024.10.14",
                             "14/10/2024",
                             "14.10.2024",
                             "14-10-2024",
                             "14 October 2024",
                             "14-Oct-2024",
                             "Oct 14, 2024",
                             "October 14th, 2024",
                             "Mon. Oct 14, 2024",
                             "Monday 14th October 2024",
                             "Mo., 14.10.2024",
                             "lundi 14 octobre 2024",
                             "14 de octubre de 2024",
                             "luned\xEC 14 ottobre 2024",
                             "20241014",
                             "14 10 2024",
                             "2024-10-14T00:00:00.000",
                             "14/10/2024 20:30",
                             "14Oct2024",
                             "2024 Oct 14",
                             "2024/10/14 (?)",
                             "14.10.24",
                             "14/10/24",
                             "14 Oct 24"}) {
        EXPECT_EQ(Read(text), "2024-10-14") << text;
    }
    EXPECT_EQ(Read("10/14/2024", Order::MonthDayYear), "2024-10-14");
    EXPECT_EQ(Read("24.10.14", Order::YearMonthDay), "2024-10-14");
    EXPECT_EQ(Read("10142024", Order::MonthDayYear), "2024-10-14");
    EXPECT_EQ(Read("14 2024 10"), "2024-10-14");
}

TEST(ImportDates, OfTheOtherOrderAreNone) {
    EXPECT_EQ(Read("14/10/2024", Order::MonthDayYear), "no day");
    EXPECT_EQ(Read("31/02/2020"), "no day");
    EXPECT_EQ(Read("2024-31-12"), "no day");
}

TEST(ImportDates, AreNotSeenInNumbers) {
    for (const char* text :
         {"", "12", "123456", "1,234,567", "9 19 34", "9 19 34 44 51", "3+5+7", "12:30", "12.5",
          "14/10", "1 2 3 2024", "14 Okt", "PKT347204", "99991231", "14 Foo 2024", "14/10/1234",
          "123/10/2024", "Draw 14 10 2024 set"}) {
        EXPECT_EQ(Read(text), "none") << text;
    }
}

TEST(ImportDates, HaveYearsOfTwoDigitsUpToTwentyYearsAhead) {
    EXPECT_EQ(Read("01/06/45"), "2045-06-01");
    EXPECT_EQ(Read("01/06/46"), "1946-06-01");
}

TEST(ImportDates, KnowTheRegionsMonths) {
    Region region = GermanRegion();
    region.monthNames[0] = "J\xE4nner";
    const DateReader reader({.region = region, .today = std::chrono::year(2025) / 1 / 1});
    const auto written = reader.Read("5. J\xE4nner 2024");
    ASSERT_TRUE(written);
    EXPECT_EQ(IsoDate(*reader.DateOf(*written, Order::DayMonthYear)), "2024-01-05");
}

TEST(ImportDates, AreReadInTheLanguagesOfManyOperators) {
    constexpr auto octobers = std::to_array<const char*>(
        {"14 октября 2024 г.", "14 окт. 2024", "Пн, 14 октября 2024",
         "понедельник, 14 ОКТЯБРЯ 2024", "14. lokakuuta 2024", "ma 14. lokakuuta 2024",
         "maanantai 14 loka 2024", "Δευτέρα 14 Οκτωβρίου 2024"});
    for (const char* text : octobers)
        EXPECT_EQ(Read(DecodeImport(text).text), "2024-10-14") << text;
    constexpr std::string_view russian[] = {"января",   "февраля", "марта",  "апреля",
                                            "мая",      "июня",    "июля",   "августа",
                                            "сентября", "октября", "ноября", "декабря"};
    constexpr std::string_view finnish[] = {"tammi", "helmi", "maalis", "huhti", "touko",  "kesä",
                                            "heinä", "elo",   "syys",   "loka",  "marras", "joulu"};
    constexpr std::string_view greek[] = {"Ιανουαρίου",  "Φεβρουαρίου", "Μαρτίου",   "Απριλίου",
                                          "Μαΐου",       "Ιουνίου",     "Ιουλίου",   "Αυγούστου",
                                          "Σεπτεμβρίου", "Οκτωβρίου",   "Νοεμβρίου", "Δεκεμβρίου"};
    for (std::size_t month = 0; month < 12; ++month) {
        const std::string expected = "2024-" + TwoDigits(static_cast<int>(month) + 1) + "-05";
        for (const std::string& name :
             {std::string(russian[month]), std::string(finnish[month]) + "kuuta",
              std::string(finnish[month]) + "kuu", std::string(greek[month])}) {
            EXPECT_EQ(Read(DecodeImport("5 " + name + " 2024").text), expected) << name;
        }
    }
    EXPECT_EQ(Read("14 mar 2024"), "2024-03-14") << "though a month in Finnish begins so too";
}

TEST(ImportDates, TellTheDayOfTheWeek) {
    const DateReader reader(ImportRulesOfDates());
    EXPECT_EQ(reader.Weekday("Wed"), 4);
    EXPECT_EQ(reader.Weekday("Samstag"), 7);
    EXPECT_EQ(reader.Weekday("Di"), 8);  // Tuesday in German, Sunday in French
    EXPECT_EQ(reader.Weekday("Arthur"), 0);
    EXPECT_EQ(reader.Weekday("3"), 0);
    EXPECT_EQ(reader.Read("mar. 12 mars 2024")->second, 3);
    EXPECT_EQ(reader.Read("Sat 12 Oct 2024")->weekday, 7);
}

OrderChoice OrderOf(const std::string& text, Order region = Order::DayMonthYear) {
    const ImportTable table(text, ImportSeparator::Comma);
    const DateRules rules = ImportRulesOfDates(region);
    const DateReader reader(rules);
    return ChooseOrder(table, FindDates(table, reader), reader, rules);
}

TEST(ImportOrder, IsDecidedByADayAboveTwelve) {
    EXPECT_EQ(OrderOf("05/06/2024,a\n13/06/2024,b\n").order, Order::DayMonthYear);
    EXPECT_EQ(OrderOf("05/06/2024,a\n06/13/2024,b\n").order, Order::MonthDayYear);
    EXPECT_FALSE(OrderOf("05/06/2024,a\n06/13/2024,b\n").guess);
    EXPECT_EQ(OrderOf("24/06/05,a\n24/07/31,b\n").order, Order::YearMonthDay);
}

TEST(ImportOrder, IsDecidedByNamedDaysOfTheWeek) {
    EXPECT_EQ(OrderOf("Sat,05/10/2024,a\nWed,09/10/2024,b\n", Order::MonthDayYear).order,
              Order::DayMonthYear);
    EXPECT_EQ(OrderOf("Wed 05/08/2024,a\n").order, Order::MonthDayYear);
    EXPECT_FALSE(OrderOf("Wed 05/08/2024,a\n").guess);
}

TEST(ImportOrder, IsDecidedByTheDaysOnWhichDrawsFall) {
    const std::string saturdays =
        "05/10/2024,a\n12/10/2024,a\n02/11/2024,a\n09/11/2024,a\n07/12/2024,a\n04/01/2025,a\n";
    const std::string ambiguous =
        "05/10/2024,a\n02/11/2024,a\n12/10/2024,a\n07/12/2024,a\n09/11/2024,a\n04/01/2025,a\n";
    EXPECT_EQ(OrderOf(saturdays, Order::MonthDayYear).order, Order::DayMonthYear);
    EXPECT_EQ(OrderOf(ambiguous, Order::MonthDayYear).order, Order::DayMonthYear);
    EXPECT_FALSE(OrderOf(ambiguous, Order::MonthDayYear).guess);
}

TEST(ImportOrder, IsDecidedByDatesThatFollowEachOther) {
    const OrderChoice choice =
        OrderOf("05/02/2024,a\n08/02/2024,a\n01/03/2024,a\n04/03/2024,a\n", Order::MonthDayYear);
    EXPECT_EQ(choice.order, Order::DayMonthYear);
    EXPECT_FALSE(choice.guess);
}

TEST(ImportOrder, IsDecidedByDrawsThatCannotHaveBeen) {
    EXPECT_EQ(OrderOf("11/05/2026,a\n").order, Order::DayMonthYear);
    EXPECT_EQ(OrderOf("05/11/2025,a\n06/12/2026,a\n").order, Order::DayMonthYear);
    EXPECT_EQ(OrderOf("12/01/2025,a\n", Order::MonthDayYear).order, Order::MonthDayYear);
}

TEST(ImportOrder, IsAGuessWhereNothingDecides) {
    const OrderChoice choice = OrderOf("01/02/2024,a\n", Order::MonthDayYear);
    EXPECT_EQ(choice.order, Order::MonthDayYear);
    EXPECT_TRUE(choice.guess);
    EXPECT_EQ(choice.reason, "Month before day is a guess, as your region writes dates.");
    EXPECT_FALSE(OrderOf("2024-02-01,a\n").guess);
}

TEST(ImportNumbers, AreReadFromCells) {
    EXPECT_EQ(BallNumber("7"), 7);
    EXPECT_EQ(BallNumber("07"), 7);
    EXPECT_EQ(BallNumber("7.0"), 7);
    EXPECT_EQ(BallNumber("(7)"), 7);
    EXPECT_EQ(BallNumber("0"), 0);
    EXPECT_EQ(BallNumber("99"), 99);
    for (const char* cell : {"", "-", "--", "NaN", "null", "n/a", "None"}) {
        EXPECT_EQ(BallNumber(cell), emptyCell) << cell;
    }
    for (const char* cell : {"100", "7.5", "T11", "Lotto 2", "-3", "1,000", "7a"}) {
        EXPECT_EQ(BallNumber(cell), noNumber) << cell;
    }
}

std::vector<int> ListOf(std::string_view cell) {
    const BallList list = ReadBallList(cell);
    return {list.numbers.begin(), list.numbers.begin() + static_cast<std::ptrdiff_t>(list.count)};
}

TEST(ImportNumbers, AreReadFromOneField) {
    const std::vector<int> five = {9, 19, 34, 44, 51};
    for (const char* cell :
         {"09 19 34 44 51", "9-19-34-44-51", "9, 19, 34, 44, 51", "[9, 19, 34, 44, 51]",
          "9/19/34/44 + 51", "9 19 34 44 PB 51", "9 - 19 - 34 - 44 (51)"}) {
        EXPECT_EQ(ListOf(cell), five) << cell;
    }
    for (const char* cell : {"", "123 4 5 6", "1e5", "12%", "2024-10-14"}) {
        EXPECT_EQ(ListOf(cell), std::vector<int>{}) << cell;
    }
}

TEST(ImportNumbers, AreReadFromDigitsGluedTogether) {
    const auto glued = [](std::string_view cell) {
        const BallList list = ReadGluedBalls(cell);
        return std::vector<int>(list.numbers.begin(),
                                list.numbers.begin() + static_cast<std::ptrdiff_t>(list.count));
    };
    EXPECT_EQ(glued("0919344451"), (std::vector<int>{9, 19, 34, 44, 51}));
    EXPECT_EQ(glued("01020304"), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(glued("0102030405060708").size(), 8U);
    for (const char* cell : {"", "010203", "010203040", "010203040506070809", "0102030400",
                             "01 02 03 04", "0102030x"}) {
        EXPECT_EQ(glued(cell), std::vector<int>{}) << cell;
    }
}

TEST(ImportHeadings, SayWhatColumnsAre) {
    const auto kind = [](std::string_view text) { return ReadHeading(text).kind; };
    using enum HeadingKind;
    for (const char* text :
         {"DrawDate", "Draw Date", "Datum", "FECHA", "date_de_tirage", "Data do Sorteio"}) {
        EXPECT_EQ(kind(text), Dated) << text;
    }
    for (const char* text :
         {"Ball 1", "N1", "WB5", "Winning Number 7", "boule_2", "Bola3", "num_4", "6"}) {
        EXPECT_EQ(kind(text), Main) << text;
    }
    for (const char* text : {"Winning Numbers", "Gewinnzahlen", "COMB. GANADORA", "Combinations"}) {
        EXPECT_NE(kind(text), Other) << text;
    }
    for (const char* text :
         {"Bonus Ball", "BN", "Powerball", "PB", "Mega", "Mega Ball", "Lucky Star 2",
          "Supplementary Number 1", "Zusatzzahl", "Superzahl", "COMP.", "Extra #", "numero_chance",
          "Thunderball", "Additional Number"}) {
        EXPECT_EQ(kind(text), Extra) << text;
    }
    for (const char* text :
         {"Ball Set", "Machine", "Jackpot", "Division 1 winners", "Multiplier", "Megaplier",
          "Power Play", "PP", "Raffles", "Winners", "date_de_forclusion", "Bonus winners"}) {
        EXPECT_TRUE(kind(text) == Other || std::string_view(text) == "date_de_forclusion") << text;
    }
    for (const char* text : {"Draw number", "DrawNumber", "Draw #", "No.", "Concurso", "Draw"}) {
        EXPECT_EQ(kind(text), DrawNumber) << text;
    }
    EXPECT_EQ(kind("Arthur"), Unknown);
    EXPECT_EQ(kind(""), Unknown);
    EXPECT_EQ(ReadHeading("Bonus").drum, Drum::Same);
    EXPECT_EQ(ReadHeading("Powerball").drum, Drum::Own);
}

TEST(ImportHeadings, ThatCountAreMainNumbersWhateverTheirWords) {
    const auto headings = ReadHeadings({"Foo", "Pallo 1", "Pallo 2", "Pallo 3", "Pallo 4", "Lisa"});
    EXPECT_EQ(headings[1].kind, HeadingKind::Main);
    EXPECT_EQ(headings[4].kind, HeadingKind::Main);
    EXPECT_EQ(headings[5].kind, HeadingKind::Unknown);
    const auto bare =
        ReadHeadings({"Winning Number 1", "2", "3", "4", "5", "6", "Additional Number"});
    EXPECT_EQ(bare[5].kind, HeadingKind::Main);
    EXPECT_EQ(bare[6].kind, HeadingKind::Extra);
    const auto prizes = ReadHeadings({"Prize 1", "Prize 2", "Prize 3", "Prize 4"});
    EXPECT_EQ(prizes[0].kind, HeadingKind::Other);
}

TEST(ImportHeadings, OfBlanksAreJoinedToAsManyAsThereAreColumns) {
    const ImportTable table("Draw Date   WB1 WB2 WB3 PB\n01/01/2020  1  2  3  4\n",
                            ImportSeparator::WideBlanks);
    EXPECT_EQ(HeadingTexts(table, 0, 5),
              (std::vector<std::string>{"Draw Date", "WB1", "WB2", "WB3", "PB"}));
    EXPECT_EQ(HeadingTexts(table, 0, 7), std::vector<std::string>{});
}

}  // namespace
