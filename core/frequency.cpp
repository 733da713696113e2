// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frequency.h"

#include <algorithm>
#include <cstddef>
#include <functional>

#include "core/failure.h"
#include "core/text.h"

namespace {

constexpr int highestNumber = static_cast<int>(Counts::Count()) - 1;
constexpr int extraColumn = 8;
constexpr int headerLines = 3;

// Four tables in turn, so that a number that comes again soon need not wait for its last count to
// be stored; 128 entries each, so that no number is looked up outside before it has been checked.
class Tally {
  public:
    void Add(int number, int turn) {
        const auto entry = static_cast<std::uint16_t>(number);
        seen_ |= entry;
        ++tables_[static_cast<std::size_t>(turn) % tables_.size()][entry % entries];
    }

    /// Whether every number was one that is counted.
    bool Complete() const {
        if (seen_ >= entries) return false;
        return std::ranges::all_of(tables_, [](const auto& table) {
            return std::all_of(table.begin() + highestNumber + 1, table.end(),
                               [](std::int16_t count) { return count == 0; });
        });
    }

    void Store(Counts& counts) const {
        for (std::size_t number = 0; number <= highestNumber; ++number) {
            int sum = 0;
            for (const auto& table : tables_) sum += table[number];
            counts.Data()[number] = static_cast<std::int16_t>(sum);
        }
    }

  private:
    static constexpr std::size_t entries = 128;
    std::array<std::array<std::int16_t, entries>, 4> tables_{};
    unsigned seen_ = 0;
};

bool Ranks(const Counts& counts, int highest) {
    if (highest < 1 || highest > highestNumber) return false;
    const std::int16_t* first = counts.Data() + 1;
    return std::all_of(first, first + highest, [](std::int16_t count) { return count >= 0; });
}

}  // namespace

void CountNumberAt(Counts& counts, const State& state, int row, int column) {
    const int number = state.Draws(row, column);
    if (number < 0 || number > highestNumber) {
        throw FailureInFile(state.DbaseFile, headerLines + row,
                            "expected numbers from 0 to " + PlainDigits(highestNumber) + ", but " +
                                PlainDigits(number) + " stands there");
    }
    ++counts(number);
}

void CountNumbers(const State& state, NumberCounts& counts) {
    if (state.Picks > extraColumn) return plain::CountNumbers(state, counts);
    Tally main;
    Tally extra;
    for (int row = 1; state.Draws(row, 1) >= 1; ++row) {
        const std::int16_t* draw = state.Draws.Row(row);
        for (int column = 1; column <= state.Picks; ++column) main.Add(draw[column], column);
        extra.Add(draw[extraColumn], row);
    }
    if (!main.Complete() || !extra.Complete()) return plain::CountNumbers(state, counts);
    main.Store(counts.MainCount);
    extra.Store(counts.ExtraCount);
}

void ReverseCounts(Counts& counts, int highest) {
    int best = 1;
    for (int number = 1; number <= highest; ++number) {
        if (counts(number) > counts(best)) best = number;
    }
    const int most = counts(best);
    for (int number = 1; number <= highest; ++number) {
        counts(number) = static_cast<std::int16_t>(most - counts(number));
    }
}

int TakeHottest(Counts& counts, int highest) {
    int best = 1;
    for (int number = 1; number <= highest; ++number) {
        if (counts(number) > counts(best)) best = number;
    }
    counts(best) = static_cast<std::int16_t>(-counts(best));
    return best;
}

void GetHotNumbers(Counts& counts, int highest, List<std::int16_t, 121>& pool) {
    if (!Ranks(counts, highest)) return plain::GetHotNumbers(counts, highest, pool);
    // The count above the number's distance from the end: the greater key is the hotter number.
    std::array<unsigned, highestNumber> keys{};
    auto last = keys.begin();
    int lowestWithout = 0;
    for (int number = highest; number >= 1; --number) {
        std::int16_t& count = counts.Data()[number];
        if (count == 0) {
            lowestWithout = number;
            continue;
        }
        *last++ = static_cast<unsigned>(count) << 8U | static_cast<unsigned>(255 - number);
        count = static_cast<std::int16_t>(-count);
    }
    std::sort(keys.begin(), last, std::greater<>());
    std::int16_t* place = pool.Data();
    *place++ = 0;
    for (auto key = keys.begin(); key != last; ++key) {
        *place++ = static_cast<std::int16_t>(255 - (*key & 255U));
    }
    std::fill(place, pool.Data() + highest + 1, static_cast<std::int16_t>(lowestWithout));
}

std::string TenNumbersText(const TenNumbers& numbers) {
    std::string text = PlainDigits(numbers.front());
    for (std::size_t rank = 1; rank < numbers.size(); ++rank) {
        text += ',' + NumberText(numbers[rank]);
    }
    return text;
}

void plain::CountNumbers(const State& state, NumberCounts& counts) {
    counts.MainCount.Fill(0);
    counts.ExtraCount.Fill(0);
    for (int row = 1; state.Draws(row, 1) >= 1; ++row) {
        for (int column = 1; column <= state.Picks; ++column) {
            CountNumberAt(counts.MainCount, state, row, column);
        }
        CountNumberAt(counts.ExtraCount, state, row, extraColumn);
    }
}

void plain::GetHotNumbers(Counts& counts, int highest, List<std::int16_t, 121>& pool) {
    for (int place = 0; place <= highest; ++place) pool(place) = 0;
    for (int place = 1; place <= highest; ++place) {
        pool(place) = static_cast<std::int16_t>(TakeHottest(counts, highest));
    }
}
