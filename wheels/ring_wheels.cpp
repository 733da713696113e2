// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/ring_wheels.h"

#include <utility>

#include "core/lines.h"

using wheels::Outcome;
using wheels::Ring;

namespace {

/// A line of neighbours from place `start` of the ring that begins at `Pool(first)`. Only the
/// places behind the first number go round.
void FillRun(State& state, int row, int first, int start, const Ring& ring) {
    int place = start;
    for (int column = 1; column <= state.Picks; ++column) {
        state.Lines(row, column) = state.Pool(first + place);
        place = (place + 1) % ring.numbers;
    }
}

/// Whether a start is too far for a further line: lines go over the end of the ring by up to four
/// places more than a plain walk would.
bool IsPastTheEnd(int picks, int start, const Ring& ring) {
    constexpr int placesOver = 4;
    return picks + start > ring.numbers + placesOver;
}

}  // namespace

namespace hot_wheels {

std::optional<int> CountHotWheelLines(int picks, const Ring& ring) {
    if (ring.interval == 0 || picks == 0) return std::nullopt;
    int count = 0;
    int start = 0;
    do {
        ++count;
        start += ring.interval;
    } while (!IsPastTheEnd(picks, start, ring));
    return count;
}

void Do_Wheel(State& state, const Ring& ring) {
    for (int place = 1; place <= 3; ++place) std::swap(state.Pool(place), state.Pool(7 - place));
    int row = 0;
    int start = 0;
    do {
        FillRun(state, ++row, 1, start, ring);
        start += ring.interval;
    } while (!IsPastTheEnd(state.Picks, start, ring));
    state.Lines(row + 1, 1) = 0;
}

std::string Generate(State& state, Random& random, const Ring& ring, hot_numbers::Mode mode) {
    ClearLines(state);
    random.SeedFromClock();
    NumberCounts counts;
    const std::string hottest = hot_numbers::RankMainNumbers(state, counts, mode);
    Do_Wheel(state, ring);
    hot_numbers::AddExtraBalls(state, counts, mode);
    SortLines(state, state.Picks);
    return hottest;
}

}  // namespace hot_wheels

namespace own_wheels {

void Do_Wheel(State& state, Random& random, const Ring& ring) {
    int row = 0;
    int start = 0;
    do {
        FillRun(state, ++row, 0, start, ring);
        wheels::DrawExtraBall(state, random, row);
        start += ring.interval;
    } while (start < ring.numbers);
    state.Lines(row + 1, 1) = 0;
}

Outcome Generate(State& state, Random& random, const Ring& ring, const wheels::Boxes& boxes) {
    if (!wheels::ReadFirst(state, boxes, ring.numbers)) return Outcome::CheckInput;
    ClearLines(state);
    Do_Wheel(state, random, ring);
    SortLines(state, state.Picks);
    return Outcome::Done;
}

}  // namespace own_wheels
