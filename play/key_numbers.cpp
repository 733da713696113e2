// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/key_numbers.h"

#include <cstddef>

#include "play/pool.h"

namespace {

using key_numbers::Keys;

constexpr int extraColumn = 8;

// The places behind the numbers, at which a deal or the extra balls begin anew.
constexpr int wrapPlaces = 20;

// Kept on purpose: only every second place of the main numbers is swapped, every one of the extra
// balls.
constexpr int mainStep = 2;
constexpr int extraStep = 1;

void ShuffleNumbers(State& state, Random& random, int highest, int step) {
    FillPool(state, highest);
    ShufflePool(state, random, highest, step);
    ExtendPool(state, highest, wrapPlaces);
}

// The shuffled numbers from the first place on, dealt around the keys. Whatever the form has,
// three comparisons tell a key: one that it lacks repeats another.
class Deal {
  public:
    Deal(State& state, Keys keys)
        : state_(state),
          keys_(keys),
          first_(keys.front()),
          second_(keys[keys.size() / 2]),
          third_(keys.back()) {}

    void FillLine(int line) {
        const int picks = state_.Picks;
        state_.Lines(line, picks) = 0;  // a check of the last column does for all
        std::int16_t* numbers = state_.Lines.Row(line) + 1;
        int written = 0;
        for (const int key : keys_) numbers[written++] = static_cast<std::int16_t>(key);
        while (written < picks) {
            const std::int16_t number = state_.Pool(place_);
            ++place_;
            if (!IsKey(number)) numbers[written++] = number;
        }
    }

    bool Done() const { return place_ > state_.MaxNum; }

  private:
    bool IsKey(int number) const {
        return number == first_ || number == second_ || number == third_;
    }

    State& state_;
    Keys keys_;
    int first_;
    int second_;
    int third_;
    int place_ = 1;
};

void DealExtraBalls(State& state, Random& random) {
    ShuffleNumbers(state, random, state.MaxPball, extraStep);
    for (int line = 1; View(state).Lines(line, 1) != 0; ++line) {
        state.Lines(line, extraColumn) = state.Pool(line);
    }
}

}  // namespace

int key_numbers::LeastPicks(int keyCount) { return keyCount < 3 ? 4 : 5; }

void key_numbers::PlayLotto(State& state, Random& random, Keys keys) {
    ShuffleNumbers(state, random, state.MaxNum, mainStep);
    Deal deal(state, keys);
    int line = 0;
    do {
        ++line;
        deal.FillLine(line);
    } while (!deal.Done());
    state.Lines(line + 1, 1) = 0;
    if (state.MaxPball != 0) DealExtraBalls(state, random);
}
