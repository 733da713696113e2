// SPDX-License-Identifier: GPL-3.0-or-later
// Names for an imported lottery.
#pragma once

#include <string>
#include <string_view>

#include "databases/import_mapping.h"

/// The lottery's name as the table tells it: the game of its rows, or a title above `firstRow`, the
/// first row with a draw; else empty.
std::string TitleOfTable(const ImportTable& table, std::size_t firstRow,
                         const ImportMapping& mapping);

/// The name in a title, without such words as "winning numbers" and "results"; empty where nothing
/// is left.
std::string NameFromTitle(std::string_view title);
