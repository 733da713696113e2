// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

#include "play/key_numbers.h"

namespace key_numbers {

/// The scroll bars in which the user chooses one, two or three keys: their limits, and how they
/// keep out of each other's way. Bars count from 1.
///
/// A value stays within the limits of its bar; setting a bar to the value that it has is no change.
/// Every other change, whatever the reason, runs the rule of its bar, which may change another one:
/// neighbours that meet are parted, but they may jump over each other, and bars 1 and 3 may stand
/// at the same number.
class KeyBars {
  public:
    /// The most bars that a form has.
    static constexpr int most = 3;

    /// As a form of `count` bars is designed: values 1, 2, 3, and limits for 50 numbers; where
    /// there is one bar only, for 49.
    explicit KeyBars(int count);

    int Count() const { return count_; }
    int Value(int bar) const { return values_.at(Place(bar)); }
    int Maximum(int bar) const { return maxima_.at(Place(bar)); }

    /// 1, 2, 3, whatever the lottery.
    static int Minimum(int bar) { return bar; }

    /// The values, bar 1 first.
    Keys Values() const { return Keys(values_).first(static_cast<std::size_t>(count_)); }

    /// Moves a bar as the user does.
    void Change(int bar, int value);

    /// Brings the limits to a lottery of `maxNum` numbers, the last bar first: `maxNum` for that,
    /// one less for each before it, but never below the minimum. Values above the new limit come
    /// down, others stay.
    void FitTo(int maxNum);

  private:
    static std::size_t Place(int bar) { return static_cast<std::size_t>(bar) - 1; }

    void Changed(int bar);
    void LimitTo(int bar, int maximum);

    int count_;
    std::array<int, most> values_{1, 2, 3};
    std::array<int, most> maxima_{};
};

}  // namespace key_numbers
