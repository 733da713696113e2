// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/key_bars.h"

#include <algorithm>

namespace key_numbers {

namespace {

constexpr int designedForOne = 49;
constexpr int designedForMore = 50;

}  // namespace

KeyBars::KeyBars(int count) : count_(count) {
    const int highest = count == 1 ? designedForOne : designedForMore;
    for (int bar = 1; bar <= count; ++bar) maxima_.at(Place(bar)) = highest - (count - bar);
}

void KeyBars::Change(int bar, int value) {
    const int held = std::clamp(value, Minimum(bar), Maximum(bar));
    if (held == Value(bar)) return;
    values_.at(Place(bar)) = held;
    Changed(bar);
}

void KeyBars::Changed(int bar) {
    if (bar > 1 && Value(bar - 1) == Value(bar)) Change(bar - 1, Value(bar) - 1);
    if (bar < count_ && Value(bar + 1) == Value(bar)) Change(bar + 1, Value(bar) + 1);
    if (bar == most) Changed(1);
}

void KeyBars::FitTo(int maxNum) {
    for (int bar = count_; bar >= 1; --bar) {
        const int limit = maxNum - (count_ - bar);
        if (Value(bar) > limit) {
            // Kept on purpose: the last step lowers the second bar; the first comes down by its
            // limit.
            const bool crosses = bar == 1 && count_ > 1;
            Change(crosses ? 2 : bar, limit);
        }
        LimitTo(bar, limit);
    }
}

void KeyBars::LimitTo(int bar, int maximum) {
    maxima_.at(Place(bar)) = std::max(maximum, Minimum(bar));
    Change(bar, std::min(Value(bar), Maximum(bar)));
}

}  // namespace key_numbers
