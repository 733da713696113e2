// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/// Something that the program does not foresee, and that therefore ends the run: a malformed file,
/// an index beyond a table, a text that is no date.
///
/// The text is written for the user: which file, which line or field, what was expected, what
/// stands there. It is in Windows-1252, as all texts of the core are. Nothing catches a `Failure`
/// but the report at the end of the run.
class Failure : public std::runtime_error {
  public:
    explicit Failure(const std::string& text) : std::runtime_error(text) {}
};

/// The failure "<fileName>, line <line>: <text>"; lines count from 1.
Failure FailureInFile(std::string_view fileName, int line, std::string_view text);
