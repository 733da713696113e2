// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/report.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <set>
#include <string_view>

namespace {

constexpr std::string_view plainKind = "/plain";

/// "1.36 ms": three digits that count, in the unit that suits.
std::string Time(double nanoseconds) {
    constexpr std::array<const char*, 4> units = {"ns", "us", "ms", "s"};
    std::size_t unit = 0;
    while (nanoseconds >= 1000 && unit + 1 < units.size()) {
        nanoseconds /= 1000;
        ++unit;
    }
    std::array<char, 32> text{};
    const int decimals = nanoseconds < 10 ? 2 : nanoseconds < 100 ? 1 : 0;
    std::snprintf(text.data(), text.size(), "%.*f %s", decimals, nanoseconds, units.at(unit));
    return text.data();
}

/// What the system says of a thing in one of its tables: the text behind "name:" or "name=".
std::string Told(const char* file, std::string_view name, char separator) {
    std::ifstream table(file);
    std::string line;
    while (std::getline(table, line)) {
        const std::size_t place = line.find(separator);
        if (!line.starts_with(name) || place == std::string::npos) continue;
        const std::size_t begin = line.find_first_not_of(" \t\"", place + 1);
        if (begin == std::string::npos) break;
        return line.substr(begin, line.find_last_not_of(" \t\"") + 1 - begin);
    }
    return "unknown";
}

}  // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
        nanoseconds_[run.benchmark_name()] =
            run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e9;
    }
    ConsoleReporter::ReportRuns(runs);
}

void RatioReporter::Finalize() {
    ConsoleReporter::Finalize();
    for (const Pair& pair : Pairs()) {
        std::printf("%-40s plain %12.0f ns   fast %9.0f ns   ratio %7.0f\n", pair.title.c_str(),
                    pair.plain, pair.fast, pair.plain / pair.fast);
    }
}

std::vector<RatioReporter::Pair> RatioReporter::Pairs() const {
    std::vector<Pair> pairs;
    for (const auto& [name, fast] : nanoseconds_) {
        for (const std::string_view kind : {"/bits", "/hash", "/fast"}) {
            const std::size_t place = name.find(kind);
            if (place == std::string::npos) continue;
            std::string plainName = name;
            const auto plain = nanoseconds_.find(plainName.replace(place, kind.size(), plainKind));
            if (plain == nanoseconds_.end()) continue;
            std::string title = name;
            pairs.push_back({title.erase(place, kind.size()), plain->second, fast});
        }
    }
    return pairs;
}

void RatioReporter::WritePage(std::ostream& page) const {
    page << "# Performance\n\n"
            "Written by the benchmark program itself; nothing here is typed by hand. To measure it "
            "again:\n\n"
            "```sh\n"
            "cmake --preset release && cmake --build --preset release --target quillon_bench\n"
            "build/release/bench/quillon_bench --page=docs/performance.md\n"
            "```\n\n"
            "Measured on "
         << Told("/proc/cpuinfo", "model name", ':') << ", " << benchmark::CPUInfo::Get().num_cpus
         << " cores, " << Told("/etc/os-release", "PRETTY_NAME", '=') << ", g++ " << __VERSION__
         << ".\nDraws are those of real lotteries where their histories lie beside the clone, else "
            "made "
            "up.\n\n"
            "## Plain against fast\n\n"
            "A plain routine does what is asked step by step, as it would be told. The fast one "
            "gives the "
            "same result,\nwhich tests compare, and both are measured in one run.\n\n"
            "| routine | plain | fast | times as fast |\n|---|---:|---:|---:|\n";
    std::set<std::string> titles;
    for (const Pair& pair : Pairs()) {
        titles.insert(pair.title);
        std::array<char, 32> ratio{};
        std::snprintf(ratio.data(), ratio.size(), "%.*f", pair.plain < 10 * pair.fast ? 1 : 0,
                      pair.plain / pair.fast);
        page << "| " << pair.title << " | " << Time(pair.plain) << " | " << Time(pair.fast) << " | "
             << ratio.data() << " |\n";
    }
    page << "\n## All else\n\n| routine | time |\n|---|---:|\n";
    for (const auto& [name, time] : nanoseconds_) {
        std::string title = name;
        for (const std::string_view kind : {plainKind, std::string_view("/bits"),
                                            std::string_view("/hash"), std::string_view("/fast")}) {
            const std::size_t place = title.find(kind);
            if (place != std::string::npos) title.erase(place, kind.size());
        }
        if (!titles.contains(title)) page << "| " << name << " | " << Time(time) << " |\n";
    }
}
