// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/random.h"

#include <utility>

Random::Random(std::function<std::uint64_t()> clockSeed) : clockSeed_(std::move(clockSeed)) {}

void Random::SeedFromClock() { engine_.Seed(clockSeed_()); }

void Random::Reset(std::uint64_t seed) { engine_.Seed(seed); }
