// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "core/failure.h"
#include "core/memory_folder.h"
#include "syndicates/diary.h"

// Any bytes read or are a failure, and what was read is the same after it was saved and read again,
// but for amounts, which lose what stands behind a group separator, and for quotes within a field.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    MemoryFolder folder;
    folder.Write("Diary.000", content);
    const CurrencyForm form;
    const auto first = std::make_unique<DiaryTable>("diary");
    const auto again = std::make_unique<DiaryTable>("diary");
    try {
        const int count = LoadDiary(*first, folder, "Diary.000", form);
        folder.Write("Diary.000", DiaryText(*first));
        if (content.find('"') != std::string_view::npos) return 0;
        if (LoadDiary(*again, folder, "Diary.000", form) != count) std::abort();
        for (int row = 1; row <= count; ++row) {
            for (int column = 0; column < diary_column::Count; ++column) {
                if (HoldsMoney(column)) continue;
                if ((*first)(row, column) != (*again)(row, column)) std::abort();
            }
        }
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with("Diary.000, line ")) std::abort();
    }
    return 0;
}
