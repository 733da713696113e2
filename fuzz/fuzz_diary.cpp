// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "core/failure.h"
#include "core/memory_folder.h"
#include "syndicates/diary.h"

namespace {

// Empties the rows that an input before this one may have reached.
void Empty(DiaryTable& diary, int reached) {
    for (int row = 1; row <= reached; ++row) {
        std::fill_n(diary.Row(row), diary_column::Count, std::string());
    }
}

// How many records so many bytes can hold at most.
int MostRecords(std::size_t bytes) {
    return static_cast<int>(std::min<std::size_t>(lastRecord, bytes / diary_column::Count + 1));
}

}  // namespace

// Any bytes read or are a failure, and what was read is the same after it was saved and read again,
// but for amounts, which lose what stands behind a group separator, and for quotes within a field.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    MemoryFolder folder;
    folder.Write("Diary.000", content);
    const CurrencyForm form;
    static const auto first = std::make_unique<DiaryTable>("diary");
    static const auto again = std::make_unique<DiaryTable>("diary");
    static int reached = 0;
    Empty(*first, reached);
    Empty(*again, reached);
    reached = MostRecords(size);
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
