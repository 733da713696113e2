// SPDX-License-Identifier: GPL-3.0-or-later
// Writes what is supplied about well-known lotteries: `make_lottery_info FOLDER`.
#include <filesystem>
#include <fstream>
#include <iostream>

#include "tools/lottery_info_text.h"

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: make_lottery_info FOLDER\n";
        return 2;
    }
    const std::filesystem::path path = std::filesystem::path(arguments[1]) / "Lottery Info.txt";
    std::ofstream file(path, std::ios::binary);
    if (file << LotteryInfoText() << std::flush) return 0;
    std::cerr << path.string() << " could not be written\n";
    return 1;
}
