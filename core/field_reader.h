// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Reads the texts that a file holds, field by field or line by line.
///
/// A field ends at a comma or at a line end, which are no different: a record with a missing field
/// takes its next one from the following line. Blanks around a field do not count. Double quotes
/// around a field are removed, and a comma between them belongs to the field. Line ends are CR LF,
/// LF or CR. A comma at the very end of the file leaves one more, empty, field.
class FieldReader {
  public:
    /// `content` is the whole file and must outlive the reader; `fileName` is for reports.
    FieldReader(std::string_view content, std::string fileName);

    /// Whether nothing is left, not even an empty field or line.
    bool AtEnd() const;

    /// The next field. Throws a `Failure` at the end of the file that names the file, the line and
    /// `expected`, such as "the number in column 3 of a draw".
    std::string_view ReadField(std::string_view expected);

    /// The rest of the current line. Throws like `ReadField` at the end of the file.
    std::string_view ReadLine(std::string_view expected);

    /// All that is left, as it stands.
    std::string_view Rest();

    /// The line, from 1, in which the last field or line began; 1 before the first.
    int Line() const { return line_; }

    const std::string& FileName() const { return fileName_; }

  private:
    std::string_view content_;
    std::string fileName_;
    std::size_t position_ = 0;
    bool fieldPending_ = false;  // a comma was the last thing read
    int line_ = 1;
    int nextLine_ = 1;
};
