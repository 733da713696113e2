// SPDX-License-Identifier: GPL-3.0-or-later
// What a text of draws seems to hold, with reasons.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "databases/draw_records.h"
#include "databases/import_mapping.h"

/// What a note is about: the control of the form beside which it belongs.
enum class ImportTopic { Separator, Heading, Dates, Numbers, Extra, Columns, Product, SameDate };

/// Something that was understood, in a sentence for the user, such as "Day before month: 214 dates
/// have a day above 12."
struct ImportNote {
    ImportTopic topic;
    bool guess = false;  ///< Nothing in the text decides it; the form says so.
    std::string text;
};

/// What a text seems to hold.
struct ImportProposal {
    std::string refusal;  ///< Why there are no draws to be seen, and what to do; empty where the
                          ///< mapping is complete. The mapping holds what was found even so.
    ImportMapping mapping;
    std::vector<std::string> headings;  ///< By column, as they stand; empty without a heading row.
    std::vector<ImportNote> notes;
    std::string title;  ///< The lottery's name, by a title, the name of the game or a heading; or
                        ///< empty.
};

/// Understands the text. Where nothing decides between day and month first, the region's order is
/// taken. `separator` is the user's choice, or none.
///
/// Nothing is remembered between two calls, and the same text gives the same proposal.
ImportProposal ProposeImport(std::string_view text, const DateRules& dates,
                             std::optional<ImportSeparator> separator = {});

/// As above for a table that is cut already.
ImportProposal ProposeImport(const ImportTable& table, const DateRules& dates);

/// A name for a lottery out of a file's name or an address: "uk_lotto-2014.csv" gives "Uk lotto
/// 2014". Empty where nothing of it is a word.
std::string NameFromSource(std::string_view source);
