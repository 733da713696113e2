// SPDX-License-Identifier: GPL-3.0-or-later
// What is told from numbers alone, in tables without headings.
#include <gtest/gtest.h>

#include <functional>

#include "tests/databases/made_draws.h"

namespace {

using Draws = std::vector<MadeDraw>;

// A row a draw: its date, the balls, and what `more` has to say of the draw and its place.
std::string BareTable(const Draws& draws,
                      const std::function<std::string(const MadeDraw&, int)>& more) {
    std::string table;
    int place = 0;
    for (const MadeDraw& draw : draws) {
        table += DateBy("D/M/Y", draw.date) + "," + Joined(draw.numbers, ",");
        if (!draw.extras.empty()) table += "," + Joined(draw.extras, ",");
        table += more(draw, place++) + "\n";
    }
    return table;
}

std::string Nothing(const MadeDraw&, int) { return {}; }

void ExpectDraws(const std::string& table, const Draws& draws) {
    const Imported imported = ImportByProposal(table);
    EXPECT_EQ(LinesOf(imported.draws.draws), LinesOf(draws))
        << NotesOf(imported.proposal) << table.substr(0, 300);
}

bool FromSameDrum(const std::string& table) {
    return ImportByProposal(table).proposal.mapping.extraFromSameDrum;
}

TEST(ImportGuess, ABallThatEqualsMainNumbersComesFromADrumOfItsOwn) {
    const MadeLottery own{.picks = 5, .highest = 52, .highestExtra = 52, .extras = 1, .draws = 300};
    EXPECT_FALSE(FromSameDrum(BareTable(MakeDraws(own, 1), Nothing)));
    const MadeLottery same{.picks = 5, .highest = 52, .extras = 1, .draws = 300};
    Draws draws = MakeDraws(same, 1);
    EXPECT_TRUE(FromSameDrum(BareTable(draws, Nothing)));
    draws[100].extras[0] = draws[100].numbers[0];  // a slip of the source
    EXPECT_TRUE(FromSameDrum(BareTable(draws, Nothing)));
}

TEST(ImportGuess, TheSeventhOfManyNumbersIsABonusBall) {
    const Draws six = MakeDraws({.picks = 6, .highest = 59, .extras = 1, .ascending = false}, 2);
    ExpectDraws(BareTable(six, Nothing), six);
    const Draws seven = MakeDraws({.picks = 7, .highest = 35, .ascending = false}, 3);
    ExpectDraws(BareTable(seven, Nothing), seven);
    const Draws eight = MakeDraws({.picks = 7, .highest = 50, .extras = 1, .ascending = false}, 4);
    ExpectDraws(BareTable(eight, Nothing), eight);
    const Draws supplementary =
        MakeDraws({.picks = 6, .highest = 45, .extras = 2, .ascending = false}, 5);
    ExpectDraws(BareTable(supplementary, Nothing), supplementary);
    const Draws mini = MakeDraws({.picks = 5, .highest = 31, .extras = 1, .ascending = false}, 6);
    ExpectDraws(BareTable(mini, Nothing), mini);
    const ImportProposal proposal = ImportByProposal(BareTable(six, Nothing)).proposal;
    EXPECT_TRUE(std::any_of(proposal.notes.begin(), proposal.notes.end(), [](const auto& note) {
        return note.guess && note.topic == ImportTopic::Numbers;
    }));
}

TEST(ImportGuess, WeeksSetsAndMultipliersAreNoBalls) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 54, .draws = 150}, 7);
    ExpectDraws(BareTable(draws, [](const auto&,
                                    int place) { return "," + std::to_string(52 - place % 52); }),
                draws);
    ExpectDraws(
        BareTable(draws, [](const auto&,
                            int place) { return "," + std::to_string(place / 2 * 3 % 8 + 1); }),
        draws);
    ExpectDraws(
        BareTable(draws, [](const auto&,
                            int place) { return "," + std::to_string(place * 7 % 11 % 4 + 2); }),
        draws);
    ExpectDraws(
        BareTable(draws, [](const auto&,
                            int place) { return "," + std::to_string(place % 9 == 0 ? 1 : 0); }),
        draws);
}

TEST(ImportGuess, DayMonthAndYearOnceMoreAreNoBalls) {
    const Draws draws = MakeDraws({.picks = 5, .highest = 39, .draws = 150}, 8);
    ExpectDraws(BareTable(draws, [](const auto& draw, int) { return DateBy(",d,m,y", draw.date); }),
                draws);
}

TEST(ImportGuess, ListsMayHaveGrownWithTheRules) {
    Draws draws = MakeDraws({.picks = 7, .highest = 47, .draws = 120}, 9);
    std::string table;
    for (std::size_t i = 0; i < draws.size(); ++i) {
        if (i >= 40) draws[i].numbers.pop_back();
        table += IsoDate(draws[i].date) + "," + Joined(draws[i].numbers, " ") + "\n";
    }
    ExpectDraws(table, draws);
}

TEST(ImportGuess, ABallBesideADateInPartsIsNoPartOfIt) {
    const Draws draws = MakeDraws({.picks = 5,
                                   .highest = 39,
                                   .highestExtra = 20,
                                   .extras = 1,
                                   .ascending = false,
                                   .draws = 150},
                                  10);
    for (const char* form : {"D,b,Y", "Y,m,d", "d,m,Y"}) {
        std::string table;
        for (const MadeDraw& draw : draws) {
            table += Joined(draw.numbers, ",") + "," + Joined(draw.extras, "") + "," +
                     DateBy(form, draw.date) + "\n";
        }
        ExpectDraws(table, draws);
    }
}

TEST(ImportGuess, GamesAreToldByTheirHeadingThoughTheirDatesDiffer) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .weekdays = {4}, .draws = 60}, 11);
    const Draws others = MakeDraws({.picks = 6, .highest = 49, .weekdays = {6}, .draws = 40}, 12);
    std::string table = "Lottery,Date,N1,N2,N3,N4,N5,N6\n";
    for (const MadeDraw& draw : draws) {
        table += "Lotto," + IsoDate(draw.date) + "," + Joined(draw.numbers, ",") + "\n";
    }
    for (const MadeDraw& draw : others) {
        table += "Other," + IsoDate(draw.date) + "," + Joined(draw.numbers, ",") + "\n";
    }
    ExpectDraws(table, draws);
}

std::string Glued(const std::vector<int>& numbers) {
    std::string text;
    for (const int number : numbers) text += TwoDigits(number);
    return text;
}

TEST(ImportGuess, NumbersGluedTogetherHaveTwoDigitsEach) {
    for (int picks = 4; picks <= 7; ++picks) {
        for (const bool ascending : {true, false}) {
            // The seventh of numbers in the order of the draw is taken for a bonus ball anyway.
            if (picks == 7 && !ascending) continue;
            const Draws draws =
                MakeDraws({.picks = picks, .highest = 49, .ascending = ascending}, 16);
            std::string table;
            for (const MadeDraw& draw : draws) {
                table += IsoDate(draw.date) + "," + Glued(draw.numbers) + "\n";
            }
            ExpectDraws(table, draws);
            const ImportProposal proposal = ImportByProposal(table).proposal;
            const auto note = std::find_if(
                proposal.notes.begin(), proposal.notes.end(),
                [](const ImportNote& each) { return each.topic == ImportTopic::Numbers; });
            EXPECT_TRUE(note->guess) << "so that the form asks the user to look";
        }
    }
}

TEST(ImportGuess, ABallMayStandBesideNumbersGluedTogether) {
    const Draws draws = MakeDraws({.picks = 5, .highest = 50, .highestExtra = 12, .extras = 1}, 17);
    std::string table = "Draw;Date;Numbers;Star\n";
    int number = 900;
    for (const MadeDraw& draw : draws) {
        table += std::to_string(number--) + ";" + DateBy("D.M.Y", draw.date) + ";" +
                 Glued(draw.numbers) + ";" + std::to_string(draw.extras[0]) + "\n";
    }
    ExpectDraws(table, draws);
}

TEST(ImportGuess, LongNumbersOfOtherThingsAreNoDraws) {
    Chance chance(18);
    std::string table = "Date,Ticket\n";
    for (const MadeDraw& draw : MakeDraws({.draws = 100}, 18)) {
        table += IsoDate(draw.date) + ",";
        for (int i = 0; i < 10; ++i) table += static_cast<char>('0' + chance.Below(10));
        table += "\n";
    }
    EXPECT_NE(ImportByProposal(table).proposal.refusal, "");
}

TEST(ImportGuess, OfTwoDatesTheOneOfTheDrawIsTaken) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .draws = 40}, 13);
    std::string table = "Claim deadline,Draw date,N1,N2,N3,N4,N5,N6\n";
    for (const MadeDraw& draw : draws) {
        table += IsoDate(DaysAfter(draw.date, 180)) + "," + IsoDate(draw.date) + "," +
                 Joined(draw.numbers, ",") + "\n";
    }
    ExpectDraws(table, draws);
}

TEST(ImportGuess, ManyDrawsOfADateAreDecidedByMostDates) {
    const Draws draws = MakeDraws({.picks = 6, .highest = 49, .draws = 60}, 14);
    const Draws others = MakeDraws({.picks = 6, .highest = 49, .draws = 60}, 15);
    std::string few;
    std::string many;
    Draws all;
    for (std::size_t i = 0; i < draws.size(); ++i) {
        const auto row = [](const MadeDraw& draw) {
            return IsoDate(draw.date) + "," + Joined(draw.numbers, ",") + "\n";
        };
        few += row(draws[i]) + (i % 20 == 3 ? row(others[i]) : "");
        many += row(draws[i]) + row(others[i]);
        all.push_back(draws[i]);
        all.push_back(others[i]);
    }
    ExpectDraws(few, draws);
    ExpectDraws(many, all);
}

}  // namespace
