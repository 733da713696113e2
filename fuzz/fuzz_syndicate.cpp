// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "core/failure.h"
#include "core/memory_folder.h"
#include "core/settings.h"
#include "syndicates/syndicate_files.h"
#include "syndicates/syndicate_notes.h"

namespace {

// Any bytes read or are a failure that names the file.
template <typename Reading>
void Read(Reading reading, std::string_view place) {
    try {
        reading();
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with(place)) std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MemoryFolder folder;
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    folder.Write("SMembers.000", content);
    folder.Write(syndicateNotesFile, content);
    static const auto state = std::make_unique<State>();
    state->Settings(setting::SyndicateFile) = "SMembers.000";
    Read([&] { static_cast<void>(ListSyndicates(folder)); }, "SMembers.000, line ");
    Read(
        [&] {
            LoadSyndicate(*state, folder);
            SaveSyndicate(*state, folder);
        },
        "SMembers.000, line ");
    Read(
        [&] {
            const Notes notes = ReadSyndicateNotes(folder);
            SaveSyndicateNotes(folder, notes);
            if (ReadSyndicateNotes(folder) != notes) std::abort();
        },
        "SNotes.txt, line ");
    return 0;
}
