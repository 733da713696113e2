// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/settings.h"

#include <algorithm>
#include <string_view>

#include "core/default_settings.h"
#include "core/field_reader.h"

namespace {

struct Default {
    int slot;
    std::string_view text;
};

// All other slots are empty by default.
constexpr Default defaults[] = {
    {setting::TitleColour, "&H000000"},
    {setting::BodyColour, "&H000000"},
    {setting::SmallLabelColour, "&H800000"},
    {setting::StatusColour, "&H000080"},
    {setting::BackgroundColour, "&H8000000F"},
    {setting::SkinBits, "1 Skinning/colours"},
    {setting::OddEvenStrength, "1 Odd/Even filter"},
    {setting::HighLowStrength, "1 High/Low filter"},
    {setting::HistoryStrength, "1 History  filter"},
    {setting::LongRunStrength, "3 Long Run filter"},
    {setting::BirthDate, "01/01/1970"},
    {setting::InfoPanels, "0"},
    {setting::LinkCaptions, "Lottery Quillon"},
    {setting::LinkCaptions + 1, "UK National Lottery"},
    {setting::LinkCaptions + 2, "Camelot (UK Lottery)"},
    {setting::LinkCaptions + 3, "US Powerball"},
    {setting::LinkCaptions + 4, "US Mega Millions"},
    {setting::LinkAddresses, "http://www.lotteryquillon.example"},
    {setting::LinkAddresses + 1, "http://www.national-lottery.example"},
    {setting::LinkAddresses + 2, "http://www.camelot.example"},
    {setting::LinkAddresses + 3, "http://www.powerball.example"},
    {setting::LinkAddresses + 4, "http://www.megamillions.example"},
    {setting::UkDownloadNames, "UK Lotto"},
    {setting::UkDownloadNames + 1, "UK Thunderball"},
    {setting::UkDownloadNames + 2, "UK Daily Play"},
    {setting::UkDownloadNames + 3, "UK Lotto Extra"},
    {setting::UkDownloadNames + 4, "UK Lotto Hot Picks"},
    {setting::UkDownloadAddresses, "http://www.national-lottery.example/player/files/Lotto.csv"},
    {setting::UkDownloadAddresses + 1,
     "http://www.national-lottery.example/player/files/Thunderball.csv"},
    {setting::UkDownloadAddresses + 2,
     "http://www.national-lottery.example/player/files/DailyPlay.csv"},
    {setting::UkDownloadAddresses + 3,
     "http://www.national-lottery.example/player/files/Extra.csv"},
    {setting::UkDownloadAddresses + 4,
     "http://www.national-lottery.example/player/files/HotPicks.csv"},
    {setting::MegaMillionsAddress,
     "http://www.megamillions.example/winningpicks/download_numbers_execute.asp"},
    {setting::PowerballAddress, "http://www.powerball.example/powerball/winnums-text.txt"},
};

}  // namespace

std::string PlaceOf(setting::Slot slot) {
    return std::string(settingsFile) + ", line " + std::to_string(slot);
}

std::string_view DefaultSetting(int slot) {
    const auto* found = std::ranges::find(defaults, slot, &Default::slot);
    return found == std::end(defaults) ? std::string_view() : found->text;
}

void LoadSettings(State& state, ProgramFolder& folder) {
    if (!folder.Exists(settingsFile)) MakeDefaultSettings(state, folder);
    const std::string content = folder.Read(settingsFile);
    FieldReader reader(content, settingsFile);
    for (int slot = 1; !reader.AtEnd(); ++slot) {
        const std::string_view line = reader.ReadLine("a setting");
        if (slot > setting::last) throw reader.Unexpected("no more than 100 lines", line);
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
    for (int slot = 1; slot <= setting::last; ++slot) content += state.Settings(slot) + "\r\n";
    folder.Write(settingsFile, content);
}
