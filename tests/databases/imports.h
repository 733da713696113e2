// SPDX-License-Identifier: GPL-3.0-or-later
// Texts of draws as an import reads them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/text.h"
#include "databases/import_draws.h"
#include "databases/import_guess.h"
#include "tests/core/regions.h"

inline DateRules ImportRulesOfDates(Region::Order order = Region::Order::DayMonthYear) {
    return {.region = EnglishRegion(order), .today = std::chrono::year(2025) / 12 / 1};
}

/// What a text gives by the proposal alone.
struct Imported {
    ImportProposal proposal;
    ImportedDraws draws;
};

inline Imported ImportByProposal(std::string_view bytes,
                                 const DateRules& dates = ImportRulesOfDates()) {
    const ImportText decoded = DecodeImport(bytes);
    Imported imported;
    if (!decoded.refusal.empty()) {
        imported.proposal.refusal = decoded.refusal;
        return imported;
    }
    imported.proposal = ProposeImport(decoded.text, dates);
    if (!imported.proposal.refusal.empty()) return imported;
    const ImportTable table(decoded.text, imported.proposal.mapping.separator);
    imported.draws = ReadDraws(table, imported.proposal.mapping, dates);
    return imported;
}

inline std::string IsoDate(Date date) {
    const auto two = [](unsigned number) {
        return (number < 10 ? "0" : "") + std::to_string(number);
    };
    return std::to_string(static_cast<int>(date.year())) + "-" +
           two(static_cast<unsigned>(date.month())) + "-" + two(static_cast<unsigned>(date.day()));
}

/// "2024-10-14: 3, 17, 22, 34, 41, 48 + 9", as far as rows need comparing.
inline std::string LineOf(const ImportedDraw& draw) {
    return IsoDate(draw.date) + ": " + DrawInWords(draw);
}

inline std::vector<std::string> LinesOf(const std::vector<ImportedDraw>& draws) {
    std::vector<std::string> lines;
    for (const ImportedDraw& draw : draws) lines.push_back(LineOf(draw));
    return lines;
}

/// What was understood, for the report of a test that fails.
inline std::string NotesOf(const ImportProposal& proposal) {
    std::string text = proposal.refusal + "\n";
    for (const ImportNote& note : proposal.notes)
        text += (note.guess ? "? " : "  ") + note.text + "\n";
    for (const ColumnRole role : proposal.mapping.columns) {
        text += " " + std::to_string(static_cast<int>(role));
    }
    return text + "\n";
}
