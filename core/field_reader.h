// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/failure.h"

/// Reads the texts that a file holds, field by field or line by line.
///
/// A field ends at a comma or at a line end, which are no different: a record with a missing field
/// takes its next one from the following line. Blanks around a field do not count. Line ends are
/// CR LF, LF or CR. A comma at the very end of the file leaves one more, empty, field.
class FieldReader {
  public:
    /// What double quotes around a field mean.
    enum class Quotes {
        Kept,     ///< Nothing: they belong to the field, as in all files that quote nothing.
        Removed,  ///< They are removed, and commas and blanks between them belong to the field. A
                  ///< quote that the same line does not close is kept.
    };

    /// `content` is the whole file and must outlive the reader; `fileName` is for reports.
    FieldReader(std::string_view content, std::string fileName, Quotes quotes = Quotes::Kept);

    /// Whether nothing is left, not even an empty field or line.
    bool AtEnd() const;

    /// The next field. Throws a `Failure` at the end of the file that names the file, the line and
    /// `expected`, such as "the number in column 3 of a draw".
    std::string_view ReadField(std::string_view expected);

    /// The next field where it is one to four digits right up to the comma or line end behind it,
    /// as nearly all fields of a draw database are; else nothing, and nothing is read.
    std::optional<std::int16_t> ReadShortNumber();

    /// Reads a plain record: a field that is passed over, then as many numbers as `numbers` takes,
    /// with commas between and a line end behind, each up to four digits and nothing else; one
    /// without a digit is 0. Where there is anything else, quotes that are removed included, it
    /// reads nothing, changes no number and says so: such records are read field by field.
    bool ReadPlainRecord(std::span<std::int16_t> numbers);

    /// The rest of the current line. Throws like `ReadField` at the end of the file.
    std::string_view ReadLine(std::string_view expected);

    /// Passes over what is left of the line in which the last field stands; that is nothing where
    /// the field was the last one of its line.
    void PassRestOfLine();

    /// Passes over line feeds that stand at the head of a line behind CR LF, each with the line end
    /// behind it where the line holds nothing else: what a file has whose lines were cut at CR.
    void PassStrayLineFeeds();

    /// All that is left, as it stands.
    std::string_view Rest();

    /// The line, from 1, in which the last field or line began; 1 before the first.
    int Line() const { return line_; }

    /// The failure that says what was expected in the last field or line, and what stands there.
    Failure Unexpected(std::string_view expected, std::string_view found) const;

    const std::string& FileName() const { return fileName_; }

  private:
    void RequireMore(std::string_view expected) const;
    bool EndsField(std::size_t position) const;
    std::size_t FieldEnd(std::size_t start) const;
    std::size_t ClosingQuote(std::size_t start);
    void PassFieldEnd();
    void PassLineEnd();

    std::string_view content_;
    std::string fileName_;
    Quotes quotes_;
    std::size_t position_ = 0;
    std::size_t noneCloses_ = 0;  // up to here no quote does
    bool fieldPending_ = false;   // a comma was the last thing read
    int line_ = 1;
    int nextLine_ = 1;
};
