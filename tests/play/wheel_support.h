// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>

#include "play/short_wheel.h"
#include "tests/core/lines_support.h"
#include "tests/play/random_support.h"

/// The numbers of a text " 7, 23, 38"; a text in another form gives none.
inline Row NumbersShown(const std::string& text) {
    Row numbers;
    std::string written;
    std::istringstream stream(text);
    for (int number = 0; stream >> number; stream.ignore()) {
        numbers.push_back(number);
        written += (written.empty() ? " " : ", ") + std::to_string(number);
    }
    return written == text ? numbers : Row{};
}

/// A form's lucky numbers, fresh as when it is opened, and the run that it works in.
class LuckyNumbersTest : public testing::Test {
  protected:
    using Routine = std::string (*)(State&, Random&, LuckyNumbers&, std::int64_t, WheelType);

    explicit LuckyNumbersTest(Routine playLotto) : playLotto_(playLotto) {}

    /// Plays a lottery of `picks` of `maxNum` and returns the text of the lucky numbers.
    std::string Play(int picks, int maxNum, std::int64_t seed = 4015,
                     WheelType type = WheelType::Type2) {
        state_->Picks = picks;
        state_->MaxNum = maxNum;
        return playLotto_(*state_, random_, numbers_, seed, type);
    }

    std::vector<Row> Lines() const { return LinesOf(*state_, state_->Picks); }

    /// The first `count` lucky numbers, whether taken now or left from before.
    Row Taken(int count) const { return {numbers_.Data() + 1, numbers_.Data() + 1 + count}; }

    std::unique_ptr<State> state_ = Lottery(6, 49);
    Random random_ = Seeded(7);
    LuckyNumbers numbers_;

  private:
    Routine playLotto_;
};
