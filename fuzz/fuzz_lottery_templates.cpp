// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "core/failure.h"
#include "core/memory_folder.h"
#include "databases/lottery_templates.h"

// Any bytes load or are a failure that names the file, and the names can be listed then.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::unique_ptr<State> state = std::make_unique<State>();
    MemoryFolder folder;
    folder.Write(lotteryTemplatesFile, {reinterpret_cast<const char*>(data), size});
    try {
        LoadLotteryTemplates(*state, folder);
        static_cast<void>(TemplateNames(*state));
    } catch (const Failure& failure) {
        const std::string_view text = failure.what();
        if (!text.starts_with("LotteryTemplates.txt, line ")) std::abort();
    }
    return 0;
}
