// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/lottery_info.h"

#include "core/field_reader.h"

namespace {

constexpr std::size_t mostSections = 10;
constexpr char sectionMark = '#';

}  // namespace

std::vector<LotteryInfoSection> ReadLotteryInfo(const ProgramFolder& folder) {
    const std::string content = folder.Read(lotteryInfoFile);
    FieldReader reader(content, lotteryInfoFile);
    std::vector<LotteryInfoSection> sections;
    std::string_view line = reader.ReadLine("\"#\" and the name of a lottery");
    for (; !reader.AtEnd(); line = reader.ReadLine("a line about a lottery")) {
        if (line.starts_with(sectionMark)) {
            if (sections.size() == mostSections) {
                throw reader.Unexpected("no more than 10 lotteries", line);
            }
            sections.push_back({.caption = std::string(line.substr(1)), .text = {}});
        } else if (sections.empty()) {
            throw reader.Unexpected("\"#\" and the name of a lottery", line);
        } else {
            sections.back().text.append(line).append("\r\n");
        }
    }
    return sections;
}
