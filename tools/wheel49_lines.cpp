// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/wheel49_lines.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <initializer_list>

#include "core/text.h"

namespace {

constexpr int firstPart = 22;

/// The points of the cube are counted 9x + 3y + z; its place in the wheel follows the first part.
constexpr int PlaceInWheel(int point) { return firstPart + 1 + point; }

/// The words of the Golay code are the multiples, without carry, of this polynomial.
constexpr unsigned golayGenerator = 0b1010'1110'0011;
constexpr unsigned golayMessages = 1U << 12U;

unsigned GolayWord(unsigned message) {
    unsigned word = 0;
    for (unsigned bit = 0; bit < 12; ++bit) {
        if ((message >> bit & 1U) != 0) word ^= golayGenerator << bit;
    }
    return word;
}

// The words of weight 7 hold each four of the 23 bits together once. Those with bit 0, which is
// then left out, hold each three of the other 22 once.
void AddSteinerSystem(std::vector<WheelLine>& lines) {
    for (unsigned message = 0; message < golayMessages; ++message) {
        const unsigned word = GolayWord(message);
        if (std::popcount(word) != 7 || (word & 1U) == 0) continue;
        WheelLine& line = lines.emplace_back();
        std::size_t count = 0;
        for (int bit = 1; bit <= firstPart; ++bit) {
            if ((word >> static_cast<unsigned>(bit) & 1U) != 0) line[count++] = bit;
        }
    }
}

int Moved(int point, int by) {
    const int x = (point / 9 + by / 9) % 3;
    const int y = (point / 3 + by / 3) % 3;
    const int z = (point + by) % 3;
    return 9 * x + 3 * y + z;
}

WheelLine MovedLine(const WheelLine& base, int by) {
    WheelLine line{};
    std::ranges::transform(base, line.begin(),
                           [by](int point) { return PlaceInWheel(Moved(point, by)); });
    std::ranges::sort(line);
    return line;
}

// A line that comes back to itself after some moves counts once: the fourth one has nine places.
void AddCube(std::vector<WheelLine>& lines) {
    constexpr std::array<WheelLine, 4> bases{{{0, 1, 3, 13, 22, 26},
                                              {0, 1, 5, 7, 9, 24},
                                              {0, 1, 15, 20, 21, 24},
                                              {0, 4, 11, 12, 19, 23}}};
    for (const WheelLine& base : bases) {
        for (int by = 0; by < 27; ++by) {
            const WheelLine line = MovedLine(base, by);
            if (std::ranges::find(lines, line) == lines.end()) lines.push_back(line);
        }
    }
}

void AddSpareLines(std::vector<WheelLine>& lines) {
    const std::initializer_list<std::vector<int>> squaresAndRows = {
        {0, 1, 9, 10}, {3, 4, 12, 13}, {6, 7, 15, 16}, {2, 5, 8},
        {11, 14, 17},  {18, 19, 20},   {21, 22, 23},   {24, 25, 26}};
    int next = 1;
    for (const std::vector<int>& points : squaresAndRows) {
        WheelLine& line = lines.emplace_back();
        std::size_t count = 0;
        while (count < line.size() - points.size()) line[count++] = next++;
        for (const int point : points) line[count++] = PlaceInWheel(point);
    }
}

}  // namespace

std::vector<WheelLine> Wheel49Lines() {
    std::vector<WheelLine> lines;
    AddSteinerSystem(lines);
    AddCube(lines);
    AddSpareLines(lines);
    return lines;
}

std::string Wheel49File() {
    std::string bytes;
    for (const WheelLine& line : Wheel49Lines()) {
        for (const int place : line) {
            bytes += PlainDigits(place);
            bytes += ',';
        }
        bytes.pop_back();
        bytes += "\r\n";
    }
    return bytes;
}
