// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_names.h"

#include <algorithm>
#include <set>

#include "core/text.h"
#include "databases/import_characters.h"
#include "databases/import_guess.h"
#include "databases/import_headings.h"

namespace {

constexpr std::size_t longestName = 40;

// Words that speak of the results rather than of the lottery.
bool IsCommonWord(const std::string& word) {
    static const std::set<std::string> words = {
        "winning",  "numbers", "results", "result", "draw",     "draws",  "history",
        "csv",      "txt",     "html",    "htm",    "download", "export", "archive",
        "data",     "file",    "latest",  "past",   "previous", "all",    "the",
        "operator", "page",    "www",     "com"};
    return words.contains(word);
}

std::string Capitalized(std::string text) {
    if (!text.empty()) text.replace(0, 1, UpperCase(text.substr(0, 1)));
    return text;
}

bool SameThroughout(const ImportTable& table, std::size_t firstRow, std::size_t column) {
    std::size_t rows = 0;
    for (std::size_t row = firstRow; row < table.Rows(); ++row) {
        if (table.Cell(row, column).empty()) continue;
        if (table.Cell(row, column) != table.Cell(firstRow, column)) return false;
        ++rows;
    }
    return rows >= 2;
}

}  // namespace

std::string TitleOfTable(const ImportTable& table, std::size_t firstRow,
                         const ImportMapping& mapping) {
    if (!mapping.product.empty()) return mapping.product;
    if (table.Rows() == 0) return {};
    for (std::size_t column = 0; column < std::min<std::size_t>(table.Columns(), 10); ++column) {
        const std::string_view cell = table.Cell(firstRow, column);
        const bool name = RoleOf(mapping, column) == ColumnRole::Nothing && cell.size() >= 3 &&
                          cell.size() <= longestName && IsLetterByte(cell.front());
        if (name && SameThroughout(table, firstRow, column)) return std::string(cell);
    }
    for (std::size_t row = 0; row < std::min<std::size_t>(firstRow, 10); ++row) {
        if (table.Cells(row) > 2 || KnownHeadings(table, row) >= 2) continue;
        const std::string_view cell = table.Cell(row, 0);
        if (cell.size() > longestName || !std::any_of(cell.begin(), cell.end(), IsLetterByte))
            continue;
        std::string name = NameFromTitle(cell);
        if (!name.empty()) return name;
    }
    return {};
}

std::string NameFromTitle(std::string_view title) {
    std::string name;
    title = title.substr(0, std::min(title.find_first_of("|:("), title.size()));
    while (!title.empty()) {
        const std::size_t end = std::min(title.find(' '), title.size());
        const std::string word(title.substr(0, end));
        title.remove_prefix(std::min(end + 1, title.size()));
        if (word.empty() || IsCommonWord(LowerCase(word))) continue;
        if (name.size() + word.size() + 1 > longestName) break;
        name += (name.empty() ? "" : " ") + word;
    }
    while (!name.empty() && (name.back() == '-' || name.back() == ' ')) name.pop_back();
    return std::any_of(name.begin(), name.end(), IsLetterByte) ? name : std::string();
}

std::string NameFromSource(std::string_view source) {
    source = source.substr(0, std::min(source.find_first_of("?#"), source.size()));
    while (source.ends_with('/')) source.remove_suffix(1);
    const std::size_t slash = source.find_last_of("/\\");
    if (slash != std::string_view::npos) source.remove_prefix(slash + 1);
    std::string words;
    for (const char byte : source.substr(0, std::min(source.rfind('.'), source.size()))) {
        words += IsLetterByte(byte) || IsDigitByte(byte) ? byte : ' ';
    }
    return Capitalized(NameFromTitle(words));
}
