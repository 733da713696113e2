// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/short_wheel.h"

#include "core/lines.h"
#include "core/text.h"
#include "play/pool.h"

namespace {

constexpr int shuffledNumbers = 50;
constexpr int shownNumbers = 15;
constexpr int behindTheWheel = 9;
constexpr int extraColumn = 8;

void TakeFitting(const State& state, LuckyNumbers& numbers, const Taking& taking) {
    int taken = 0;
    for (int place = 1; taken < taking.most && place <= taking.lastPlace; ++place) {
        const std::int16_t number = state.Pool(place);
        if (number <= state.MaxNum) numbers(++taken) = number;
    }
}

void FillLine(State& state, int line, const LuckyNumbers& numbers, int start) {
    int place = start;
    for (int column = 1; column <= state.Picks; ++column) {
        state.Lines(line, column) = numbers(place);
        ++place;
        // Kept on purpose: a line from place 9 has passed this mark and goes on behind it.
        if (place == behindTheWheel) place = 1;
    }
}

void AddExtraBalls(State& state, Random& random) {
    for (int line = 1; View(state).Lines(line, 1) >= 1; ++line) {
        state.Lines(line, extraColumn) = static_cast<std::int16_t>(random.OneTo(state.MaxPball));
    }
}

}  // namespace

std::int64_t LuckySeed(std::int64_t person, Date date) {
    const auto day = static_cast<unsigned>(date.day());
    const auto month = static_cast<unsigned>(date.month());
    return (person + day + month + static_cast<int>(date.year())) * 2 + 1;
}

std::string ShuffleLuckyNumbers(State& state, Random& random, std::int64_t seed) {
    random.Reset(static_cast<std::uint64_t>(seed));
    FillPool(state, shuffledNumbers);
    ShufflePool(state, random, shuffledNumbers);
    std::string text = NumberText(state.Pool(1));
    for (int place = 2; place <= shownNumbers; ++place) {
        text += ',' + NumberText(state.Pool(place));
    }
    return text;
}

std::string PlayLuckyNumbers(State& state, Random& random, LuckyNumbers& numbers, std::int64_t seed,
                             WheelType type, const Taking& taking) {
    const std::string shown = ShuffleLuckyNumbers(state, random, seed);
    TakeFitting(state, numbers, taking);
    ShortWheel(state, random, numbers, type);
    return shown;
}

void ShortWheel(State& state, Random& random, const LuckyNumbers& numbers, WheelType type) {
    ClearLines(state);
    int line = 1;
    for (int start = 1; start <= behindTheWheel; start += static_cast<int>(type)) {
        FillLine(state, line, numbers, start);
        ++line;
    }
    state.Lines(line, 1) = 0;
    if (state.MaxPball > 0) AddExtraBalls(state, random);
    SortLines(state, state.Picks);
}
