// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/numerology.h"

#include <limits>

#include "core/text.h"

namespace {

// Nothing but the end of the pool ends the search for twenty.
constexpr Taking taking{.most = 20, .lastPlace = std::numeric_limits<int>::max()};

}  // namespace

std::optional<std::int64_t> numerology::SeedValue(std::string_view name, Date birth) {
    std::int64_t person = 0;
    bool empty = true;
    for (const char character : UpperCase(name)) {
        if (character == ' ') continue;
        person += static_cast<unsigned char>(character);
        empty = false;
    }
    if (empty) return std::nullopt;
    return LuckySeed(person, birth);
}

std::string numerology::PlayLotto(State& state, Random& random, LuckyNumbers& numbers,
                                  std::int64_t seed, WheelType type) {
    return PlayLuckyNumbers(state, random, numbers, seed, type, taking);
}
