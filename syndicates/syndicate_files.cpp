// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/syndicate_files.h"

#include <algorithm>

#include "core/field_reader.h"
#include "core/old_files.h"
#include "core/saving.h"
#include "core/settings.h"
#include "core/text.h"

namespace {

std::string NameInFile(const ProgramFolder& folder, const std::string& file) {
    const std::string content = folder.Read(file);
    FieldReader reader(content, file, FieldReader::Quotes::Removed);
    std::string field;
    for (int column = 0; column <= member_column::SyndicateName; ++column) {
        field = reader.ReadField("a field of the syndicate");
    }
    return field;
}

}  // namespace

SyndicateDetails Trimmed(const SyndicateDetails& details) {
    SyndicateDetails trimmed{.syndicate = Trim(details.syndicate), .manager = details.manager};
    for (std::string& text : trimmed.manager) text = Trim(text);
    return trimmed;
}

bool HasNames(const SyndicateDetails& trimmed) {
    return !trimmed.syndicate.empty() && !trimmed.manager.front().empty();
}

SyndicateDetails DetailsOf(const State& state) {
    SyndicateDetails details;
    details.syndicate = state.Members(0, member_column::SyndicateName);
    int column = 0;
    for (std::string& text : details.manager) text = state.Members(0, column++);
    return details;
}

void PutDetails(State& state, const SyndicateDetails& details) {
    state.Members(0, member_column::SyndicateName) = details.syndicate;
    int column = 0;
    for (const std::string& text : details.manager) state.Members(0, column++) = text;
}

void StartSyndicate(State& state, ProgramFolder& folder, const SyndicateDetails& trimmed) {
    const auto create = [&] {
        state.Members.Fill({});
        PutDetails(state, trimmed);
        state.MembersOnDisk = SyndicateText(state);
        const auto name = [](int number) { return NumberedName("SMembers", number); };
        state.Settings(setting::SyndicateFile) =
            CreateNumbered(folder, 0, name, state.MembersOnDisk);
    };
    SaveAll({[&] { SaveSyndicate(state, folder); }, create});
}

std::vector<ListedSyndicate> ListSyndicates(const ProgramFolder& folder) {
    std::vector<ListedSyndicate> syndicates;
    for (const std::string& file : folder.Find("SMembers.0??")) {
        syndicates.push_back({.name = NameInFile(folder, file), .file = file});
    }
    return syndicates;
}

std::string DiaryFileOf(std::string_view syndicateFile) {
    constexpr std::size_t number = 3;
    const std::size_t start = syndicateFile.size() - std::min(number, syndicateFile.size());
    return "Diary." + std::string(syndicateFile.substr(start));
}

void DeleteSyndicateFiles(ProgramFolder& folder, std::string_view syndicateFile) {
    for (const std::string& file : {std::string(syndicateFile), DiaryFileOf(syndicateFile)}) {
        if (folder.Exists(file)) DeleteKeepingOld(folder, file);
    }
}
