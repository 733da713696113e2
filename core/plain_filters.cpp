// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "core/filters.h"
#include "core/settings.h"
#include "core/text.h"

namespace {

long long HistoryLimit(const State& state) {
    return static_cast<long long>(state.Picks) -
           LeadingWhole(state.Settings(setting::HistoryStrength));
}

// With more than eight columns the checked access of the tables ends the run.
int MatchesBeyondTheTables(const State& state, int row, int draw) {
    int matches = 0;
    for (int column = 1; column <= state.Picks; ++column) {
        for (int pick = 1; pick <= state.Picks; ++pick) {
            if (state.Lines(row, pick) == state.Draws(draw, column)) ++matches;
        }
    }
    return matches;
}

int Matches(const State& state, int row, int draw) {
    if (state.Picks > 8) return MatchesBeyondTheTables(state, row, draw);
    const std::int16_t* line = state.Lines.Row(row);
    const std::int16_t* drawn = state.Draws.Row(draw);
    const int picks = state.Picks;
    int matches = 0;
    for (int column = 1; column <= picks; ++column) {
        for (int pick = 1; pick <= picks; ++pick) {
            if (line[pick] == drawn[column]) ++matches;
        }
    }
    return matches;
}

}  // namespace

bool plain::RepeatsDraw(const State& state, int row, long long limit) {
    bool repeats = false;
    for (int draw = 1; state.Draws(draw, 1) != 0 && !repeats; ++draw) {
        repeats = Matches(state, row, draw) > limit;
    }
    return repeats;
}

bool plain::HistoryPasses(const State& state) {
    const long long limit = HistoryLimit(state);
    bool repeats = false;
    for (int row = 1; state.Lines(row, 1) != 0 && !repeats; ++row) {
        repeats = RepeatsDraw(state, row, limit);
    }
    return !repeats;
}

// Draw 1 is compared before its end mark is looked for, so with no draws loaded each line meets
// the empty first row once, and the line that moves up into a removed one's place is passed over.
void plain::PruneHistory(State& state) {
    const long long limit = HistoryLimit(state);
    for (int row = 1; View(state).Lines(row, 1) != 0; ++row) {
        int draw = 1;
        do {
            if (Matches(state, row, draw) > limit) {
                RemoveLine(state, row);
                if (View(state).Lines(row, 1) == 0) return;
                draw = 0;
            }
            ++draw;
        } while (View(state).Draws(draw, 1) != 0);
    }
}

void plain::PruneDuplicates(State& state) {
    for (int row = 1; View(state).Lines(row, 1) != 0; ++row) {
        int other = 1;
        while (View(state).Lines(other, 1) != 0) {
            const std::int16_t* first = View(state).Lines.Row(row) + 1;
            if (row != other && std::equal(first, first + 7, View(state).Lines.Row(other) + 1)) {
                RemoveLine(state, other);
                other = 1;
            } else {
                ++other;
            }
        }
    }
}
