// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "core/random.h"

/// The wheels told step by step, without regard to speed, for comparison: numbers go from `pool` to
/// `lines`, letter by letter and column by column.
struct PlainWheel {
    using Line = std::array<int, 15>;

    int picks = 6;
    int maxNum = 49;
    int maxPball = 0;
    std::vector<int> pool = std::vector<int>(121);
    std::array<std::array<int, 15>, 181> lines{};

    void Pairs(Random& random, std::string_view pattern) {
        int row = 1;
        for (std::size_t at = 0; at < pattern.size(); at += 2) {
            auto& line = lines[static_cast<std::size_t>(row)];
            const int one = pattern[at] - 'A';
            const int two = pattern[at + 1] - 'A';
            line[1] = Pool(2 * one);
            line[2] = Pool(2 * one + 1);
            line[3] = Pool(2 * two);
            line[4] = Pool(2 * two + 1);
            if (picks == 5) DrawUntilNew(random, line, 5);
            ExtraBall(random, line);
            ++row;
        }
        Sort();
    }

    void PairsOfSix(Random& random, std::string_view pattern) {
        int row = 1;
        for (std::size_t at = 0; at < pattern.size(); at += 3) {
            auto& line = lines[static_cast<std::size_t>(row)];
            const int one = pattern[at] - 'A';
            const int two = pattern[at + 1] - 'A';
            const int three = pattern[at + 2] - 'A';
            line[1] = Pool(2 * one);
            line[2] = Pool(2 * one + 1);
            line[3] = Pool(2 * two);
            line[4] = Pool(2 * two + 1);
            line[5] = Pool(2 * three);
            line[6] = Pool(2 * three + 1);
            if (picks == 7) DrawUntilNew(random, line, 7);
            ExtraBall(random, line);
            ++row;
        }
        Sort();
    }

    void Triplets(Random& random, std::string_view pattern) {
        int row = 1;
        for (std::size_t at = 0; at < pattern.size(); at += 2) {
            auto& line = lines[static_cast<std::size_t>(row)];
            const int one = pattern[at] - 'A';
            const int two = pattern[at + 1] - 'A';
            line[1] = Pool(3 * one);
            line[2] = Pool(3 * one + 1);
            line[3] = Pool(3 * one + 2);
            line[4] = Pool(3 * two);
            if (picks > 4) line[5] = Pool(3 * two + 1);
            if (picks > 5) line[6] = Pool(3 * two + 2);
            if (picks > 6) DrawUntilNew(random, line, 7);
            ExtraBall(random, line);
            ++row;
        }
        Sort();
    }

    /// `columns` is 7, 6 or 5, whatever the lottery picks.
    void Budget(Random& random, std::string_view pattern, int columns, int count) {
        int row = 1;
        for (std::size_t at = 0; at < pattern.size(); at += 2) {
            auto& line = lines[static_cast<std::size_t>(row)];
            const int one = pattern[at] - 'A';
            const int two = pattern[at + 1] - 'A';
            bool firstTwo = true;
            if (columns == 5) firstTwo = static_cast<float>(random.Next()) > 0.5F;
            line[1] = Pool(3 * one);
            line[2] = Pool(3 * one + 1);
            line[3] = Pool(3 * one + 2);
            if (columns == 5) {
                line[4] = Pool(3 * two + (firstTwo ? 0 : 1));
                line[5] = Pool(3 * two + (firstTwo ? 1 : 2));
            } else {
                line[4] = Pool(3 * two);
                line[5] = Pool(3 * two + 1);
                line[6] = Pool(3 * two + 2);
            }
            if (columns == 7) {
                do {
                    line[7] = Pool(static_cast<int>(random.Next() * count));
                } while (Repeats(line, 7));
            }
            ExtraBall(random, line);
            ++row;
        }
        Sort();
    }

    /// Every cell of `lines`, for a look at everything at once.
    std::vector<int> Cells() const {
        std::vector<int> cells;
        for (const Line& line : lines) cells.insert(cells.end(), line.begin(), line.end());
        return cells;
    }

    /// `base` is the code of the letter that stands for index 0 of the pool.
    void SixLetters(Random& random, std::string_view pattern, int base) {
        std::size_t offset = 0;
        std::size_t row = 1;
        do {
            auto& line = lines[row];
            for (std::size_t column = 1; column <= 6; ++column) {
                line[column] = Pool(pattern[offset + column - 1] - base);
            }
            if (picks == 5) line[6] = 0;
            if (picks == 7) DrawUntilNew(random, line, 7);
            ExtraBall(random, line);
            ++row;
            offset += 6;
        } while (offset != pattern.size());
        lines[row][1] = 0;
    }

    /// A try of guaranteed wheels: one swap after the other, then the letters.
    void Guaranteed(Random& random, std::string_view pattern, int numbers) {
        Mix(random, numbers);
        SixLetters(random, pattern, 64);
    }

    /// A try of the wheel of 49 with the table as its file holds it, place 1 first.
    void Wheel49(Random& random, const std::vector<int>& table) {
        Mix(random, 49);
        std::size_t place = 0;
        for (std::size_t row = 1; row <= 175; ++row) {
            auto& line = lines[row];
            for (std::size_t column = 1; column <= 6; ++column) line[column] = Pool(table[place++]);
            if (picks == 5) line[6] = 0;
            if (picks == 7) DrawUntilNew(random, line, 7);
            ExtraBall(random, line);
        }
        lines[176][1] = 0;
        Sort();
    }

  protected:
    void Mix(Random& random, int count) {
        for (int i = 1; i <= count; ++i) {
            const int j = static_cast<int>(count * random.Next()) + 1;
            std::swap(pool[static_cast<std::size_t>(i)], pool[static_cast<std::size_t>(j)]);
        }
    }

    int Pool(int index) const { return pool.at(static_cast<std::size_t>(index)); }

    static bool Repeats(const Line& line, std::size_t column) {
        for (std::size_t before = 1; before < column; ++before) {
            if (line[before] == line[column]) return true;
        }
        return false;
    }

    void DrawUntilNew(Random& random, Line& line, std::size_t column) const {
        do {
            line[column] = static_cast<int>(maxNum * random.Next()) + 1;
        } while (Repeats(line, column));
    }

    void ExtraBall(Random& random, Line& line) const {
        if (maxPball > 0) line[8] = static_cast<int>(maxPball * random.Next()) + 1;
    }

    void Sort() {
        std::size_t row = 1;
        do {
            Line& line = lines[row];
            const auto count = static_cast<std::size_t>(picks);
            for (std::size_t i = 1; i < count; ++i) {
                for (std::size_t j = count - 1; j >= i; --j) {
                    if (line[j + 1] < line[j]) std::swap(line[j], line[j + 1]);
                }
            }
            ++row;
        } while (lines[row][1] != 0);
    }
};
