// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/lucky_dip.h"

#include <array>
#include <utility>

#include "core/lines.h"

namespace {

void FillPool(State& state) {
    for (int number = 1; number <= state.MaxNum; ++number) {
        state.Pool(number) = static_cast<std::int16_t>(number);
    }
}

// The pool has been filled up to `MaxNum`, so every place is within it. All places are drawn before
// the first swap, as the two go faster apart than by turns.
void ShufflePool(State& state, Random& random) {
    std::array<std::uint8_t, decltype(state.Pool)::Count()> places;
    std::int16_t* pool = state.Pool.Data();
    const int maxNum = state.MaxNum;
    for (int place = 1; place <= maxNum; ++place) {
        places[static_cast<std::size_t>(place)] = static_cast<std::uint8_t>(random.OneTo(maxNum));
    }
    for (int place = 1; place <= maxNum; ++place) {
        std::swap(pool[place], pool[places[static_cast<std::size_t>(place)]]);
    }
}

}  // namespace

void lucky_dip::PlayLotto(State& state, Random& random, int lineCount) {
    FillPool(state);
    for (int row = 1; row <= lineCount; ++row) {
        ShufflePool(state, random);
        for (int pick = 1; pick <= state.Picks; ++pick) {
            state.Lines(row, pick) = state.Pool(pick);
        }
        if (state.MaxPball > 0) {
            state.Lines(row, 8) = static_cast<std::int16_t>(random.OneTo(state.MaxPball));
        }
    }
    state.Lines(lineCount + 1, 1) = 0;
    SortLines(state, state.Picks);
}
