// SPDX-License-Identifier: GPL-3.0-or-later
// What a file, the clipboard or a web page holds, made into text before anybody looks for draws.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// In what bytes a text was written.
enum class ImportEncoding {
    Utf8,  ///< With a byte-order mark or without; plain ASCII is this too.
    Utf16LittleEndian,
    Utf16BigEndian,
    Windows1252,
};

/// A source larger than this is refused; a form asks for a file's size before it reads it.
inline constexpr std::size_t largestImport = 16 * 1024 * 1024;

/// What a source holds: its text, or a word on what to do instead.
struct ImportText {
    std::string text;  ///< Windows-1252, made plain as `AppendPlain` does.
    ImportEncoding encoding = ImportEncoding::Utf8;
    std::string refusal;  ///< What the source is and what to do instead; empty where `text` is.
};

/// Decodes a source. Refused are more than `largestImport` bytes, nothing at all, pictures, PDF,
/// spreadsheets in a format of their own, archives, other bytes that are no text, and Shift-JIS.
ImportText DecodeImport(std::string_view bytes);

/// The word on a source of more than `largestImport` bytes.
std::string TooLargeToImport();

/// "UTF-8", "UTF-16", "Windows-1252".
std::string EncodingInWords(ImportEncoding encoding);
