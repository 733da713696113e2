// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "databases/import_characters.h"

namespace {

struct Kind {
    std::string_view head;
    std::string_view refusal;
};

constexpr std::string_view picture =
    "This is a picture. Draws are read from text: look for a results file to download, or copy the "
    "table from the web page.";
constexpr std::string_view archive =
    "This is an archive. Unpack it and choose the results file in it.";
constexpr std::string_view spreadsheet =
    "This is a spreadsheet in a format of its own. Open it in the spreadsheet program, save it as "
    "CSV, and choose that file.";
constexpr std::string_view document =
    "This is a word processor's document. Save it as plain text, or copy the table from it.";
constexpr std::string_view noText =
    "These bytes are no text. Choose a results file in text form, such as CSV.";

constexpr auto kinds = std::to_array<Kind>({
    {"\x89PNG", picture},
    {"\xFF\xD8\xFF", picture},
    {"GIF8", picture},
    {std::string_view("II*\0", 4), picture},
    {std::string_view("MM\0*", 4), picture},
    {"RIFF", picture},
    {"%PDF",
     "This is a PDF. Look for the same draws as CSV or as a web page, or copy the table "
     "from the PDF and import it from the clipboard."},
    {"\xD0\xCF\x11\xE0", spreadsheet},
    {"{\\rtf", document},
    {"\x1F\x8B", archive},
    {"7z\xBC\xAF", archive},
    {"Rar!", archive},
    {"BZh", archive},
    {"\xFD"
     "7zXZ",
     archive},
    {"SQLite format", noText},
});

std::string_view RefusalOfZip(std::string_view bytes) {
    const std::string_view head = bytes.substr(0, 64 * 1024);
    const auto holds = [head](std::string_view text) {
        return head.find(text) != std::string_view::npos;
    };
    if (holds("opendocument.spreadsheet") || holds("xl/")) return spreadsheet;
    if (holds("opendocument.text") || holds("word/")) return document;
    return archive;
}

std::string_view RefusalOf(std::string_view bytes) {
    if (bytes.find_first_not_of(" \t\r\n") == std::string_view::npos) {
        return "There is nothing in it.";
    }
    if (bytes.starts_with("PK\x03\x04")) return RefusalOfZip(bytes);
    for (const Kind& kind : kinds) {
        if (bytes.starts_with(kind.head)) return kind.refusal;
    }
    return {};
}

unsigned ByteAt(std::string_view bytes, std::size_t position) {
    return static_cast<unsigned char>(bytes[position]);
}

// The character that begins there and its length in bytes; nothing where that is no UTF-8.
struct Utf8Character {
    char32_t character;
    std::size_t length;
};
std::optional<Utf8Character> Utf8At(std::string_view bytes, std::size_t position) {
    const unsigned lead = ByteAt(bytes, position);
    if (lead < 0x80) return Utf8Character{lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || position + length > bytes.size()) return std::nullopt;
    char32_t character = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned next = ByteAt(bytes, position + i);
        if ((next & 0xC0U) != 0x80U) return std::nullopt;
        character = (character << 6U) | (next & 0x3FU);
    }
    return Utf8Character{character, length};
}

std::optional<std::string> FromUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t position = 0; position < bytes.size();) {
        const auto next = Utf8At(bytes, position);
        if (!next) return std::nullopt;
        AppendPlain(text, next->character);
        position += next->length;
    }
    return text;
}

std::string FromUtf16(std::string_view bytes, bool little) {
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t position = 0; position + 1 < bytes.size(); position += 2) {
        const unsigned first = ByteAt(bytes, position);
        const unsigned second = ByteAt(bytes, position + 1);
        const char32_t unit = little ? second << 8U | first : first << 8U | second;
        const bool behindSurrogate = unit >= 0xDC00 && unit <= 0xDFFF;
        if (!behindSurrogate) AppendPlain(text, unit);
    }
    return text;
}

// Which of two bytes is 0 in nearly all of the text, as in UTF-16 without a mark.
std::optional<ImportEncoding> Utf16WithoutMark(std::string_view bytes) {
    const std::string_view head = bytes.substr(0, 4096);
    std::array<std::size_t, 2> zeros{};
    for (std::size_t i = 0; i < head.size(); ++i) {
        if (head[i] == '\0') ++zeros[i % 2];
    }
    const std::size_t most = head.size() / 2 * 8 / 10;
    if (head.size() < 4 || most == 0) return std::nullopt;
    if (zeros[1] >= most && zeros[0] == 0) return ImportEncoding::Utf16LittleEndian;
    if (zeros[0] >= most && zeros[1] == 0) return ImportEncoding::Utf16BigEndian;
    return std::nullopt;
}

// Whether all bytes beyond ASCII pair up as Japanese characters do, most of them in the rows of
// kana and common kanji, whose first bytes are rare in Windows-1252.
bool IsShiftJis(std::string_view bytes) {
    std::size_t pairs = 0;
    std::size_t common = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const unsigned lead = ByteAt(bytes, i);
        if (lead < 0x80 || (lead >= 0xA1 && lead <= 0xDF)) continue;
        const bool leads = (lead >= 0x81 && lead <= 0x9F) || (lead >= 0xE0 && lead <= 0xFC);
        if (!leads || i + 1 == bytes.size()) return false;
        const unsigned trail = ByteAt(bytes, ++i);
        if (trail < 0x40 || trail == 0x7F || trail > 0xFC) return false;
        ++pairs;
        if (lead <= 0x9F) ++common;
    }
    return pairs >= 3 && common * 10 >= pairs * 6;
}

bool HasControlBytes(std::string_view bytes) {
    const auto controls = std::count_if(bytes.begin(), bytes.end(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code < 32 && code != '\t' && code != '\n' && code != '\r' && code != 0x0C;
    });
    return bytes.find('\0') != std::string_view::npos ||
           controls * 100 > static_cast<std::ptrdiff_t>(bytes.size());
}

ImportText Refused(std::string_view refusal) {
    return {.text = {}, .encoding = {}, .refusal = std::string(refusal)};
}

ImportText DecodeUnmarked(std::string_view bytes) {
    if (const auto encoding = Utf16WithoutMark(bytes)) {
        const bool little = *encoding == ImportEncoding::Utf16LittleEndian;
        return {.text = FromUtf16(bytes, little), .encoding = *encoding, .refusal = {}};
    }
    if (HasControlBytes(bytes)) return Refused(noText);
    if (auto text = FromUtf8(bytes)) {
        return {.text = std::move(*text), .encoding = ImportEncoding::Utf8, .refusal = {}};
    }
    if (IsShiftJis(bytes)) {
        return Refused(
            "This is Japanese text in Shift-JIS, which is not read. Save it as UTF-8, or copy the "
            "table from the web page.");
    }
    std::string text(bytes);
    std::replace(text.begin(), text.end(), '\xA0', ' ');
    std::replace(text.begin(), text.end(), '\x96', '-');
    return {.text = std::move(text), .encoding = ImportEncoding::Windows1252, .refusal = {}};
}

ImportText DecodeAny(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) return DecodeUnmarked(bytes.substr(3));
    const bool little = bytes.starts_with("\xFF\xFE");
    if (!little && !bytes.starts_with("\xFE\xFF")) return DecodeUnmarked(bytes);
    return {.text = FromUtf16(bytes.substr(2), little),
            .encoding = little ? ImportEncoding::Utf16LittleEndian : ImportEncoding::Utf16BigEndian,
            .refusal = {}};
}

}  // namespace

ImportText DecodeImport(std::string_view bytes) {
    if (bytes.size() > largestImport) return Refused(TooLargeToImport());
    const std::string_view refusal = RefusalOf(bytes);
    if (!refusal.empty()) return Refused(refusal);
    ImportText decoded = DecodeAny(bytes);
    if (decoded.refusal.empty() && HasControlBytes(decoded.text)) return Refused(noText);
    if (decoded.refusal.empty() && decoded.text.find_first_not_of(" \t\r\n") == std::string::npos) {
        return Refused("There is nothing in it.");
    }
    return decoded;
}

std::string TooLargeToImport() {
    return "This is larger than " + std::to_string(largestImport / 1024 / 1024) +
           " MB, far more than the draws of a lottery take. Save the newest draws alone as CSV, "
           "and "
           "choose that file.";
}

std::string EncodingInWords(ImportEncoding encoding) {
    switch (encoding) {
        case ImportEncoding::Utf8:
            return "UTF-8";
        case ImportEncoding::Utf16LittleEndian:
        case ImportEncoding::Utf16BigEndian:
            return "UTF-16";
        case ImportEncoding::Windows1252:
            return "Windows-1252";
    }
    return {};
}
