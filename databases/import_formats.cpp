// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_formats.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "databases/import_words.h"

namespace {

using namespace import_words;

constexpr std::string_view head =
    "# How draws were imported, the source used last first. A block begins with its source in "
    "square\r\n"
    "# brackets: a web address, the name of a file, or clipboard. Blocks may be edited and "
    "deleted.\r\n";

std::string HeadingsText(const std::vector<std::string>& headings) {
    std::string text;
    for (std::string heading : headings) {
        std::replace(heading.begin(), heading.end(), '|', '/');
        text += (text.empty() ? "" : " | ") + OneLine(heading);
    }
    return text;
}

bool SameShape(const ImportFormat& format, ImportSeparator separator, std::size_t columns,
               const std::vector<std::string>& headings) {
    if (format.mapping.separator != separator) return false;
    if (HeadingsText(format.headings) != HeadingsText(headings)) return false;
    return !headings.empty() || format.mapping.columns.size() == columns;
}

}  // namespace

bool ImportFormat::IsAddress() const {
    const std::string lower = LowerCase(source);
    return lower.starts_with("http://") || lower.starts_with("https://");
}

std::string ImportFormatsText(const ImportFormats& formats) {
    std::string text(head);
    const auto add = [&text](std::string_view name, std::string_view value) {
        text += std::string(name) + " = " + std::string(value) + "\r\n";
    };
    for (const ImportFormat& format : formats.formats) {
        const ImportMapping& mapping = format.mapping;
        text += "\r\n[" + OneLine(format.source) + "]\r\n";
        if (!format.database.empty()) add("lottery", OneLine(format.database));
        add("separator", NameOf(separators, mapping.separator));
        add("dates", NameOf(orders, mapping.dateOrder));
        if (!format.headings.empty()) add("headings", HeadingsText(format.headings));
        std::string columns;
        for (const ColumnRole role : mapping.columns) {
            columns += (columns.empty() ? "" : ", ") + std::string(NameOf(roles, role));
        }
        add("columns", columns);
        add("main numbers", PlainDigits(mapping.picks));
        add("extra ball", NameOf(drums, mapping.extraFromSameDrum));
        if (mapping.keptExtra != 1) add("kept extra", PlainDigits(mapping.keptExtra));
        add("draws of one date", NameOf(sameDates, mapping.sameDate));
        if (mapping.drawNumberColumn >= 0) {
            add("column of draw numbers", PlainDigits(mapping.drawNumberColumn + 1));
        }
        if (mapping.productColumn >= 0) {
            add("column of games", PlainDigits(mapping.productColumn + 1));
        }
        if (!mapping.product.empty()) add("game", OneLine(mapping.product));
    }
    if (!formats.unread.empty()) text += "\r\n" + formats.unread;
    return text;
}

void Remember(ImportFormats& formats, ImportFormat format) {
    std::erase_if(formats.formats,
                  [&format](const ImportFormat& other) { return other.source == format.source; });
    formats.formats.insert(formats.formats.begin(), std::move(format));
    if (formats.formats.size() > ImportFormats::most) formats.formats.resize(ImportFormats::most);
}

const ImportFormat* FormatFor(const ImportFormats& formats, std::string_view source,
                              ImportSeparator separator, std::size_t columns,
                              const std::vector<std::string>& headings) {
    const ImportFormat* alike = nullptr;
    for (const ImportFormat& format : formats.formats) {
        if (!SameShape(format, separator, columns, headings)) continue;
        if (format.source == source) return &format;
        if (alike == nullptr && !headings.empty()) alike = &format;
    }
    return alike;
}

const ImportFormat* FormatOfDatabase(const ImportFormats& formats, std::string_view database) {
    for (const ImportFormat& format : formats.formats) {
        if (!database.empty() && format.database == database) return &format;
    }
    return nullptr;
}
