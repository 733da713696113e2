// SPDX-License-Identifier: GPL-3.0-or-later
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "core/failure.h"
#include "core/memory_folder.h"
#include "play/pool.h"
#include "wheels/wheel_of_49.h"

// Any bytes are a table or a failure that names the file. A table makes lines of different numbers
// up to 49, or is a failure of the place that is none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::unique_ptr<State> state = std::make_unique<State>();
    static Random random([] { return std::uint64_t{1}; });
    MemoryFolder folder;
    folder.Write(wheel49::tableFile, {reinterpret_cast<const char*>(data), size});
    wheel49::Table table{};
    try {
        table = wheel49::ReadTable(folder);
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with("wheel49.dat, line ")) std::abort();
        return 0;
    }
    for (const std::uint64_t line : wheel49::LineMasks(table)) {
        if (std::popcount(line) > 6 || line >> wheel49::numberCount != 0) std::abort();
    }
    state->Picks = 6;
    state->MaxNum = wheel49::numberCount;
    FillPool(*state, wheel49::numberCount);
    try {
        wheel49::DoWheel(*state, random, table);
    } catch (const Failure&) {
    }
    return 0;
}
