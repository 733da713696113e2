// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "printing/slip_template.h"

/// The measurements with which the form of the slips opens.
inline SlipTemplate DefaultSlip() {
    SlipTemplate slip;
    slip.name = "Lotto slip";
    slip.lottery = "UK Lotto";
    slip.measures = {"3",    "2",   "5",    "1",   "12",   "4",    "38.2", "71.5", "42.1",
                     "27.3", "3.8", "6.39", "3.8", "6.39", "28.1", "0",    "3.0",  "5.5"};
    return slip;
}

/// The same with other measurements.
inline SlipTemplate SlipWith(std::initializer_list<std::pair<Measure, const char*>> measures,
                             Orientation orientation = Orientation::Landscape) {
    SlipTemplate slip = DefaultSlip();
    slip.orientation = orientation;
    for (const auto& [measure, text] : measures) slip[measure] = text;
    return slip;
}

/// A template of as many position lines as told, each "x,y,x,y".
inline std::string SlipFile(const std::string& lottery, int positionLines = highestOnSlip,
                            const std::string& orientation = " 1 ") {
    std::string bytes = "Slip\r\n" + lottery + "\r\n" + orientation +
                        "\r\n3,2\r\n5,1\r\n12,4\r\n38.2,71.5\r\n42.1,27.3\r\n3.8,6.39\r\n"
                        "3.8,6.39\r\n28.1,0\r\n3.0,5.5\r\n";
    for (int number = 1; number <= positionLines; ++number) {
        const std::string digits = std::to_string(number);
        bytes += digits + ".25," + digits + ".50,1" + digits + ".00,2" + digits + ".00\r\n";
    }
    return bytes;
}
