// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/full_selection.h"

#include "core/failure.h"
#include "core/text.h"
#include "play/pool.h"

namespace {

constexpr int rulesLine = 3;
constexpr int extraColumn = 8;

// The places behind the numbers that fill the last line, and which of the shuffle they repeat.
constexpr int fillPlaces = 10;
constexpr int fillStep = 2;

int Remainder(const State& state) {
    if (state.Picks < 1) {
        throw FailureInFile(state.DbaseFile, rulesLine,
                            "expected how many numbers a line has, but " +
                                PlainDigits(state.Picks) + " stands there");
    }
    return state.MaxNum % state.Picks;
}

}  // namespace

int full_selection::LineCount(const State& state, bool includeAll) {
    const bool remainder = Remainder(state) != 0;
    return state.MaxNum / state.Picks + (includeAll && remainder ? 1 : 0);
}

// Kept on purpose: "All numbers used" without a remainder too, and the plural after a 1.
std::string full_selection::UnusedNote(const State& state, bool includeAll) {
    if (includeAll) return "  All numbers used";
    return ' ' + NumberText(Remainder(state)) + " numbers unused";
}

void full_selection::PlayLotto(State& state, Random& random, bool includeAll) {
    FillPool(state, state.MaxNum);
    ShufflePool(state, random, state.MaxNum);
    ExtendPool(state, state.MaxNum, fillPlaces, fillStep);
    const int lineCount = LineCount(state, includeAll);
    int place = 0;
    for (int line = 1; line <= lineCount; ++line) {
        for (int pick = 1; pick <= state.Picks; ++pick) {
            ++place;
            state.Lines(line, pick) = state.Pool(place);
        }
        if (state.MaxPball > 0) {
            state.Lines(line, extraColumn) =
                static_cast<std::int16_t>(random.OneTo(state.MaxPball));
        }
    }
    state.Lines(lineCount + 1, 1) = 0;
}
