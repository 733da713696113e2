// SPDX-License-Identifier: GPL-3.0-or-later
// What the pages of all operators have in common.
#pragma once

#include <string>
#include <string_view>

/// The page without the byte-order mark that may stand at its head.
std::string_view WithoutMark(std::string_view page);

/// The text with every `from` replaced, looked for once from the left to the right.
std::string Replaced(std::string_view text, std::string_view from, std::string_view to);

/// What a failure expects in the place of the first date of a page.
inline constexpr std::string_view firstDate = "the date of the newest draw";
