// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/random.h"
#include "core/state.h"
#include "wheels/number_boxes.h"

struct Lottery {
    int picks = 6;
    int maxNum = 49;
    int maxPball = 0;
};

inline std::unique_ptr<State> LotteryOf(const Lottery& lottery) {
    auto state = std::make_unique<State>();
    state->Picks = lottery.picks;
    state->MaxNum = lottery.maxNum;
    state->MaxPball = lottery.maxPball;
    return state;
}

/// A source whose clock gives always the same seed.
inline Random RandomOf(std::uint64_t seed) {
    Random random([seed] { return seed; });
    random.Reset(seed);
    return random;
}

/// Columns 1 to `columns` of the lines up to the end mark.
inline std::vector<std::vector<int>> LinesOf(const State& state, int columns) {
    std::vector<std::vector<int>> lines;
    for (int row = 1; state.Lines(row, 1) != 0; ++row) {
        std::vector<int>& line = lines.emplace_back();
        for (int column = 1; column <= columns; ++column) line.push_back(state.Lines(row, column));
    }
    return lines;
}

/// Every cell of `Lines`, for a look at everything at once.
inline std::vector<int> AllCells(const State& state) {
    std::vector<int> cells;
    for (int row = 0; row <= 180; ++row) {
        for (int column = 0; column <= 14; ++column) cells.push_back(state.Lines(row, column));
    }
    return cells;
}

/// `total` boxes of which the first hold these texts; all of those are in use, the rest is not.
inline wheels::Boxes BoxesOf(int total, const std::vector<std::string>& texts) {
    wheels::Boxes boxes(static_cast<std::size_t>(total));
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i].inUse = i < texts.size();
        if (boxes[i].inUse) boxes[i].text = texts[i];
    }
    return boxes;
}

/// `total` boxes, the first `count` of which are in use and hold 1 to `count`.
inline wheels::Boxes BoxesCounting(int total, int count) {
    std::vector<std::string> texts;
    for (int number = 1; number <= count; ++number) texts.push_back(std::to_string(number));
    return BoxesOf(total, texts);
}

inline std::vector<std::string> TextsOf(const wheels::Boxes& boxes) {
    std::vector<std::string> texts;
    for (const wheels::Box& box : boxes) texts.push_back(box.text);
    return texts;
}
