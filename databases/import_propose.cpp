// SPDX-License-Identifier: GPL-3.0-or-later
// Understanding a text whose separator is not known.
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "databases/import_draws.h"
#include "databases/import_guess.h"
#include "databases/import_html.h"
#include "databases/import_names.h"

namespace {

// The beginning, the middle and the end of a long text, whole lines each.
std::string Excerpt(const std::string& text) {
    constexpr std::size_t part = 16 * 1024;
    if (text.size() <= 4 * part) return text;
    std::string excerpt = text.substr(0, text.rfind('\n', part) + 1);
    for (const std::size_t start : {text.size() / 2, text.size() - part}) {
        const std::size_t line = text.find('\n', start);
        if (line == std::string::npos) return text;
        const std::size_t end = std::min(text.rfind('\n', line + part), text.size());
        excerpt += text.substr(line + 1, end - line);
    }
    return excerpt;
}

// What a text without draws is, where that tells what to do instead.
std::string RefusalOf(std::string_view text) {
    if (IsHtml(text)) {
        return "This is a web page without any table of draws. Look for a results file to download "
               "on it, or copy the table itself and import it from the clipboard.";
    }
    constexpr std::string_view blanks = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    const bool xml = text.starts_with('<');
    const std::size_t second = text.find_first_not_of(blanks, 1);
    const bool json = (text.starts_with('{') || text.starts_with('[')) &&
                      second != std::string_view::npos &&
                      std::string_view("\"[{]}").find(text[second]) != std::string_view::npos;
    if (!xml && !json) return {};
    return std::string("This is ") + (xml ? "XML" : "JSON") +
           ", which programs exchange and no draws are read from. Look for the same draws as CSV "
           "or "
           "as a table on a web page.";
}

ImportSeparator BestSeparator(std::string_view text, const DateRules& dates) {
    using enum ImportSeparator;
    constexpr auto all = std::to_array({HtmlCells, Tab, Semicolon, Bar, Comma, WideBlanks, Blanks});
    const bool page = IsHtml(text);
    const std::string excerpt = Excerpt(page ? LinesOfHtml(text) : std::string(text));
    std::optional<ImportSeparator> dated;
    ImportSeparator best = Comma;
    std::size_t most = 0;
    for (const ImportSeparator separator : all) {
        if (separator == HtmlCells && !page) continue;
        const ImportTable table(separator == HtmlCells ? text : std::string_view(excerpt),
                                separator);
        const ImportProposal proposal = ProposeImport(table, dates);
        if (!proposal.refusal.empty()) {
            // What to say of a text without draws is best told where its dates are found.
            if (!dated && !ColumnsOf(proposal.mapping, ColumnRole::Dated).empty()) {
                dated = separator;
            }
            continue;
        }
        const std::size_t draws = ReadDraws(table, proposal.mapping, dates).draws.size();
        if (draws * 20 <= most * 21) continue;
        most = draws;
        best = separator;
    }
    return most > 0 ? best : dated.value_or(best);
}

}  // namespace

ImportProposal ProposeImport(std::string_view text, const DateRules& dates,
                             std::optional<ImportSeparator> separator) {
    const ImportSeparator chosen = separator ? *separator : BestSeparator(text, dates);
    ImportProposal proposal = ProposeImport(ImportTable(text, chosen), dates);
    proposal.notes.insert(proposal.notes.begin(),
                          {.topic = ImportTopic::Separator,
                           .guess = false,
                           .text = "Cells are separated by: " + SeparatorInWords(chosen) + "."});
    if (!proposal.refusal.empty()) {
        std::string refusal = RefusalOf(text);
        if (!refusal.empty()) proposal.refusal = std::move(refusal);
    }
    if (!IsHtml(text)) return proposal;
    // Tables for the layout of a page stand before that of the draws; its title knows better.
    if (proposal.mapping.product.empty()) {
        const std::string title = NameFromTitle(TitleOfHtml(text));
        if (!title.empty()) proposal.title = title;
    }
    return proposal;
}
