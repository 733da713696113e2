// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/field_reader.h"
#include "core/program_folder.h"
#include "core/state.h"

/// Finds the draw databases, `dbase*.txt`, stores their file names in `state.DbaseFiles` from 0 and
/// returns the lotteries' names, line 1 of each, in the same order.
///
/// The 77th database is a `Failure`, and so is one without a first line.
std::vector<std::string> ListDatabases(State& state, const ProgramFolder& folder);

/// Makes the lottery of `state.DbaseFiles(index)` current: reads its header into the shared
/// variables and its draws into `state.Draws`, and empties the rows below them.
///
/// Numbers are stored as read, text that is no number as 0. More than 3,000 draws, a record that
/// the end of the file cuts short and a number beyond 16 bits are each a `Failure`.
void LoadDatabase(State& state, const ProgramFolder& folder, std::int16_t index);

/// As `LoadDatabase`, but reads the header only and leaves `state.Draws` with the rows of the
/// lottery that was loaded last.
void LoadDatabaseHeader(State& state, const ProgramFolder& folder, std::int16_t index);

/// Reads the header of a draw database, from its first line on, into the shared variables. A header
/// that the end of the file cuts short is a `Failure`.
void ReadDatabaseHeader(State& state, FieldReader& reader);

/// Reads the eight numbers that follow the date of a draw into `row[1]` to `row[8]`. A number
/// beyond 16 bits and a record that the end of the file cuts short are each a `Failure`.
void ReadDraw(std::int16_t* row, FieldReader& reader);
