// SPDX-License-Identifier: GPL-3.0-or-later
// Real results files of operators, and the draws that they are known to hold.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "core/date.h"
#include "core/text.h"
#include "test_folders.h"

/// The bytes of a real results file; empty where there is none, which a test answers by skipping.
inline std::string RealPage(const std::string& name) {
    std::ifstream file(REAL_DRAWS "/operator-files/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The records that the file's known draws make: `filler` stands in front of the last number.
inline std::string KnownRecords(const std::string& name, const std::string& filler) {
    std::istringstream lines(RealPage("truth/" + name + ".truth.csv"));
    std::string line;
    std::getline(lines, line);
    std::string records;
    while (std::getline(lines, line)) {
        std::erase(line, '\r');
        const Date date(std::chrono::year(LeadingWhole(line.substr(0, 4))),
                        std::chrono::month(static_cast<unsigned>(LeadingWhole(line.substr(5, 2)))),
                        std::chrono::day(static_cast<unsigned>(LeadingWhole(line.substr(8, 2)))));
        const std::size_t last = line.rfind(',') + 1;
        records += MediumDate(date) + line.substr(10, last - 10) + filler + line.substr(last);
        records += "\r\n";
    }
    return records;
}
