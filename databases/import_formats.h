// SPDX-License-Identifier: GPL-3.0-or-later
// Remembered mappings: the file `ImportFormats.txt`.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "databases/import_mapping.h"

inline constexpr std::string_view importFormatsFile = "ImportFormats.txt";

/// A mapping that was used, and for what.
struct ImportFormat {
    std::string source;    ///< Web address, or bare name of the file, or "clipboard".
    std::string database;  ///< File of the draw database that it went into, "dbase1.txt", or empty.
    std::vector<std::string> headings;  ///< The table's headings; empty where it had none.
    ImportMapping mapping;

    /// Whether the source is a web address, so that it can be fetched again by itself.
    bool IsAddress() const;

    friend bool operator==(const ImportFormat&, const ImportFormat&) = default;
};

/// The content of the file.
struct ImportFormats {
    static constexpr std::size_t most = 50;  ///< Beyond that the one longest unused is forgotten.

    std::vector<ImportFormat> formats;  ///< The one used last first.
    std::vector<std::string> problems;  ///< Line, what was expected and what stands there; the
                                        ///< block around it is not used.
    std::string unread;                 ///< Those blocks as they stand; they are written back.
};

/// Reads the file, however it was edited: order of lines, case and blanks do not count, and what is
/// left out has its usual value. A block with a mistake is kept as it stands and told in
/// `problems`.
ImportFormats ReadImportFormats(std::string_view content);

/// The file's bytes, with lines that explain it at its head. Reading them gives the same formats.
std::string ImportFormatsText(const ImportFormats& formats);

/// Puts the format in front of the others, in place of one of the same source.
void Remember(ImportFormats& formats, ImportFormat format);

/// The format for a table: of the same source and shape, else of the same headings; null where
/// there is none. Tables have the same shape where separator and headings agree, or without any
/// headings the number of columns.
const ImportFormat* FormatFor(const ImportFormats& formats, std::string_view source,
                              ImportSeparator separator, std::size_t columns,
                              const std::vector<std::string>& headings);

/// The remembered source of a draw database, for an update by one click; null where there is none.
const ImportFormat* FormatOfDatabase(const ImportFormats& formats, std::string_view database);
