// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/history.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "core/draw_database.h"
#include "core/filters.h"
#include "core/lines.h"
#include "core/memory_folder.h"
#include "core/settings.h"
#include "play/lucky_dip.h"

namespace {

Random FixedRandom() {
    Random random([] { return std::uint64_t{49}; });
    random.Reset(49);
    return random;
}

std::string RandomDatabase() {
    const auto state = std::make_unique<State>();
    state->Picks = 6;
    state->MaxNum = 49;
    Random random = FixedRandom();
    std::string bytes = "Random lottery\r\n\r\n6,49,0,0,0\r\n";
    for (int draw = 1; draw <= 2999; ++draw) {
        lucky_dip::PlayLotto(*state, random, 1);
        bytes += "01 Jan 20";
        for (int column = 1; column <= 8; ++column) {
            bytes += ',' + std::to_string(state->Lines(1, column));
        }
        bytes += "\r\n";
    }
    return bytes;
}

}  // namespace

std::string DatabaseBytes() {
    std::ifstream file(REAL_DRAWS "/dbase2.txt", std::ios::binary);
    if (!file) return RandomDatabase();
    return {std::istreambuf_iterator<char>(file), {}};
}

std::unique_ptr<State> StateWithHistory(int strength) {
    auto state = std::make_unique<State>();
    MemoryFolder folder;
    folder.Write("dbase2.txt", DatabaseBytes());
    ListDatabases(*state, folder);
    LoadDatabase(*state, folder, 0);
    for (int slot = setting::OddEvenStrength; slot <= setting::LongRunStrength; ++slot) {
        state->Settings(slot) = std::to_string(strength);
    }
    return state;
}

void FillWithPassingLines(State& state, int count) {
    Random random = FixedRandom();
    Table<std::int16_t, 181, 15> passing("passing lines");
    int row = 0;
    while (row < count) {
        lucky_dip::PlayLotto(state, random, 1);
        if (!plain::HistoryPasses(state)) continue;
        ++row;
        std::copy_n(View(state).Lines.Row(1), 15, passing.Row(row));
    }
    for (row = 1; row <= count; ++row) {
        std::copy_n(passing.Row(row), 15, state.Lines.Row(row));
    }
    state.Lines(count + 1, 1) = 0;
}
