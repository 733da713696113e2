// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo_databases.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

#include "core/date.h"
#include "core/random.h"
#include "core/text.h"

namespace {

constexpr int DrawCount = 500;
constexpr int MainColumns = 7;
constexpr std::string_view LineEnd = "\r\n";

struct Lottery {
    std::string file;
    std::string name;
    int picks;
    int maxNum;
    int maxPball;
    bool hasBonus;
    Date newest;   ///< Day of the newest draw.
    int firstGap;  ///< Days from the newest draw to the one before; then 7 less this, in turn.
    std::uint64_t seed;
};

const std::vector<Lottery>& Lotteries() {
    using namespace std::chrono;
    static const std::vector<Lottery> lotteries = {
        // Wednesdays and Saturdays; Tuesdays and Fridays.
        {"dbasedemo1.txt", "Demo Lotto (sample draws)", 6, 49, 0, true, year{2024} / December / 28,
         3, 649},
        {"dbasedemo2.txt", "Demo Five and Extra (sample draws)", 5, 50, 12, false,
         year{2024} / December / 27, 3, 550},
    };
    return lotteries;
}

/// Different numbers from 1 to `highest`, in the order in which they are drawn.
std::vector<int> DrawBalls(Random& random, int count, int highest) {
    std::vector<int> machine(static_cast<std::size_t>(highest));
    std::iota(machine.begin(), machine.end(), 1);
    std::vector<int> drawn;
    while (static_cast<int>(drawn.size()) < count) {
        const auto ball = machine.begin() + random.OneTo(static_cast<int>(machine.size())) - 1;
        drawn.push_back(*ball);
        machine.erase(ball);
    }
    return drawn;
}

/// Columns 1 to 8 of a draw.
std::vector<int> Columns(Random& random, const Lottery& lottery) {
    std::vector<int> columns =
        DrawBalls(random, lottery.picks + (lottery.hasBonus ? 1 : 0), lottery.maxNum);
    int last = lottery.maxPball > 0 ? random.OneTo(lottery.maxPball) : 0;
    if (lottery.hasBonus) {
        last = columns.back();
        columns.pop_back();
    }
    columns.resize(MainColumns);
    columns.push_back(last);
    return columns;
}

std::string Header(const Lottery& lottery) {
    std::string header = lottery.name;
    header += LineEnd;
    header += LineEnd;  // no web address
    header += PlainDigits(lottery.picks) + "," + PlainDigits(lottery.maxNum) + "," +
              (lottery.maxPball > 0 ? "1" : "0") + "," + PlainDigits(lottery.maxPball) + "," +
              (lottery.hasBonus ? "1" : "0");
    header += LineEnd;
    return header;
}

std::string Bytes(const Lottery& lottery) {
    Random random([] { return std::uint64_t{0}; });
    random.Reset(lottery.seed);
    std::string bytes = Header(lottery);
    Date day = lottery.newest;
    for (int draw = 0; draw < DrawCount; ++draw) {
        bytes += DrawDate(day);
        for (const int number : Columns(random, lottery)) bytes += "," + PlainDigits(number);
        bytes += LineEnd;
        day = DaysAfter(day, draw % 2 == 0 ? -lottery.firstGap : lottery.firstGap - 7);
    }
    return bytes;
}

}  // namespace

std::vector<DemoDatabase> DemoDatabases() {
    std::vector<DemoDatabase> databases;
    for (const Lottery& lottery : Lotteries()) {
        databases.push_back({lottery.file, Bytes(lottery)});
    }
    return databases;
}
