// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/own_lottery.h"

#include <algorithm>
#include <vector>

#include "core/database_summary.h"

namespace {

constexpr const char* sampleFiles = "dbasedemo*.txt";

}  // namespace

LotteriesAtHand LookAtLotteries(const ProgramFolder& folder, const Region& region, Date today) {
    const std::vector<std::string> files = folder.Find("dbase*.txt");
    LotteriesAtHand lotteries{.any = !files.empty(), .own = {}};
    const auto own = std::ranges::find_if(
        files, [](const std::string& file) { return !NameMatches(file, sampleFiles); });
    if (own == files.end()) return lotteries;
    const DatabaseSummary summary = SummaryOf(folder, *own, region, today);
    lotteries.own = {.index = static_cast<std::int16_t>(own - files.begin()),
                     .name = summary.lottery.empty() ? *own : summary.lottery,
                     .newest = summary.newest};
    return lotteries;
}
