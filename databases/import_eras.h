// SPDX-License-Identifier: GPL-3.0-or-later
// Where the rules of a lottery changed.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "databases/import_draws.h"

/// The rules of a lottery as its draws show them.
struct ImportRules {
    int picks = 6;
    int highest = 49;
    int highestExtra = 0;  ///< Of a ball from a drum of its own; 0 where there is none.
    bool hasBonus = false;

    friend bool operator==(const ImportRules&, const ImportRules&) = default;
};

/// "6 of 1 to 59, bonus from the same numbers", "5 of 1 to 70, extra ball of 1 to 25".
std::string RulesInWords(const ImportRules& rules);

/// What of the program cannot be used with such a lottery, as a sentence for the user; empty where
/// nothing is in the way.
std::string CautionAbout(const ImportRules& rules);

/// The rules that these draws show.
ImportRules RulesOf(const std::vector<ImportedDraw>& draws, bool extraFromSameDrum);

/// A time in which one set of rules held.
struct ImportEra {
    std::size_t first = 0;  ///< Its draws in the list of all, newest first: from `first` on,
    std::size_t count = 0;  ///< this many.
    Date from;              ///< Its oldest draw.
    Date to;                ///< Its newest draw.
    ImportRules rules;
    std::string change;  ///< What is new in it: "numbers above 49 from 10 Oct 2015 on"; empty in
                         ///< the oldest era.
};

/// The eras of the draws, which are newest first; the newest era first, one where no rule changed.
/// An era is told from chance: its rules must fit its draws far better than one set for all would.
std::vector<ImportEra> FindEras(const std::vector<ImportedDraw>& draws, bool extraFromSameDrum);

/// The draws of one era alone; those of the others go with the rows left out.
ImportedDraws OnlyEra(const ImportedDraws& imported, const ImportEra& era);
