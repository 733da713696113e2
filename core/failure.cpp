// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/failure.h"

#include "core/table.h"

Failure FailureInFile(std::string_view fileName, int line, std::string_view text) {
    return Failure(std::string(fileName) + ", line " + std::to_string(line) + ": " +
                   std::string(text));
}
