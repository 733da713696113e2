// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

// Prints the usual table, and below it how many times as fast each routine is as the plain one of
// the same name in the same run.
class RatioReporter final : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            nanoseconds_[run.benchmark_name()] =
                run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e9;
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void Finalize() override {
        ConsoleReporter::Finalize();
        for (const auto& [name, fast] : nanoseconds_) {
            for (const char* kind : {"/bits", "/hash", "/fast"}) PrintRatio(name, kind, fast);
        }
    }

  private:
    void PrintRatio(std::string name, const std::string& kind, double fast) {
        const auto place = name.find(kind);
        if (place == std::string::npos) return;
        const std::string plainName = name.replace(place, kind.size(), "/plain");
        const auto plain = nanoseconds_.find(plainName);
        if (plain == nanoseconds_.end()) return;
        const std::string title = name.replace(place, std::string("/plain").size(), "");
        std::printf("%-40s plain %12.0f ns   fast %9.0f ns   ratio %7.0f\n", title.c_str(),
                    plain->second, fast, plain->second / fast);
    }

    std::map<std::string, double> nanoseconds_;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
