// SPDX-License-Identifier: GPL-3.0-or-later
// Characters of all the world in Windows-1252, for reading dates and numbers.
#pragma once

#include <string>
#include <string_view>

/// Appends the character in Windows-1252, plain where that reads better: any blank as " ", any dash
/// as "-", digits and signs of full width as ASCII, letters that Windows-1252 lacks without their
/// accents, Cyrillic and Greek ones in Latin letters, the signs of Japanese dates as "/". Marks
/// without width append nothing, what is left is "?".
void AppendPlain(std::string& text, char32_t character);

/// Whether the byte is a letter of Windows-1252.
bool IsLetterByte(char byte);

/// Whether the byte is an ASCII digit.
inline bool IsDigitByte(char byte) { return byte >= '0' && byte <= '9'; }

/// Lower case without accents, for comparing words.
std::string PlainLetters(std::string_view word);
