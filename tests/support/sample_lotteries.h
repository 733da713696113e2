// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "core/program_folder.h"

/// Writes a draw database: `rules` is its third line, `draws` are records without their line ends.
inline void AddLottery(ProgramFolder& folder, const std::string& file, const std::string& name,
                       const std::string& rules, const std::vector<std::string>& draws = {}) {
    std::string bytes = name + "\r\n\r\n" + rules + "\r\n";
    for (const std::string& draw : draws) bytes += draw + "\r\n";
    folder.Write(file, bytes);
}

/// UK Lotto, 6 of 49 with a bonus ball, two draws.
inline void AddUkLotto(ProgramFolder& folder) {
    AddLottery(folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
               {"28 May 05,3,17,22,34,41,48,0,9", "25 May 05,1,2,13,24,35,46,0,7"});
}

/// UK Thunderball, 5 of 34 with an extra ball of 14, one draw.
inline void AddThunderball(ProgramFolder& folder) {
    AddLottery(folder, "dbase101.txt", "UK Thunderball", "5,34,1,14,0",
               {"28 May 05,4,9,15,27,30,0,0,6"});
}

/// UK Daily Play, 7 of 27, no draws yet.
inline void AddDailyPlay(ProgramFolder& folder) {
    AddLottery(folder, "dbase102.txt", "UK Daily Play", "7,27,0,0,0");
}
