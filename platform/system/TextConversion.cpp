// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/TextConversion.h"

#include <QList>
#include <algorithm>
#include <array>

namespace {

// Windows-1252 from 0x80 to 0x9F; all other bytes are the characters of the same number, and so are
// the five that it leaves open.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t Character(unsigned char byte) {
    const bool own = byte >= 0x80 && byte <= 0x9F;
    return own ? upperControls.at(byte - 0x80U) : static_cast<char16_t>(byte);
}

char Byte(char32_t character) {
    if (character < 0x80 || (character > 0x9F && character <= 0xFF))
        return static_cast<char>(character);
    const auto found = std::find(upperControls.begin(), upperControls.end(), character);
    if (found == upperControls.end()) return '?';
    return static_cast<char>(0x80 + (found - upperControls.begin()));
}

}  // namespace

QString ToQString(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(),
                   [](char byte) { return QChar(Character(static_cast<unsigned char>(byte))); });
    return result;
}

std::string FromQString(const QString& text) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (const char32_t character : text.normalized(QString::NormalizationForm_C).toUcs4()) {
        result += Byte(character);
    }
    return result;
}
