// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <cstdlib>

#include "core/failure.h"
#include "core/memory_folder.h"
#include "shell/notes_file.h"

// Any bytes read or are a failure, and what was read is the same after it was saved and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MemoryFolder folder;
    folder.Write(notesFile, {reinterpret_cast<const char*>(data), size});
    try {
        const Notes notes = ReadNotes(folder);
        SaveNotes(folder, notes);
        if (ReadNotes(folder) != notes) std::abort();
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with("Notes.txt, line ")) std::abort();
    }
    return 0;
}
