// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>

#include "core/mersenne_twister.h"

/// The source of random numbers, those of `std::mt19937_64`. A seed gives the same numbers on every
/// platform.
class Random {
  public:
    /// `clockSeed` is what `SeedFromClock` asks for a seed.
    explicit Random(std::function<std::uint64_t()> clockSeed);

    /// Seeds from the clock.
    void SeedFromClock();

    /// Starts the repeatable sequence of `seed`.
    void Reset(std::uint64_t seed);

    /// Uniform in [0, 1), from the 53 high bits of one step of the engine.
    double Next() { return static_cast<double>(engine_() >> 11U) * 0x1.0p-53; }

    /// The whole part of `count` times a uniform number, plus 1: from 1 to `count`; 1 where `count`
    /// is 0.
    int OneTo(int count) {
        // The same as count * Next(), since scaling by a power of two is exact; in a loop the
        // compiler makes the factor once.
        const double factor = count * 0x1.0p-53;
        return static_cast<int>(factor * static_cast<double>(engine_() >> 11U)) + 1;
    }

  private:
    std::function<std::uint64_t()> clockSeed_;
    MersenneTwister engine_;
};
