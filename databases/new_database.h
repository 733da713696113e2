// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/date.h"
#include "core/program_folder.h"

/// A lottery with its first draw, as the user has put it in. The texts are written as they stand.
struct NewLottery {
    std::string name;
    std::string address;
    std::string picks;                   ///< Numbers to pick.
    std::string highest;                 ///< Highest main number.
    std::string highestExtra;            ///< Highest extra ball; "0" where there is none.
    bool hasBonus = false;               ///< Whether a bonus ball is drawn from the main numbers.
    Date firstDraw;                      ///< Day of the first draw.
    std::array<std::string, 8> numbers;  ///< The first draw; the last is the bonus or extra ball.
};

/// Makes a new draw database of these bytes, the first of `dbase1.txt`, `dbase2.txt` and so on that
/// is free, and gives the file's name.
std::string CreateDatabaseFile(ProgramFolder& folder, std::string_view bytes);

/// Writes the lottery and its first draw to a new draw database and returns the file's name.
std::string CreateDatabase(ProgramFolder& folder, const NewLottery& lottery);

/// The names of all lotteries that have a draw database, however many there are. A database without
/// a first line is a `Failure`.
std::vector<std::string> LotteryNames(const ProgramFolder& folder);
