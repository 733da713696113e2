// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/draw_database.h"
#include "core/memory_folder.h"
#include "tests/support/real_histories.h"

/// Loads one real history after the other into `state` and calls `action` with the lottery's name;
/// false where there is no folder of real histories, which a test answers by skipping itself.
template <typename Action>
bool ForEachRealHistory(State& state, Action action) {
    MemoryFolder folder;
    if (!AddRealHistories(folder)) return false;
    const auto names = ListDatabases(state, folder);
    for (std::size_t index = 0; index < names.size(); ++index) {
        LoadDatabase(state, folder, static_cast<std::int16_t>(index));
        action(names[index]);
    }
    return true;
}
