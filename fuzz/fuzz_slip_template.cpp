// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <cstdlib>

#include "core/failure.h"
#include "core/memory_folder.h"
#include "printing/slip_marks.h"

namespace {

constexpr auto file = "PTemplate.000";

template <typename Action>
void Try(Action action) {
    try {
        action();
    } catch (const Failure& failure) {
        const std::string_view text = failure.what();
        const bool told = text.starts_with("PTemplate.000, line ") ||
                          text.starts_with("Slip template ") || text.starts_with("Lottery slip: ");
        if (!told) std::abort();
    }
}

}  // namespace

// Any bytes read or are a failure, whose text names the place. What was read and generated anew can
// be written, and prints the same from the file as from the form.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MemoryFolder folder;
    folder.Write(file, {reinterpret_cast<const char*>(data), size});
    Try([&] { SlipsOf(ReadSlipLayout(folder, file), {{1, 2, 60}, {3, 0, 0, 0, 0, 0, 0, 9}}); });
    Try([&] {
        SlipTemplate slip = ReadSlipTemplate(folder, file);
        GeneratePositions(slip, 49, 14);
        WriteSlipTemplate(folder, file, slip);
        const SlipLayout typed = LayoutOf(slip);
        const SlipLayout read = ReadSlipLayout(folder, file);
        if (typed.markWidth != read.markWidth || typed.marginY != read.marginY) std::abort();
        for (int number = 1; number <= highestOnSlip; ++number) {
            if (typed.positions(number, numberX) != read.positions(number, numberX)) std::abort();
        }
    });
    return 0;
}
