// SPDX-License-Identifier: GPL-3.0-or-later
// Text cut into rows and cells.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What stands between two cells of a row.
enum class ImportSeparator {
    Comma,
    Semicolon,
    Tab,
    Bar,
    Blanks,      ///< One blank or more.
    WideBlanks,  ///< Two blanks or more, or tabs; a single blank belongs to its cell.
    HtmlCells,   ///< The cells of a web page's tables.
};

/// The rows of a text that hold anything, each with its cells. Blanks around a cell and double
/// quotes around it are taken off; a cell may hold line ends between its quotes. Copies and moves
/// keep their own text.
class ImportTable {
  public:
    /// A row beyond this many cells loses the rest, a text beyond so many rows the rest of those.
    static constexpr std::size_t mostColumns = 400;
    static constexpr std::size_t mostRows = 200000;

    /// Cuts the text. Of a web page the text between tags is taken: the cells of its tables with
    /// `HtmlCells`, else its lines.
    ImportTable(std::string_view text, ImportSeparator separator);

    ImportSeparator Separator() const { return separator_; }
    std::size_t Rows() const { return rows_.size(); }
    std::size_t Cells(std::size_t row) const { return rows_[row].count; }

    /// The cell; empty where the row has none there. Rows and columns count from 0.
    std::string_view Cell(std::size_t row, std::size_t column) const;

    /// The line of the text, from 1, in which the row begins; for `HtmlCells` the number of the
    /// row among all rows of the page's tables.
    int Line(std::size_t row) const { return rows_[row].line; }

    /// The cells of the row as one text with ", " between, cut to 60 characters: how a row that is
    /// left out is shown.
    std::string RowText(std::size_t row) const;

    /// Whether the text goes on behind the last row that it takes.
    bool IsCut() const { return cut_; }

    /// The most cells of any row.
    std::size_t Columns() const { return columns_; }

  private:
    class Cutter;
    struct Row {
        std::uint32_t first;
        std::uint32_t count;
        int line;
    };
    struct Piece {
        std::uint32_t start;
        std::uint32_t length;
    };
    std::string text_;
    ImportSeparator separator_;
    std::vector<Row> rows_;
    std::vector<Piece> cells_;
    std::size_t columns_ = 0;
    bool cut_ = false;
};

/// Whether the text is a web page or a piece of one (the clipboard's HTML).
bool IsHtml(std::string_view text);

/// "comma", "semicolon", "tab", "bar", "blanks", "two blanks or more", "cells of the web page".
std::string SeparatorInWords(ImportSeparator separator);
