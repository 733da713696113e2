// SPDX-License-Identifier: GPL-3.0-or-later
// Results pages of 16 MiB, the largest that are fetched.
#include <benchmark/benchmark.h>

#include <string>

#include "databases/uk_results.h"
#include "databases/us_results.h"

namespace {

constexpr std::size_t pageSize = 16 * 1024 * 1024;

const DateRules rules{.region = {}, .today = std::chrono::year(2005) / 6 / 1};

std::string PageOf(const std::string& row) {
    std::string page;
    while (page.size() + row.size() <= pageSize) page += row;
    return page;
}

void UkPage(benchmark::State& run) {
    const std::string page = PageOf("01-Jun-2005,1,12,23,34,45,49,7,1,Arthur,1977\r\n");
    for (auto _ : run) {
        benchmark::DoNotOptimize(uk_results::DatabaseText(
            uk_results::WorkText(page), uk_results::LotteryAt(0), {"name", ""}, rules, "Temp.txt"));
    }
}

void MegaMillionsPage(benchmark::State& run) {
    const std::string page = PageOf("06/01/2005,1,12,23,34,45,Mega Ball: 49\r\n");
    const us_results::UsDates dates(rules);
    for (auto _ : run) {
        benchmark::DoNotOptimize(us_results::MegaMillionsDatabase(
            us_results::MegaMillionsWorkText(page), "", dates, "Temp.txt"));
    }
}

void PowerballPage(benchmark::State& run) {
    const std::string page = PageOf("06/01/2005  01  12  23  34  45  42  2\r\n");
    const us_results::UsDates dates(rules);
    for (auto _ : run) {
        benchmark::DoNotOptimize(us_results::PowerballDatabase(us_results::PowerballWorkText(page),
                                                               "", dates, "Temp.txt"));
    }
}

}  // namespace

BENCHMARK(UkPage)->Name("ResultsPage/UK/16_MiB")->Unit(benchmark::kMillisecond);
BENCHMARK(MegaMillionsPage)->Name("ResultsPage/MegaMillions/16_MiB")->Unit(benchmark::kMillisecond);
BENCHMARK(PowerballPage)->Name("ResultsPage/Powerball/16_MiB")->Unit(benchmark::kMillisecond);
