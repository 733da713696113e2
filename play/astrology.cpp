// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/astrology.h"

namespace {

constexpr int signWeight = 19;
constexpr int birthDayWeight = 13;

// Kept on purpose: the last of the fifty shuffled numbers is never taken.
constexpr Taking taking{.most = 49, .lastPlace = 49};

}  // namespace

std::int64_t astrology::SeedValue(int sign, int birthDay, Date draw) {
    return LuckySeed(sign * signWeight + birthDay * birthDayWeight, draw);
}

std::string astrology::PlayLotto(State& state, Random& random, LuckyNumbers& numbers,
                                 std::int64_t seed, WheelType type) {
    return PlayLuckyNumbers(state, random, numbers, seed, type, taking);
}
