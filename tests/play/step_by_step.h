// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "core/random.h"
#include "core/state.h"

/// Attempts one number and one swap after the other, as they are defined, for tests and benchmarks
/// to compare the program's routines with.
namespace step_by_step {

inline int OneTo(Random& random, int count) { return static_cast<int>(count * random.Next()) + 1; }

inline void Fill(State& state, int highest) {
    for (int i = 1; i <= highest; ++i) state.Pool(i) = static_cast<std::int16_t>(i);
}

inline void Shuffle(State& state, Random& random, int highest, int step) {
    for (int i = 1; i <= highest; i += step) {
        const int j = OneTo(random, highest);
        std::swap(state.Pool(i), state.Pool(j));
    }
}

inline void PlayFullSelection(State& state, Random& random, bool includeAll) {
    Fill(state, state.MaxNum);
    Shuffle(state, random, state.MaxNum, 1);
    for (int i = 1; i <= 10; ++i) state.Pool(state.MaxNum + i) = state.Pool(2 * i);
    int lineCount = state.MaxNum / state.Picks;
    if (includeAll && state.MaxNum % state.Picks > 0) ++lineCount;
    int index = 0;
    for (int line = 1; line <= lineCount; ++line) {
        for (int column = 1; column <= state.Picks; ++column) {
            ++index;
            state.Lines(line, column) = state.Pool(index);
        }
        if (state.MaxPball > 0) {
            state.Lines(line, 8) = static_cast<std::int16_t>(OneTo(random, state.MaxPball));
        }
    }
    state.Lines(lineCount + 1, 1) = 0;
}

inline void DealExtraBalls(State& state, Random& random) {
    Fill(state, state.MaxPball);
    Shuffle(state, random, state.MaxPball, 1);
    for (int i = 1; i <= 20; ++i) state.Pool(state.MaxPball + i) = state.Pool(i);
    int p = 1;
    while (state.Lines(p, 1) != 0) {
        state.Lines(p, 8) = state.Pool(p);
        ++p;
    }
}

inline void PlayKeyNumbers(State& state, Random& random, const std::vector<int>& keys) {
    Fill(state, state.MaxNum);
    Shuffle(state, random, state.MaxNum, 2);
    for (int i = 1; i <= 20; ++i) state.Pool(state.MaxNum + i) = state.Pool(i);
    int line = 1;
    int k = 1;
    do {
        int column = 1;
        for (const int key : keys) state.Lines(line, column++) = static_cast<std::int16_t>(key);
        for (; column <= state.Picks; ++column) {
            while (std::count(keys.begin(), keys.end(), state.Pool(k)) > 0) ++k;
            state.Lines(line, column) = state.Pool(k);
            ++k;
        }
        ++line;
    } while (k <= state.MaxNum);
    state.Lines(line, 1) = 0;
    if (state.MaxPball != 0) DealExtraBalls(state, random);
}

}  // namespace step_by_step
