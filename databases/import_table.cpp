// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_table.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "databases/import_html.h"

namespace {

bool IsBlank(char character) {
    return character == ' ' || character == '\t' || character == softLine;
}

bool IsRowEnd(char character) {
    return character == '\n' || character == '\r' || character == softBreak;
}

// The sign between two cells; for runs of blanks there is none.
char SignOf(ImportSeparator separator) {
    switch (separator) {
        case ImportSeparator::Comma:
            return ',';
        case ImportSeparator::Semicolon:
            return ';';
        case ImportSeparator::Tab:
            return '\t';
        case ImportSeparator::Bar:
            return '|';
        case ImportSeparator::HtmlCells:
            return cellBreak;
        case ImportSeparator::Blanks:
        case ImportSeparator::WideBlanks:
            return '\0';
    }
    return '\0';
}

std::string TextToCut(std::string_view text, ImportSeparator separator) {
    if (!IsHtml(text)) return std::string(text);
    return separator == ImportSeparator::HtmlCells ? CellsOfHtml(text) : LinesOfHtml(text);
}

// A quoted cell may go over so many line ends.
constexpr int mostLinesOfCell = 10;

}  // namespace

/// Cuts one text into rows of cells.
class ImportTable::Cutter {
  public:
    Cutter(ImportTable& table, ImportSeparator separator)
        : table_(table),
          text_(table.text_),
          sign_(SignOf(separator)),
          wide_(separator == ImportSeparator::WideBlanks) {}

    void Cut() {
        while (position_ < text_.size() && table_.rows_.size() < mostRows) CutRow();
        table_.cut_ = text_.find_first_not_of(" \t\r\n", position_) != std::string::npos;
    }

  private:
    void CutRow() {
        Row row{static_cast<std::uint32_t>(table_.cells_.size()), 0, line_};
        bool filled = false;
        bool more = true;
        while (more) {
            const Piece cell = NextCell(more);
            if (row.count == mostColumns) continue;
            table_.cells_.push_back(cell);
            ++row.count;
            filled = filled || cell.length > 0;
        }
        PassRowEnd();
        if (!filled) {
            table_.cells_.resize(row.first);
            return;
        }
        table_.rows_.push_back(row);
        table_.columns_ = std::max<std::size_t>(table_.columns_, row.count);
    }

    // Reads one cell and the separator behind it; `more` says whether there was one.
    Piece NextCell(bool& more) {
        while (position_ < text_.size() && IsBlank(text_[position_]) && text_[position_] != sign_) {
            PassCharacter();
        }
        Piece cell = Quoted();
        if (cell.start == none) cell = Plain();
        if (sign_ == '\0') {
            while (position_ < text_.size() && IsBlank(text_[position_])) PassCharacter();
            more = position_ < text_.size() && !IsRowEnd(text_[position_]);
        } else {
            more = position_ < text_.size() && text_[position_] == sign_;
            if (more) ++position_;
        }
        return cell;
    }

    void PassCharacter() {
        if (text_[position_] == softLine) ++line_;
        ++position_;
    }

    Piece Plain() {
        const std::size_t start = position_;
        while (position_ < text_.size() && !EndsCell(position_)) PassCharacter();
        std::size_t end = position_;
        while (end > start && IsBlank(text_[end - 1])) --end;
        return Unwrapped(start, end);
    }

    bool EndsCell(std::size_t at) const {
        const char character = text_[at];
        if (IsRowEnd(character)) return true;
        if (sign_ != '\0') return character == sign_;
        if (!IsBlank(character)) return false;
        return !wide_ || character == '\t' || (at + 1 < text_.size() && IsBlank(text_[at + 1]));
    }

    // A cell as spreadsheets write it to keep leading zeros (="03"), or in single quotes.
    Piece Unwrapped(std::size_t start, std::size_t end) const {
        if (end - start > 3 && text_[start] == '=' && text_[start + 1] == '"' &&
            text_[end - 1] == '"') {
            return MakePiece(start + 2, end - 1);
        }
        if (end - start > 2 && text_[start] == '\'' && text_[end - 1] == '\'') {
            return MakePiece(start + 1, end - 1);
        }
        return MakePiece(start, end);
    }

    static Piece MakePiece(std::size_t start, std::size_t end) {
        return {static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end - start)};
    }

    // The cell in double quotes that begins here, or one that starts at `none`.
    Piece Quoted() {
        const Piece no{none, 0};
        if (position_ >= text_.size() || text_[position_] != '"' || position_ < noneCloses_)
            return no;
        std::size_t write = position_ + 1;
        const std::size_t start = write;
        int lines = 0;
        std::size_t at = write;
        const std::size_t close = ClosingQuote(lines);
        if (close == none) return no;
        for (; at < close; ++at) {
            if (text_[at] == '"' && text_[at + 1] == '"') ++at;
            text_[write++] = text_[at];
        }
        line_ += lines;
        position_ = close + 1;
        while (position_ < text_.size() && !EndsCell(position_)) PassCharacter();
        std::size_t first = start;
        while (first < write && IsBlank(text_[first])) ++first;
        while (write > first && IsBlank(text_[write - 1])) --write;
        return MakePiece(first, write);
    }

    // The quote that closes the one here: one with nothing but blanks up to the end of the cell.
    std::size_t ClosingQuote(int& lines) {
        std::size_t at = position_ + 1;
        for (; at < text_.size() && lines <= mostLinesOfCell; ++at) {
            if (text_[at] == '\n' || text_[at] == softLine) ++lines;
            if (text_[at] != '"') continue;
            if (at + 1 < text_.size() && text_[at + 1] == '"') {
                ++at;
                continue;
            }
            std::size_t behind = at + 1;
            while (behind < text_.size() && text_[behind] == ' ' && sign_ != '\0') ++behind;
            if (behind == text_.size() || EndsCell(behind)) return at;
        }
        noneCloses_ = at;
        return none;
    }

    void PassRowEnd() {
        if (position_ >= text_.size()) return;
        const char character = text_[position_++];
        if (character == softBreak) return;
        ++line_;
        if (character == '\r' && position_ < text_.size() && text_[position_] == '\n') ++position_;
    }

    static constexpr std::uint32_t none = 0xFFFFFFFF;
    ImportTable& table_;
    std::string& text_;
    char sign_;
    bool wide_;
    std::size_t position_ = 0;
    std::size_t noneCloses_ = 0;  // up to here no quote does
    int line_ = 1;
};

ImportTable::ImportTable(std::string_view text, ImportSeparator separator)
    : text_(TextToCut(text, separator)), separator_(separator) {
    Cutter(*this, separator).Cut();
}

std::string_view ImportTable::Cell(std::size_t row, std::size_t column) const {
    const Row& cells = rows_[row];
    if (column >= cells.count) return {};
    const Piece& piece = cells_[cells.first + column];
    return std::string_view(text_).substr(piece.start, piece.length);
}

std::string ImportTable::RowText(std::size_t row) const {
    constexpr std::size_t longest = 60;
    std::string text;
    for (std::size_t column = 0; column < Cells(row) && text.size() <= longest; ++column) {
        if (column > 0) text += ", ";
        text += Cell(row, column).substr(0, longest + 1);
    }
    std::replace_if(
        text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 32; },
        ' ');
    return text.size() > longest ? text.substr(0, longest - 3) + "..." : text;
}

bool IsHtml(std::string_view text) {
    constexpr auto marks = std::to_array<std::string_view>(
        {"<html", "<table", "<!doctype html", "<pre", "<tr", "<body"});
    const std::string head = LowerCase(text.substr(0, 16 * 1024));
    return std::any_of(marks.begin(), marks.end(), [&head](std::string_view mark) {
        return head.find(mark) != std::string::npos;
    });
}

std::string SeparatorInWords(ImportSeparator separator) {
    switch (separator) {
        case ImportSeparator::Comma:
            return "comma";
        case ImportSeparator::Semicolon:
            return "semicolon";
        case ImportSeparator::Tab:
            return "tab";
        case ImportSeparator::Bar:
            return "bar";
        case ImportSeparator::Blanks:
            return "blanks";
        case ImportSeparator::WideBlanks:
            return "two blanks or more";
        case ImportSeparator::HtmlCells:
            return "cells of the web page";
    }
    return {};
}
