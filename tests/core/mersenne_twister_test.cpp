// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/mersenne_twister.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(MersenneTwister, GivesTheNumbersOfTheStandardLibrary) {
    for (const std::uint64_t seed : {std::uint64_t{0}, std::uint64_t{5489}, ~std::uint64_t{0}}) {
        std::mt19937_64 standard(seed);
        MersenneTwister ours(seed);
        for (int step = 0; step < 2000; ++step) ASSERT_EQ(ours(), standard()) << seed;
    }
}

TEST(MersenneTwister, TenThousandthNumberIsTheOneOfTheStandard) {
    MersenneTwister engine;
    for (int step = 1; step < 10000; ++step) engine();
    EXPECT_EQ(engine(), 9981545732273789042U);
}

TEST(MersenneTwister, SeedingStartsTheSequenceAnew) {
    MersenneTwister engine(7);
    const auto first = engine();
    engine();
    engine.Seed(7);
    EXPECT_EQ(engine(), first);
}

}  // namespace
