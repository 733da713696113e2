// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/lottery_odds.h"

#include "core/text.h"

namespace {

bool Fulfils(const PrizeClass& prize, int numbers, int extras) {
    return numbers <= prize.numbers && numbers >= prize.numbers - prize.orFewer &&
           extras >= prize.extras;
}

/// How many draws match so many main numbers of an entry and so many extra balls.
std::uint64_t WaysToMatch(const DrawRules& rules, int numbers, int extras) {
    const int left = rules.highest - rules.picks;
    const int missed = rules.picks - numbers;
    const std::uint64_t main = Combinations(rules.picks, numbers) * Combinations(left, missed);
    if (rules.extra == ExtraBalls::OwnDrum) {
        return main * Combinations(rules.extraPicks, extras) *
               Combinations(rules.highestExtra - rules.extraPicks, rules.extraPicks - extras);
    }
    // Of the balls that are left over the entry has as many as it missed.
    return main * static_cast<std::uint64_t>(extras == 1 ? missed : left - missed);
}

std::uint64_t AllDraws(const DrawRules& rules) {
    const std::uint64_t main = Combinations(rules.highest, rules.picks);
    return rules.extra == ExtraBalls::OwnDrum
               ? main * Combinations(rules.highestExtra, rules.extraPicks)
               : main * static_cast<std::uint64_t>(rules.highest - rules.picks);
}

}  // namespace

std::uint64_t Combinations(int things, int chosen) {
    if (chosen < 0 || chosen > things) return 0;
    std::uint64_t count = 1;
    for (int i = 1; i <= chosen; ++i) {
        count =
            count * static_cast<std::uint64_t>(things - chosen + i) / static_cast<std::uint64_t>(i);
    }
    return count;
}

std::vector<Chance> ChancesOf(const DrawRules& rules, const std::vector<PrizeClass>& classes) {
    const std::uint64_t all = AllDraws(rules);
    std::vector<Chance> chances(classes.size() + 1, {.ways = 0, .all = all});
    for (int numbers = 0; numbers <= rules.picks; ++numbers) {
        for (int extras = 0; extras <= rules.extraPicks; ++extras) {
            std::size_t place = 0;
            while (place < classes.size() && !Fulfils(classes[place], numbers, extras)) ++place;
            if (place == classes.size()) continue;
            const std::uint64_t ways = WaysToMatch(rules, numbers, extras);
            chances[place].ways += ways;
            chances.back().ways += ways;
        }
    }
    return chances;
}

std::string OddsText(const Chance& chance) {
    const double odds = static_cast<double>(chance.all) / static_cast<double>(chance.ways);
    return "1 in " +
           (odds < 100 ? FixedText(odds, 1) : GroupedDigits(static_cast<long long>(odds + 0.5)));
}
