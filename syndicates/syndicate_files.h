// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/program_folder.h"
#include "core/state.h"
#include "core/syndicate.h"

/// What is typed of a syndicate.
struct SyndicateDetails {
    std::string syndicate;
    std::array<std::string, memberDetails> manager;  ///< By column of `State::Members`.
};

/// The same without blanks at both ends of each text.
SyndicateDetails Trimmed(const SyndicateDetails& details);

/// Whether the two names that a syndicate must have are there.
bool HasNames(const SyndicateDetails& trimmed);

/// Row 0 of the members as details, and back.
SyndicateDetails DetailsOf(const State& state);
void PutDetails(State& state, const SyndicateDetails& details);

/// Saves the syndicate that is open, makes one with these details and opens it, its file being the
/// first from `SMembers.000` on that is free. What stands in the members without being saved goes
/// into the file of the old one.
void StartSyndicate(State& state, ProgramFolder& folder, const SyndicateDetails& trimmed);

struct ListedSyndicate {
    std::string name;
    std::string file;
};

/// The syndicates numbered 000 to 099 in the order of their files; others exist but are not listed.
std::vector<ListedSyndicate> ListSyndicates(const ProgramFolder& folder);

/// The diary that belongs to the file of a syndicate: "Diary." and its last three characters.
std::string DiaryFileOf(std::string_view syndicateFile);

/// Deletes the file of a syndicate and its diary, where they are there.
void DeleteSyndicateFiles(ProgramFolder& folder, std::string_view syndicateFile);
