// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/recent_draws.h"

#include "core/failure.h"
#include "core/text.h"

namespace {

constexpr int rulesLine = 3;

LastDraw Tell(const State& state, int row, const std::function<bool(int number)>& counted) {
    LastDraw draw;
    int count = 0;
    for (int column = 1; column <= state.Picks; ++column) {
        const int number = state.Draws(row, column);
        if (counted(number)) ++count;
        if (column > 1) draw.numbers += ',';
        draw.numbers += NumberText(number);
    }
    draw.ratio = PlainDigits(count) + ':' + PlainDigits(state.Picks - count);
    return draw;
}

}  // namespace

LastDraws TellLastDraws(const State& state, const std::function<bool(int number)>& counted) {
    LastDraws draws;
    int row = 0;
    for (LastDraw& draw : draws) draw = Tell(state, ++row, counted);
    return draws;
}

int DrawsAmong(const State& state, int most) {
    int row = 1;
    while (row <= most && state.Draws(row, 1) != 0) ++row;
    return row - 1;
}

void CheckPicks(const State& state, int most) {
    if (state.Picks <= most) return;
    throw FailureInFile(state.DbaseFile, rulesLine,
                        "expected at most " + PlainDigits(most) + " main numbers in a line, but " +
                            PlainDigits(state.Picks) + " stands there");
}
