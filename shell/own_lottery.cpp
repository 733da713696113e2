// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/own_lottery.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "core/field_reader.h"

namespace {

constexpr const char* sampleFiles = "dbasedemo*.txt";
constexpr int headerFields = 5;

/// The lottery as the head of its file tells it, as far as there is one.
OwnLottery ReadHead(std::string_view content, const std::string& file, const Region& region,
                    Date today) {
    OwnLottery lottery{.index = 0, .name = file, .newest = {}};
    FieldReader reader(content, file);
    if (reader.AtEnd()) return lottery;
    if (const std::string_view name = reader.ReadLine("the name"); !name.empty()) {
        lottery.name = name;
    }
    if (!reader.AtEnd()) reader.ReadLine("the web address");
    for (int field = 0; field < headerFields && !reader.AtEnd(); ++field) {
        reader.ReadField("a field of the header");
    }
    if (!reader.AtEnd()) {
        lottery.newest = ReadDate(reader.ReadField("the date of a draw"), region, today);
    }
    return lottery;
}

}  // namespace

LotteriesAtHand LookAtLotteries(const ProgramFolder& folder, const Region& region, Date today) {
    const std::vector<std::string> files = folder.Find("dbase*.txt");
    LotteriesAtHand lotteries{.any = !files.empty(), .own = {}};
    const auto own = std::ranges::find_if(
        files, [](const std::string& file) { return !NameMatches(file, sampleFiles); });
    if (own == files.end()) return lotteries;
    lotteries.own = ReadHead(folder.Read(*own), *own, region, today);
    lotteries.own->index = static_cast<std::int16_t>(own - files.begin());
    return lotteries;
}
