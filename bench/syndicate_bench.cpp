// SPDX-License-Identifier: GPL-3.0-or-later
// The diary of a syndicate as full as it can be.
#include <benchmark/benchmark.h>

#include <memory>

#include "core/memory_folder.h"
#include "syndicates/diary.h"

namespace {

const CurrencyForm form;

struct Diary {
    explicit Diary(int records) {
        std::string content;
        for (int row = 1; row <= records; ++row) {
            content +=
                "\"01-Jun-2005\",\"5\",\"\xA3"
                "12.50\",\"\xA3"
                "0.00\",\"-\xA3"
                "12.50\",\"note\"\r\n";
        }
        folder.Write("Diary.000", content);
        LoadDiary(*table, folder, "Diary.000", form);
    }

    MemoryFolder folder;
    std::unique_ptr<DiaryTable> table = std::make_unique<DiaryTable>("diary");
};

void LoadFullDiary(benchmark::State& state) {
    const Diary diary(lastRecord);
    for (auto _ : state) {
        benchmark::DoNotOptimize(LoadDiary(*diary.table, diary.folder, "Diary.000", form));
    }
}

void TotalOfFullDiary(benchmark::State& state) {
    const Diary diary(lastRecord);
    for (auto _ : state) benchmark::DoNotOptimize(Total(*diary.table, form));
}

void RebalanceFullDiary(benchmark::State& state) {
    const Diary diary(lastRecord);
    for (auto _ : state) {
        for (int row = 1; row <= lastRecord; ++row) Rebalance(*diary.table, row, form);
    }
}

void DeleteFirstRecordOf998(benchmark::State& state) {
    const Diary diary(lastRecord - 1);
    for (auto _ : state) {
        DeleteRecord(*diary.table, 1);
        // The row that the deletion has freed is used again.
        (*diary.table)(lastRecord - 1, diary_column::Notes) = "note";
    }
}

BENCHMARK(LoadFullDiary)->Unit(benchmark::kMillisecond);
BENCHMARK(TotalOfFullDiary)->Unit(benchmark::kMillisecond);
BENCHMARK(RebalanceFullDiary)->Unit(benchmark::kMillisecond);
BENCHMARK(DeleteFirstRecordOf998)->Unit(benchmark::kMillisecond);

}  // namespace
