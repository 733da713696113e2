// SPDX-License-Identifier: GPL-3.0-or-later
// The construction of the supplied wheel of 49, part by part.
#include "tools/wheel49_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "test_folders.h"

namespace {

using Masks = std::vector<std::uint64_t>;

constexpr std::size_t cubeStart = 77;
constexpr std::size_t spareStart = 167;

std::uint64_t MaskOf(const std::vector<int>& places) {
    std::uint64_t mask = 0;
    for (const int place : places) mask |= std::uint64_t{1} << static_cast<unsigned>(place);
    return mask;
}

Masks MasksOf(std::size_t from, std::size_t to) {
    const std::vector<WheelLine> lines = Wheel49Lines();
    Masks masks;
    for (std::size_t line = from; line < to; ++line) {
        masks.push_back(MaskOf({lines.at(line).begin(), lines.at(line).end()}));
    }
    return masks;
}

std::ptrdiff_t LinesWith(const Masks& lines, std::uint64_t places, int matched) {
    return std::ranges::count_if(
        lines, [&](std::uint64_t line) { return std::popcount(line & places) >= matched; });
}

TEST(Wheel49Lines, AreWhatTheSuppliedFileHolds) {
    std::ifstream file(SUPPLIED_DATA "/wheel49.dat", std::ios::binary);
    ASSERT_TRUE(file);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(bytes == Wheel49File());
    EXPECT_EQ(bytes.substr(0, bytes.find('\n') + 1), "1,5,6,7,9,11\r\n");
    EXPECT_EQ(std::ranges::count(bytes, '\n'), 175);
    EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
}

TEST(Wheel49Lines, AreSixDifferentPlacesEachAndNoTwoAlike) {
    const std::vector<WheelLine> lines = Wheel49Lines();
    EXPECT_EQ(lines.size(), 175U);
    EXPECT_EQ(std::set<WheelLine>(lines.begin(), lines.end()).size(), 175U);
    for (const WheelLine& line : lines) {
        EXPECT_TRUE(std::ranges::is_sorted(line));
        EXPECT_EQ(std::set<int>(line.begin(), line.end()).size(), 6U);
        EXPECT_TRUE(line.front() >= 1 && line.back() <= 49);
    }
}

TEST(Wheel49Lines, HoldEachThreeOfTheFirstTwentyTwoOnce) {
    const Masks lines = MasksOf(0, cubeStart);
    for (int a = 1; a <= 22; ++a) {
        for (int b = a + 1; b <= 22; ++b) {
            for (int c = b + 1; c <= 22; ++c) {
                ASSERT_EQ(LinesWith(lines, MaskOf({a, b, c}), 3), 1) << a << ' ' << b << ' ' << c;
            }
        }
    }
    for (const std::uint64_t line : lines) EXPECT_LT(line, MaskOf({23}));
}

TEST(Wheel49Lines, HoldThreeOfEachFourOfTheOthers) {
    const Masks lines = MasksOf(cubeStart, spareStart);
    for (int a = 23; a <= 49; ++a) {
        for (int b = a + 1; b <= 49; ++b) {
            for (int c = b + 1; c <= 49; ++c) {
                for (int d = c + 1; d <= 49; ++d) {
                    ASSERT_GE(LinesWith(lines, MaskOf({a, b, c, d}), 3), 1)
                        << a << ' ' << b << ' ' << c << ' ' << d;
                }
            }
        }
    }
}

TEST(Wheel49Lines, PlayEveryPlaceTwentyOneOrTwentyTwoTimes) {
    const Masks lines = MasksOf(0, 175);
    int twice = 0;
    for (int place = 1; place <= 49; ++place) {
        const auto count = LinesWith(lines, MaskOf({place}), 1);
        EXPECT_TRUE(count == 21 || count == 22) << place << ": " << count;
        if (count == 22) ++twice;
    }
    EXPECT_EQ(twice, 21);
}

TEST(Wheel49Lines, PlayNoPlaceTwiceInTheSpareOnes) {
    std::uint64_t seen = 0;
    for (const std::uint64_t line : MasksOf(spareStart, 175)) {
        EXPECT_EQ(seen & line, 0U);
        seen |= line;
    }
    EXPECT_EQ(std::popcount(seen), 48);
}

/// How many selections of six of 49 have four or more in `line` and in no line of `others`.
class NewFourMatches {
  public:
    NewFourMatches(std::uint64_t line, const Masks& others) : line_(line) {
        for (const std::uint64_t other : others) {
            if (std::popcount(other & line) >= 2) near_.push_back(other);
        }
        Choose(1, 0, 6);
    }
    long long count = 0;

  private:
    void Choose(int place, std::uint64_t chosen, int missing) {
        if (6 - missing - std::popcount(chosen & line_) > 2) return;
        if (missing == 0) {
            if (LinesWith(near_, chosen, 4) == 0) ++count;
            return;
        }
        for (; place + missing <= 50; ++place) {
            Choose(place + 1, chosen | MaskOf({place}), missing - 1);
        }
    }

    std::uint64_t line_;
    Masks near_;  // no other shares four with a selection
};

TEST(Wheel49Lines, GainTheFourMatchesThatTheyTellByTheSpareOnes) {
    const Masks basis = MasksOf(0, spareStart);
    long long gained = 0;
    for (const std::uint64_t line : MasksOf(spareStart, 175)) {
        gained += NewFourMatches(line, basis).count;
    }
    EXPECT_EQ(gained, 101273);
}

}  // namespace
