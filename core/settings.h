// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "core/program_folder.h"
#include "core/state.h"

inline constexpr const char* settingsFile = "quillon.ini";

/// The slots of `state.Settings` by name: `state.Settings(setting::PlayerName)`. All others are
/// empty and not used.
namespace setting {

/// Each with its default, and who writes it (the defaults apart) and reads it; forms are told also
/// where the program does not have them yet. Of a row of slots the first has the name, and the
/// count stands behind the enumeration.
enum Slot : int {
    /// "&H000000". Written by `Preferences`, read by the skin of every form, as the three below.
    TitleColour = 1,
    BodyColour = 2,        ///< "&H000000".
    SmallLabelColour = 3,  ///< "&H800000".
    StatusColour = 4,      ///< "&H000080"; of the status line and other text.
    /// "&H8000000F". Written by `Preferences`, read by the skin of every form and the main window.
    BackgroundColour = 5,

    /// "1 Skinning/colours": 1 for background pictures and 2 for the colours above, added up.
    /// Written by `Preferences`, as a bare number, read by the skin of every form and the main
    /// window.
    SkinBits = 10,

    /// "1 Odd/Even filter", 1 or 2. Written by `Preferences`, read by it and `core/filters`, as the
    /// three below.
    OddEvenStrength = 11,
    HighLowStrength = 12,  ///< "1 High/Low filter", 1 or 2.
    HistoryStrength = 13,  ///< "1 History  filter", 1 or 2.
    LongRunStrength = 14,  ///< "3 Long Run filter", 3 or 2.

    /// "01/01/1970". Written and read by the biochart of the main window and by `Biorhythm`.
    BirthDate = 15,
    /// Empty: no syndicate. Written by `NewSyndicate` and `OpenSyndicate`, emptied by
    /// `LoadSyndicate` where the file is gone; read by `LoadSyndicate`, `SaveSyndicate` and
    /// `SManager`.
    SyndicateFile = 16,
    /// Empty; the name last entered when entries were saved. Written and read by `SaveEntries`.
    PlayerName = 17,
    /// Empty; the date last chosen when entries were saved, medium form. Written by `SaveEntries`,
    /// read by `SaveLines`, and by `NextDrawDate` for `SaveEntries` and `PStarSign`.
    DrawDate = 18,
    /// "0": hidden, "1" shown. Written and read by the main window.
    InfoPanels = 19,

    /// Captions of the web links, of which five are filled; an empty one hides its link. Written by
    /// `Preferences` but for the first, read by it and the main menu.
    LinkCaptions = 20,
    /// Their addresses, the first that of the program's own site. Written by `Preferences` but for
    /// the first, read by it and the main window; the first also by `About` and the search for a
    /// new version.
    LinkAddresses = 30,

    /// Names of the UK downloads. Written by nobody, read by `DbaseUpdate` up to the first empty
    /// one, so the slot behind the last stays empty.
    UkDownloadNames = 40,
    /// Their addresses. Written and read by `DbaseUpdate`.
    UkDownloadAddresses = 50,
    /// Address of the download. Written and read by `DbaseUpdateUS`, as the next.
    MegaMillionsAddress = 68,
    PowerballAddress = 69,
};

/// How many slots begin at `LinkCaptions` and at `LinkAddresses`.
inline constexpr int links = 10;

/// How many slots begin at `UkDownloadNames` and at `UkDownloadAddresses`.
inline constexpr int ukDownloads = 5;

/// The last slot of the file.
inline constexpr int last = 100;

}  // namespace setting

/// The place of a setting for a report: "quillon.ini, line 5".
std::string PlaceOf(setting::Slot slot);

/// Reads `quillon.ini` into `state.Settings`, line n into slot n; a missing file is first made
/// with the defaults. Slots beyond the last line keep what they hold. A line 101 is a `Failure`.
void LoadSettings(State& state, ProgramFolder& folder);

/// Fills `state.Settings` with the defaults and writes them.
void MakeDefaultSettings(State& state, ProgramFolder& folder);

/// Writes slots 1 to 100, one line each.
void SaveSettings(const State& state, ProgramFolder& folder);
