// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/results_page.h"

std::string_view WithoutMark(std::string_view page) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (page.starts_with(mark)) page.remove_prefix(mark.size());
    return page;
}

std::string Replaced(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    result.reserve(text.size());
    std::size_t start = 0;
    for (;;) {
        const std::size_t found = text.find(from, start);
        result += text.substr(start, found - start);
        if (found == std::string_view::npos) return result;
        result += to;
        start = found + from.size();
    }
}
