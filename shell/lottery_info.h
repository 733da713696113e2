// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "core/program_folder.h"

inline constexpr const char* lotteryInfoFile = "Lottery Info.txt";

/// What the file tells about a lottery.
struct LotteryInfoSection {
    std::string caption;
    std::string text;  ///< Each line with a line end behind it.
    bool operator==(const LotteryInfoSection&) const = default;
};

/// Reads `Lottery Info.txt`: a line that begins with "#" opens a section, and the last line of the
/// file, whatever it holds, is left out.
///
/// A missing or empty file, a first line that opens no section though others follow, and an
/// eleventh section are each a `Failure`.
std::vector<LotteryInfoSection> ReadLotteryInfo(const ProgramFolder& folder);
