// SPDX-License-Identifier: GPL-3.0-or-later
// quillon_bench [--page=FILE] [options of the benchmark library]
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/report.h"

int main(int argc, char** argv) {
    std::string pageFile;
    std::vector<char*> others;
    for (int i = 0; i < argc; ++i) {
        constexpr std::string_view pageOption = "--page=";
        const std::string_view argument = argv[i];
        if (argument.starts_with(pageOption)) {
            pageFile = argument.substr(pageOption.size());
        } else {
            others.push_back(argv[i]);
        }
    }
    int count = static_cast<int>(others.size());
    benchmark::Initialize(&count, others.data());
    if (benchmark::ReportUnrecognizedArguments(count, others.data())) return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    if (pageFile.empty()) return 0;
    std::ofstream page(pageFile);
    reporter.WritePage(page);
    if (!page.flush()) {
        std::fprintf(stderr, "%s could not be written\n", pageFile.c_str());
        return 1;
    }
    return 0;
}
