// SPDX-License-Identifier: GPL-3.0-or-later
// From the start of the process to the first paint: the main window against an empty QMainWindow.
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

constexpr int warmUps = 2;

/// Milliseconds of one run of the probe; negative where it failed.
double RunProbe(const std::string& what) {
    std::string program = STARTUP_PROBE;
    std::string argument = what;
    char* arguments[] = {program.data(), argument.data(), nullptr};
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    if (posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
        return -1;
    int status = 0;
    waitpid(process, &status, 0);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? time.count() : -1;
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// A folder as a user has it: the supplied files beside the program.
std::string SampleFolder() {
    const auto folder = std::filesystem::temp_directory_path() / "quillon_startup_bench";
    std::filesystem::remove_all(folder);
    std::filesystem::copy(SUPPLIED_DATA, folder, std::filesystem::copy_options::recursive);
    return folder.string();
}

void FirstPaint(benchmark::State& state) {
    const std::string folder = SampleFolder();
    std::vector<double> empty;
    std::vector<double> main;
    for (int i = 0; i < warmUps; ++i) {
        if (RunProbe("empty") < 0 || RunProbe(folder) < 0) {
            state.SkipWithError("the probe failed");
            return;
        }
    }
    // One after the other, so that whatever else the machine does slows both alike.
    for ([[maybe_unused]] auto _ : state) {
        empty.push_back(RunProbe("empty"));
        main.push_back(RunProbe(folder));
    }
    state.counters["empty_ms"] = Median(empty);
    state.counters["main_ms"] = Median(main);
    state.counters["ratio"] = Median(main) / Median(empty);
    std::filesystem::remove_all(folder);
}

BENCHMARK(FirstPaint)->Iterations(25)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argumentCount, char** arguments) {
    // Without a display the windows are painted in memory.
    if (std::getenv("DISPLAY") == nullptr && std::getenv("WAYLAND_DISPLAY") == nullptr) {
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    }
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
