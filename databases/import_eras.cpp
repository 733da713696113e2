// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_eras.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "core/text.h"

namespace {

// What one draw shows of the rules.
struct Shown {
    int count = 0;
    int highest = 0;
    int extra = 0;
};

Shown Join(const Shown& one, const Shown& other) {
    return {std::max(one.count, other.count), std::max(one.highest, other.highest),
            std::max(one.extra, other.extra)};
}

Shown ShownBy(const ImportedDraw& draw, bool extraFromSameDrum) {
    Shown shown{.count = draw.Count(), .highest = 0, .extra = 0};
    shown.highest = *std::max_element(draw.numbers.begin(), draw.numbers.end());
    // Where the extra ball comes from the main numbers it tells as much of them as they do.
    if (extraFromSameDrum) {
        shown.highest = std::max<int>(shown.highest, draw.extra);
    } else {
        shown.extra = draw.extra;
    }
    return shown;
}

/// The highest of any draws between two places, without walking there.
class Highest {
  public:
    explicit Highest(std::vector<Shown> draws) {
        levels_.push_back(std::move(draws));
        for (std::size_t width = 2; width <= levels_.front().size(); width *= 2) {
            const std::vector<Shown>& below = levels_.back();
            std::vector<Shown> level(levels_.front().size() - width + 1);
            for (std::size_t i = 0; i < level.size(); ++i) {
                level[i] = Join(below[i], below[i + width / 2]);
            }
            levels_.push_back(std::move(level));
        }
    }

    Shown Between(std::size_t first, std::size_t end) const {
        std::size_t level = 0;
        while ((std::size_t{2} << level) <= end - first) ++level;
        const std::size_t width = std::size_t{1} << level;
        return Join(levels_[level][first], levels_[level][end - width]);
    }

    const Shown& At(std::size_t draw) const { return levels_.front()[draw]; }
    std::size_t Size() const { return levels_.front().size(); }

  private:
    std::vector<std::vector<Shown>> levels_;
};

// So many draws on one side of a change must keep within its rules for it to be looked at.
constexpr std::size_t watch = 25;

bool Above(const Shown& one, const Shown& other) {
    return one.count > other.count || one.highest > other.highest || one.extra > other.extra;
}

// The places, newest first, at which a draw may be the newest of its era: where one side shows
// something that the draws next to it on the other side do not.
std::vector<std::size_t> PossibleStarts(const Highest& draws) {
    std::vector<std::size_t> starts{0};
    for (std::size_t i = 1; i < draws.Size(); ++i) {
        const Shown newer = draws.Between(i - std::min(i, watch), i);
        const Shown older = draws.Between(i, std::min(i + watch, draws.Size()));
        if (Above(draws.At(i), newer) || Above(draws.At(i - 1), older)) starts.push_back(i);
    }
    starts.push_back(draws.Size());
    return starts;
}

// How surprising the draws are under the tightest rules that they keep.
double Surprise(const Highest& draws, std::size_t first, std::size_t end) {
    const Shown shown = draws.Between(first, end);
    static const std::vector<double> logarithms = [] {
        std::vector<double> table{0};
        for (int number = 1; number < 100; ++number) table.push_back(std::log(number));
        return table;
    }();
    const double balls = shown.count * logarithms.at(static_cast<std::size_t>(shown.highest));
    const double extra = logarithms.at(static_cast<std::size_t>(shown.extra));
    return static_cast<double>(end - first) * (balls + extra);
}

// The newest places of the eras, by the cheapest division: each further era costs what chance could
// give it.
std::vector<std::size_t> Divide(const Highest& draws) {
    const std::vector<std::size_t> starts = PossibleStarts(draws);
    const double price = 12 + 2 * std::log(static_cast<double>(draws.Size()));
    std::vector<double> cost(starts.size(), std::numeric_limits<double>::max());
    std::vector<std::size_t> before(starts.size(), 0);
    cost[0] = 0;
    for (std::size_t end = 1; end < starts.size(); ++end) {
        for (std::size_t start = 0; start < end; ++start) {
            const double here = cost[start] + price + Surprise(draws, starts[start], starts[end]);
            if (here >= cost[end]) continue;
            cost[end] = here;
            before[end] = start;
        }
    }
    std::vector<std::size_t> places;
    for (std::size_t end = starts.size() - 1; end > 0; end = before[end]) {
        places.push_back(starts[before[end]]);
    }
    std::reverse(places.begin(), places.end());
    return places;
}

std::string Change(const ImportRules& now, const ImportRules& was) {
    std::string change;
    const auto add = [&change](const std::string& part) {
        if (!change.empty()) change += ", ";
        change += part;
    };
    if (now.picks != was.picks)
        add(PlainDigits(now.picks) + " numbers for " + PlainDigits(was.picks));
    if (now.highest > was.highest) add("numbers above " + PlainDigits(was.highest));
    if (now.highest < was.highest) add("no numbers above " + PlainDigits(now.highest));
    if (now.highestExtra > was.highestExtra) {
        add(was.highestExtra == 0 ? "an extra ball"
                                  : "extra balls above " + PlainDigits(was.highestExtra));
    }
    if (now.highestExtra < was.highestExtra) {
        add(now.highestExtra == 0 ? "no extra ball"
                                  : "no extra balls above " + PlainDigits(now.highestExtra));
    }
    return change;
}

}  // namespace

std::string RulesInWords(const ImportRules& rules) {
    std::string words = PlainDigits(rules.picks) + " of 1 to " + PlainDigits(rules.highest);
    if (rules.hasBonus) words += ", bonus from the same numbers";
    if (rules.highestExtra > 0) words += ", extra ball of 1 to " + PlainDigits(rules.highestExtra);
    return words;
}

std::string CautionAbout(const ImportRules& rules) {
    constexpr int mostCounted = 70;
    if (std::max(rules.highest, rules.highestExtra) <= mostCounted) return {};
    return "Numbers above " + PlainDigits(mostCounted) +
           " are not counted: hot and cold numbers and number statistics cannot be used with this "
           "lottery.";
}

ImportRules RulesOf(const std::vector<ImportedDraw>& draws, bool extraFromSameDrum) {
    Shown all;
    bool extras = false;
    for (const ImportedDraw& draw : draws) {
        all = Join(all, ShownBy(draw, extraFromSameDrum));
        extras = extras || draw.extra > 0;
    }
    return {.picks = all.count,
            .highest = all.highest,
            .highestExtra = all.extra,
            .hasBonus = extraFromSameDrum && extras};
}

std::vector<ImportEra> FindEras(const std::vector<ImportedDraw>& draws, bool extraFromSameDrum) {
    std::vector<ImportEra> eras;
    if (draws.empty()) return eras;
    std::vector<Shown> shown;
    shown.reserve(draws.size());
    for (const ImportedDraw& draw : draws) shown.push_back(ShownBy(draw, extraFromSameDrum));
    std::vector<std::size_t> places = Divide(Highest(std::move(shown)));
    places.push_back(draws.size());
    for (std::size_t i = 0; i + 1 < places.size(); ++i) {
        const auto first = draws.begin() + static_cast<std::ptrdiff_t>(places[i]);
        const auto end = draws.begin() + static_cast<std::ptrdiff_t>(places[i + 1]);
        eras.push_back({.first = places[i],
                        .count = places[i + 1] - places[i],
                        .from = (end - 1)->date,
                        .to = first->date,
                        .rules = RulesOf({first, end}, extraFromSameDrum),
                        .change = {}});
    }
    for (std::size_t i = 0; i + 1 < eras.size(); ++i) {
        const std::string change = Change(eras[i].rules, eras[i + 1].rules);
        eras[i].change = change + " from " + FullDate(eras[i].from) + " on";
    }
    return eras;
}

ImportedDraws OnlyEra(const ImportedDraws& imported, const ImportEra& era) {
    ImportedDraws only{.draws = {}, .leftOut = imported.leftOut};
    for (std::size_t i = 0; i < imported.draws.size(); ++i) {
        const ImportedDraw& draw = imported.draws[i];
        if (i >= era.first && i < era.first + era.count) {
            only.draws.push_back(draw);
            continue;
        }
        only.leftOut.push_back({.row = draw.row,
                                .line = draw.line,
                                .reason = LeftOut::OlderRules,
                                .why = "Drawn by other rules.",
                                .text = FullDate(draw.date) + ": " + DrawInWords(draw)});
    }
    std::stable_sort(
        only.leftOut.begin(), only.leftOut.end(),
        [](const LeftOutRow& one, const LeftOutRow& other) { return one.row < other.row; });
    return only;
}
