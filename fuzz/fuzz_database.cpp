// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>
#include <memory>

#include "core/draw_database.h"
#include "core/failure.h"
#include "core/memory_folder.h"

// Any bytes load or are a failure, and the folder stays as it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::unique_ptr<State> state = std::make_unique<State>();
    MemoryFolder folder;
    folder.Write("dbase1.txt", {reinterpret_cast<const char*>(data), size});
    const auto before = folder.Snapshot();
    try {
        ListDatabases(*state, folder);
        LoadDatabase(*state, folder, 0);
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with("dbase1.txt, line ")) std::abort();
    }
    if (folder.Snapshot() != before) std::abort();
    return 0;
}
