// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/settings.h"

#include <string_view>

#include "core/field_reader.h"

namespace {

constexpr int lastSlot = 100;

struct Default {
    int slot;
    std::string_view text;
};

// All other slots are empty by default: 16 no syndicate, 17 no player, 18 no draw date, 25 to 29
// and 35 to 39 free links, 45 and 55 the ends of the UK downloads.
constexpr Default defaults[] = {
    // Colours of the title, the body, the small labels, the status line and the background.
    {1, "&H000000"},
    {2, "&H000000"},
    {3, "&H800000"},
    {4, "&H000080"},
    {5, "&H8000000F"},
    // Pictures and colours of the forms; strengths of the filters.
    {10, "1 Skinning/colours"},
    {11, "1 Odd/Even filter"},
    {12, "1 High/Low filter"},
    {13, "1 History  filter"},
    {14, "3 Long Run filter"},
    // Birth date.
    {15, "01/01/1970"},
    // Info panels hidden.
    {19, "0"},
    // Captions of the web links,
    {20, "Lottery Quillon"},
    {21, "UK National Lottery"},
    {22, "Camelot (UK Lottery)"},
    {23, "US Powerball"},
    {24, "US Mega Millions"},
    // and their addresses.
    {30, "http://www.lotteryquillon.example"},
    {31, "http://www.national-lottery.example"},
    {32, "http://www.camelot.example"},
    {33, "http://www.powerball.example"},
    {34, "http://www.megamillions.example"},
    // Names of the UK downloads,
    {40, "UK Lotto"},
    {41, "UK Thunderball"},
    {42, "UK Daily Play"},
    {43, "UK Lotto Extra"},
    {44, "UK Lotto Hot Picks"},
    // and their addresses.
    {50, "http://www.national-lottery.example/player/files/Lotto.csv"},
    {51, "http://www.national-lottery.example/player/files/Thunderball.csv"},
    {52, "http://www.national-lottery.example/player/files/DailyPlay.csv"},
    {53, "http://www.national-lottery.example/player/files/Extra.csv"},
    {54, "http://www.national-lottery.example/player/files/HotPicks.csv"},
    // Addresses of the US downloads.
    {68, "http://www.megamillions.example/winningpicks/download_numbers_execute.asp"},
    {69, "http://www.powerball.example/powerball/winnums-text.txt"},
};

}  // namespace

void LoadSettings(State& state, ProgramFolder& folder) {
    if (!folder.Exists(settingsFile)) MakeDefaultSettings(state, folder);
    const std::string content = folder.Read(settingsFile);
    FieldReader reader(content, settingsFile);
    for (int slot = 1; !reader.AtEnd(); ++slot) {
        const std::string_view line = reader.ReadLine("a setting");
        if (slot > lastSlot) throw reader.Unexpected("no more than 100 lines", line);
        state.Settings(slot) = line;
    }
}

void MakeDefaultSettings(State& state, ProgramFolder& folder) {
    state.Settings.Fill({});
    for (const Default& entry : defaults) state.Settings(entry.slot) = entry.text;
    SaveSettings(state, folder);
}

void SaveSettings(const State& state, ProgramFolder& folder) {
    std::string content;
    for (int slot = 1; slot <= lastSlot; ++slot) content += state.Settings(slot) + "\r\n";
    folder.Write(settingsFile, content);
}
