// SPDX-License-Identifier: GPL-3.0-or-later
// Web pages as text that can be cut into rows.
#pragma once

#include <string>
#include <string_view>

/// Between two cells of a row of `CellsOfHtml`.
inline constexpr char cellBreak = '\x1F';

/// Ends a row without being a line end of the source.
inline constexpr char softBreak = '\x0B';

/// A line end of the source that is a blank to its reader.
inline constexpr char softLine = '\x0C';

/// The page's text without its tags. Lines within `<pre>` stay; elsewhere paragraphs, rows and the
/// like end a row (`softBreak`) and a line end is a blank (`softLine`), so that lines can still be
/// counted as the source has them.
std::string LinesOfHtml(std::string_view page);

/// The rows of all tables of the page, a line each, `cellBreak` between the cells; a cell over
/// several columns has empty ones behind it. Empty where the page has no table.
std::string CellsOfHtml(std::string_view page);

/// The page's title, or nothing.
std::string TitleOfHtml(std::string_view page);
