// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "core/draw_index.h"
#include "core/table.h"

/// The shared variables of a run, once each, under the names that the whole program uses.
///
/// `main()` makes the one instance; every form and routine gets it by reference. Texts are in
/// Windows-1252. Tables are used from index 1; the end of one is marked by a 0 or an empty text in
/// the first column of the row behind its last.
struct State {
    /// The file `quillon.ini` in memory: line n of the file is slot n; slot 0 stays empty. The
    /// slots have their names in `core/settings.h`.
    List<std::string, 101> Settings{"settings"};

    /// Draw history of the current lottery. Row r is the r-th draw, the newest first; columns 1 to
    /// 7 are the main numbers in the order of the draw, column 8 the bonus or extra ball.
    Table<std::int16_t, 3001, 9> Draws{"draws"};

    /// Generated lines. Columns 1 to 7 are the main numbers, column 8 the extra ball.
    Table<std::int16_t, 181, 15> Lines{"lines"};

    /// Working list of candidate numbers; no value survives from one form to the next.
    List<std::int16_t, 121> Pool{"pool of numbers"};

    /// File names of the draw databases, in the order of the lists on screen.
    List<std::string, 76> DbaseFiles{"draw database files"};

    std::string DbaseFile;      ///< File name of the current draw database.
    std::string LotteryName;    ///< Line 1 of that file.
    std::string LotteryURL;     ///< Line 2 of that file.
    int Picks = 0;              ///< Main numbers in a line of the current lottery.
    int MaxNum = 0;             ///< Highest main number; the lowest is 1.
    int HasPball = 0;           ///< Carried from the file; nothing looks at it.
    int MaxPball = 0;           ///< Highest extra ball; above 0 the lottery has one.
    std::int16_t HasBonus = 0;  ///< Above 0 a bonus ball is drawn from the main numbers.

    /// -1 while a generator or a load runs in a form, else 0.
    std::int16_t Busy = 0;

    /// Carriage return and line feed; every message of several lines is built with it.
    std::string Crlf;

    /// The current syndicate: row 0 itself with its manager, rows 1 to 100 its members.
    Table<std::string, 102, 11> Members{"syndicate members"};

    /// What its file held when `Members` was last read from it or written to it.
    std::string MembersOnDisk;

    /// Lottery definitions offered when a database is created.
    Table<std::string, 201, 7> Templates{"lottery templates"};

    /// Derived from `Draws` for fast comparison; renews itself when `Draws` has changed.
    DrawIndex drawIndex;
};

/// The state for reading, where it could be changed too: a mutable access counts as a change of its
/// table, and what is derived from the table would renew itself for nothing.
inline const State& View(const State& state) { return state; }
