// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <bit>
#include <cstdint>
#include <stdexcept>
#include <vector>

#include "wheels/guarantee.h"

namespace {

using benchmark::State;
using wheels::FamilyOf;
using wheels::Guarantee;
using wheels::LineMasks;
using wheels::VerifyGuarantee;
using wheels::Wheel;
using wheels::WheelAt;
using wheels::WheelList;

constexpr WheelList largestList = WheelList::ThreeForSix;
constexpr int largestItem = 19;

// The 59 wheels that promise something, one after the other.
void VerifyAllWheels(State& run) {
    int wheelCount = 0;
    for (auto _ : run) {
        wheelCount = 0;
        for (const WheelList list : wheels::allWheelLists) {
            if (FamilyOf(list).matched == 0) continue;
            for (int item = 0; item < static_cast<int>(FamilyOf(list).items.size()); ++item) {
                benchmark::DoNotOptimize(VerifyGuarantee(list, item));
                ++wheelCount;
            }
        }
    }
    run.counters["wheels"] = wheelCount;
}

// 48 numbers in 165 lines: 12,271,512 selections.
void VerifyLargestWheel(State& run) {
    for (auto _ : run) {
        const Guarantee found = VerifyGuarantee(largestList, largestItem);
        if (found.selections != 12271512 || found.uncovered != 0) throw std::logic_error("wheel");
    }
}

bool HasMatch(const std::vector<std::uint64_t>& lines, std::uint64_t selection) {
    for (const std::uint64_t line : lines) {
        if (std::popcount(line & selection) >= 3) return true;
    }
    return false;
}

// Every selection by itself against one line after the other: sets of six bits, in the order of
// their values.
void VerifyLargestWheelPlainly(State& run) {
    const Wheel& wheel = WheelAt(largestList, largestItem);
    const std::vector<std::uint64_t> lines = LineMasks(wheel.pattern, 6);
    for (auto _ : run) {
        long long uncovered = 0;
        std::uint64_t selection = 0b111111;
        while (selection >> static_cast<unsigned>(wheel.numbers) == 0) {
            if (!HasMatch(lines, selection)) ++uncovered;
            const std::uint64_t lowest = selection & (~selection + 1);
            const std::uint64_t raised = selection + lowest;
            selection = raised | (((selection ^ raised) >> 2U) / lowest);
        }
        benchmark::DoNotOptimize(uncovered);
    }
}

BENCHMARK(VerifyAllWheels)->Name("VerifyAllWheels")->Unit(benchmark::kMillisecond);
BENCHMARK(VerifyLargestWheel)->Name("VerifyLargestWheel/bits")->Unit(benchmark::kMillisecond);
BENCHMARK(VerifyLargestWheelPlainly)
    ->Name("VerifyLargestWheel/plain")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

}  // namespace
