// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/lucky_dip.h"

#include "core/lines.h"
#include "play/pool.h"

void lucky_dip::PlayLotto(State& state, Random& random, int lineCount) {
    FillPool(state, state.MaxNum);
    for (int row = 1; row <= lineCount; ++row) {
        ShufflePool(state, random, state.MaxNum);
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
