// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/random.h"

/// A source at the start of the repeatable sequence of `seed`.
inline Random Seeded(std::uint64_t seed) {
    Random random([] { return std::uint64_t{0}; });
    random.Reset(seed);
    return random;
}

/// How many numbers `random` has been asked for since it was at the start of `seed`; -1 where it
/// was not there within the last ten thousand.
inline int NumbersTaken(Random random, std::uint64_t seed) {
    Random counted = Seeded(seed);
    const double next = random.Next();
    for (int count = 0; count < 10000; ++count) {
        if (counted.Next() == next) return count;
    }
    return -1;
}
