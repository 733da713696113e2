// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "tests/wheels/plain_wheels.h"

/// The wheels without letters told step by step, without regard to speed, for comparison.
class PlainRing : public PlainWheel {
    template <typename Table>
    static auto& At(Table& table, int index) {
        return table.at(static_cast<std::size_t>(index));
    }

  public:
    PlainRing(int picksOfLine, int highest, int highestExtra)
        : PlainWheel{picksOfLine, highest, highestExtra} {}

    /// From the history in `draws` (columns 1 to 8 of each row) to `lines`.
    void Hot(const std::vector<std::vector<int>>& draws, int numbers, int interval, bool cold) {
        std::vector<int> mainCount(71);
        std::vector<int> extraCount(71);
        for (const auto& draw : draws) {
            for (int column = 1; column <= picks; ++column) ++At(mainCount, At(draw, column));
            ++At(extraCount, At(draw, 8));
        }
        if (cold) Invert(mainCount, maxNum);
        Rank(mainCount, maxNum);
        hottest.clear();
        for (int place = 1; place <= 10; ++place) hottest.push_back(At(pool, place));
        HotLines(numbers, interval);
        if (maxPball != 0) {
            for (int i = 1; i <= maxPball; ++i) At(mainCount, i) = At(extraCount, i);
            if (cold) Invert(mainCount, maxPball);
            Rank(mainCount, maxPball);
            for (int row = 1; row <= 10; ++row) At(At(lines, row), 8) = At(pool, row);
        }
        Sort();
    }

    /// From `pool` to `lines`.
    void Own(Random& random, int numbers, int interval) {
        int row = 1;
        int offset = 0;
        while (true) {
            int q = offset;
            for (int column = 1; column <= picks; ++column) {
                At(At(lines, row), column) = At(pool, q);
                q = (q + 1) % numbers;
            }
            ExtraBall(random, At(lines, row));
            offset += interval;
            ++row;
            if (offset >= numbers) break;
        }
        At(At(lines, row), 1) = 0;
        Sort();
    }

    std::vector<int> hottest;

  private:
    void HotLines(int numbers, int interval) {
        for (int i = 1; i <= 3; ++i) std::swap(At(pool, i), At(pool, 7 - i));
        int row = 1;
        int offset = 0;
        while (true) {
            int q = offset;
            for (int column = 1; column <= picks; ++column) {
                At(At(lines, row), column) = At(pool, q + 1);
                q = (q + 1) % numbers;
            }
            offset += interval;
            ++row;
            if (picks + offset > numbers + 4) break;
        }
        At(At(lines, row), 1) = 0;
    }

    static int Highest(const std::vector<int>& count, int n) {
        int best = 1;
        for (int i = 1; i <= n; ++i) {
            if (At(count, i) > At(count, best)) best = i;
        }
        return best;
    }

    static void Invert(std::vector<int>& count, int n) {
        const int most = At(count, Highest(count, n));
        for (int i = 1; i <= n; ++i) At(count, i) = most - At(count, i);
    }

    void Rank(std::vector<int>& count, int n) {
        for (int place = 0; place <= n; ++place) At(pool, place) = 0;
        for (int place = 1; place <= n; ++place) {
            const int best = Highest(count, n);
            At(pool, place) = best;
            At(count, best) = -At(count, best);
        }
    }
};
