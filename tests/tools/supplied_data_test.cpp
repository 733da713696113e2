// SPDX-License-Identifier: GPL-3.0-or-later
// What lies in data/: the sample databases and the background pictures.
#include <gtest/gtest.h>

#include <QImage>
#include <QString>
#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

#include "core/date.h"
#include "core/draw_database.h"
#include "core/memory_folder.h"
#include "core/state.h"
#include "test_folders.h"
#include "tools/demo_databases.h"

namespace {

std::string SuppliedBytes(const std::string& name) {
    std::ifstream file(std::string(SUPPLIED_DATA) + "/" + name, std::ios::binary);
    EXPECT_TRUE(file) << name << " is missing";
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

/// The supplied database, loaded as the program does.
void LoadSupplied(State& state, const std::string& name) {
    MemoryFolder folder;
    folder.Write(name, SuppliedBytes(name));
    ASSERT_EQ(ListDatabases(state, folder).size(), 1U);
    LoadDatabase(state, folder, 0);
}

int DrawCount(const State& state) {
    int row = 1;
    while (state.Draws(row, 1) != 0) ++row;
    return row - 1;
}

/// Every main number is in the field and different from the others of its draw.
void ExpectValidMainNumbers(const State& state) {
    for (int row = 1; row <= DrawCount(state); ++row) {
        std::set<int> numbers;
        for (int column = 1; column <= state.Picks; ++column) {
            const int number = state.Draws(row, column);
            EXPECT_GE(number, 1) << "draw " << row;
            EXPECT_LE(number, state.MaxNum) << "draw " << row;
            EXPECT_TRUE(numbers.insert(number).second) << "draw " << row << ": " << number;
        }
        for (int column = state.Picks + 1; column <= 7; ++column) {
            EXPECT_EQ(state.Draws(row, column), 0) << "draw " << row;
        }
    }
}

/// Dates of the draw lines, in the order of the file.
std::vector<Date> DrawDates(const std::string& name) {
    std::istringstream file(SuppliedBytes(name));
    std::vector<Date> dates;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (number <= 3) continue;
        const std::string text = line.substr(0, line.find(','));
        const auto date = ReadDate(text, Region{}, Date(std::chrono::year(2025) / 1 / 1));
        EXPECT_TRUE(date.has_value()) << "line " << number << ": " << text;
        if (!date) continue;
        EXPECT_EQ(DrawDate(*date), text);
        dates.push_back(*date);
    }
    return dates;
}

void ExpectTwoDrawsAWeek(const std::string& name, std::set<int> weekdays) {
    const std::vector<Date> dates = DrawDates(name);
    ASSERT_EQ(dates.size(), 500U);
    for (std::size_t draw = 0; draw < dates.size(); ++draw) {
        EXPECT_TRUE(weekdays.count(WeekdayNumber(dates[draw]))) << "draw " << draw + 1;
        if (draw == 0) continue;
        const int gap = DaysBetween(dates[draw], dates[draw - 1]);
        EXPECT_TRUE(gap == 3 || gap == 4) << "draw " << draw + 1 << ": " << gap << " days";
    }
}

}  // namespace

TEST(SuppliedDatabases, AreWhatTheToolMakes) {
    for (const DemoDatabase& database : DemoDatabases()) {
        EXPECT_TRUE(SuppliedBytes(database.file) == database.bytes) << database.file;
    }
}

TEST(SuppliedDatabases, LinesEndInCarriageReturnAndLineFeed) {
    for (const DemoDatabase& database : DemoDatabases()) {
        const std::string& bytes = database.bytes;
        for (std::size_t at = bytes.find('\n'); at != std::string::npos;
             at = bytes.find('\n', at + 1)) {
            ASSERT_EQ(bytes[at - 1], '\r') << database.file << ", byte " << at;
        }
        EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n") << database.file;
    }
}

TEST(SuppliedDatabases, LottoHasSixOfFortyNineAndABonusBallOfItsOwn) {
    State state;
    LoadSupplied(state, "dbasedemo1.txt");
    EXPECT_EQ(state.LotteryName, "Demo Lotto (sample draws)");
    EXPECT_EQ(state.Picks, 6);
    EXPECT_EQ(state.MaxNum, 49);
    EXPECT_EQ(state.MaxPball, 0);
    EXPECT_EQ(state.HasBonus, 1);
    EXPECT_EQ(DrawCount(state), 500);
    ExpectValidMainNumbers(state);
    for (int row = 1; row <= 500; ++row) {
        const int bonus = state.Draws(row, 8);
        EXPECT_GE(bonus, 1);
        EXPECT_LE(bonus, 49);
        for (int column = 1; column <= 6; ++column) {
            EXPECT_NE(state.Draws(row, column), bonus) << "draw " << row;
        }
    }
}

TEST(SuppliedDatabases, FiveAndExtraHasAnExtraBallUpToTwelve) {
    State state;
    LoadSupplied(state, "dbasedemo2.txt");
    EXPECT_EQ(state.LotteryName, "Demo Five and Extra (sample draws)");
    EXPECT_EQ(state.Picks, 5);
    EXPECT_EQ(state.MaxNum, 50);
    EXPECT_EQ(state.MaxPball, 12);
    EXPECT_EQ(state.HasBonus, 0);
    EXPECT_EQ(DrawCount(state), 500);
    ExpectValidMainNumbers(state);
    for (int row = 1; row <= 500; ++row) {
        EXPECT_GE(state.Draws(row, 8), 1);
        EXPECT_LE(state.Draws(row, 8), 12);
    }
}

TEST(SuppliedDatabases, BallsAreInTheOrderOfTheDrawNotSorted) {
    State state;
    LoadSupplied(state, "dbasedemo1.txt");
    int sorted = 0;
    for (int row = 1; row <= 500; ++row) {
        bool rising = true;
        for (int column = 1; column < 6; ++column) {
            rising = rising && state.Draws(row, column) < state.Draws(row, column + 1);
        }
        sorted += rising ? 1 : 0;
    }
    EXPECT_LT(sorted, 10);
}

TEST(SuppliedDatabases, LottoIsDrawnOnWednesdaysAndSaturdaysNewestFirst) {
    ExpectTwoDrawsAWeek("dbasedemo1.txt", {4, 7});
}

TEST(SuppliedDatabases, FiveAndExtraIsDrawnOnTuesdaysAndFridaysNewestFirst) {
    ExpectTwoDrawsAWeek("dbasedemo2.txt", {3, 6});
}

TEST(SuppliedPictures, AreLightEnoughForBlackTextEverywhere) {
    for (const char* family :
         {"Main", "Play", "Databases", "Analyse", "File", "Syndicates", "Help"}) {
        const QImage picture(
            QStringLiteral(SUPPLIED_DATA "/Skin%1.jpg").arg(QLatin1String(family)));
        ASSERT_FALSE(picture.isNull()) << family;
        int darkest = 255;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                darkest = std::min(darkest, qGray(picture.pixel(x, y)));
            }
        }
        EXPECT_GT(darkest, 225) << family;
    }
}
