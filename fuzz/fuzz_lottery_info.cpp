// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <cstdlib>

#include "core/failure.h"
#include "core/memory_folder.h"
#include "shell/lottery_info.h"

// Any bytes are up to ten sections whose lines stand in the file, or a failure that names the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    MemoryFolder folder;
    folder.Write(lotteryInfoFile, content);
    try {
        const auto sections = ReadLotteryInfo(folder);
        if (sections.size() > 10) std::abort();
        for (const LotteryInfoSection& section : sections) {
            if (content.find('#' + section.caption) == std::string_view::npos) std::abort();
            if (!section.text.empty() && !section.text.ends_with("\r\n")) std::abort();
            if (section.text.starts_with('#')) std::abort();
        }
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with("Lottery Info.txt, line ")) std::abort();
    }
    return 0;
}
