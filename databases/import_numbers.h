// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers of balls as cells hold them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// What a cell holds that could be one ball.
inline constexpr int emptyCell = -1;
inline constexpr int noNumber = -2;

/// The number of a ball, 0 to 99, in a cell: "7", "07", "7.0", "(7)"; `emptyCell` for nothing, "-",
/// "NaN" and the like; `noNumber` for anything else.
int BallNumber(std::string_view cell);

/// The whole number in a cell of plain digits, at most nine; else -1.
int PlainNumber(std::string_view cell);

/// Several numbers of balls in one cell.
struct BallList {
    static constexpr std::size_t most = 24;
    std::array<std::int8_t, most> numbers{};
    std::size_t count = 0;
};

/// Reads "09 19 34 44 51", "9-19-34-44-51", "[3, 5, 8]", "3 5 8 12 40 + 7", "3 5 8 12 40 PB 7": any
/// signs and short words between numbers from 0 to 99. Without any number, with longer ones or too
/// many the list is empty.
BallList ReadBallList(std::string_view cell);

/// Reads "091934444551": nothing but digits, two for each of four to eight numbers from 1 to 99;
/// else the list is empty.
BallList ReadGluedBalls(std::string_view cell);
