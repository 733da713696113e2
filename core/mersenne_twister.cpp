// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/mersenne_twister.h"

#include "core/wide_registers.h"

namespace {

using Word = std::uint64_t;

constexpr std::size_t middle = 156;

Word Twist(Word upper, Word lower, Word far) {
    const Word mixed = (upper & 0xFFFFFFFF80000000U) | (lower & 0x7FFFFFFFU);
    return far ^ (mixed >> 1U) ^ ((Word{0} - (mixed & 1U)) & 0xB5026F5AA96619E9U);
}

Word Temper(Word word) {
    word ^= (word >> 29U) & 0x5555555555555555U;
    word ^= (word << 17U) & 0x71D67FFFEDA60000U;
    word ^= (word << 37U) & 0xFFF7EEE000000000U;
    return word ^ (word >> 43U);
}

}  // namespace

void MersenneTwister::Seed(std::uint64_t seed) {
    state_[0] = seed;
    for (std::size_t place = 1; place < size; ++place) {
        const Word before = state_[place - 1];
        state_[place] = (before ^ (before >> 62U)) * 6364136223846793005U + place;
    }
    position_ = size;
}

IN_WIDE_REGISTERS_TOO void MersenneTwister::MakeBlock() {
    Word* const state = state_.data();
    Word* const numbers = numbers_.data();
    for (std::size_t place = 0; place < middle; ++place) {
        state[place] = Twist(state[place], state[place + 1], state[place + middle]);
        numbers[place] = Temper(state[place]);
    }
    for (std::size_t place = middle; place < size - 1; ++place) {
        state[place] = Twist(state[place], state[place + 1], state[place - middle]);
        numbers[place] = Temper(state[place]);
    }
    state[size - 1] = Twist(state[size - 1], state[0], state[middle - 1]);
    numbers[size - 1] = Temper(state[size - 1]);
    position_ = 0;
}
