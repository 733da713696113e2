// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/table.h"

#include <string>

#include "core/outside_table.h"

void FailOutsideTable(const char* name, long long row, long long column, std::size_t rows,
                      std::size_t columns) {
    throw OutsideTable("The table of " + std::string(name) + " was asked for row " +
                       std::to_string(row) + ", column " + std::to_string(column) +
                       "; its last row is " + std::to_string(rows - 1) + ", its last column " +
                       std::to_string(columns - 1) + ".");
}

void FailOutsideList(const char* name, long long index, std::size_t size) {
    throw OutsideTable("The list of " + std::string(name) + " was asked for entry " +
                       std::to_string(index) + "; its last entry is " + std::to_string(size - 1) +
                       ".");
}
