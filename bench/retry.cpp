// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/retry.h"

#include <chrono>
#include <ctime>
#include <string>

#include "bench/history.h"

namespace {

double Seconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

double ProcessorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

}  // namespace

void RetryAtStrengthTwo(benchmark::State& run, const GeneratorStyle& style,
                        const std::function<void(State& state, Random& random)>& playLotto) {
    const auto state = StateWithHistory(2);
    Random random([seed = std::uint64_t{0}]() mutable { return ++seed; });
    double tries = 0;
    std::string status;
    GeneratorSteps steps;
    steps.playLotto = [&] {
        playLotto(*state, random);
        ++tries;
    };
    steps.paintStatus = [&](const std::string& text) { status = text; };
    steps.showLines = [] {};
    steps.seconds = Seconds;
    const double start = Seconds();
    const double processorStart = ProcessorSeconds();
    for (auto _ : run) GenerateLines(*state, random, {true, true, true}, style, steps);
    run.counters["tries_in_10_s"] = tries / (Seconds() - start) * 10;
    run.counters["tries_in_10_s_of_processor"] = tries / (ProcessorSeconds() - processorStart) * 10;
    run.SetLabel(status);
}
