// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "core/state.h"

/// A run state whose draws are written one below the other.
class DrawTable : public testing::Test {
  protected:
    DrawTable() { Rules(2, 9); }

    void Rules(int picks, int maxNum) {
        state_->DbaseFile = "dbase1.txt";
        state_->Picks = picks;
        state_->MaxNum = maxNum;
    }

    void Draw(std::initializer_list<int> numbers) {
        ++row_;
        int column = 0;
        for (const int number : numbers) {
            state_->Draws(row_, ++column) = static_cast<std::int16_t>(number);
        }
    }

    void Draws(int count, std::initializer_list<int> numbers) {
        for (int i = 0; i < count; ++i) Draw(numbers);
    }

    const State& Table() const { return *state_; }

    /// The first `count` entries of a list of counts.
    template <typename Counts>
    static std::vector<int> First(const Counts& counts, int count) {
        return {counts.Data(), counts.Data() + count};
    }

    std::unique_ptr<State> state_ = std::make_unique<State>();
    int row_ = 0;
};
