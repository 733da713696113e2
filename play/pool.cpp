// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/pool.h"

#include <array>
#include <cstddef>
#include <numeric>
#include <utility>

void FillPool(State& state, int highest) {
    if (highest < 1) return;
    std::int16_t* last = &state.Pool(highest);
    std::iota(state.Pool.Data() + 1, last + 1, std::int16_t{1});
}

// Every place is within the filled pool. All places are drawn before the first swap, as the two go
// faster apart than by turns.
void ShufflePool(State& state, Random& random, int highest, int step) {
    std::array<std::uint8_t, decltype(state.Pool)::Count()> places;
    std::int16_t* pool = state.Pool.Data();
    for (int place = 1; place <= highest; place += step) {
        places[static_cast<std::size_t>(place)] = static_cast<std::uint8_t>(random.OneTo(highest));
    }
    for (int place = 1; place <= highest; place += step) {
        std::swap(pool[place], pool[places[static_cast<std::size_t>(place)]]);
    }
}

void ExtendPool(State& state, int highest, int count, int step) {
    for (int place = 1; place <= count; ++place) {
        state.Pool(highest + place) = state.Pool(step * place);
    }
}
