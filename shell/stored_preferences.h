// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/settings.h"

/// A filter whose strength is chosen out of two, with the texts that its slot holds for them.
struct FilterStrength {
    setting::Slot slot;
    std::string_view first;
    std::string_view second;
};

inline constexpr std::array<FilterStrength, 4> filterStrengths = {{
    {setting::OddEvenStrength, "1 Odd/Even filter", "2 Odd/Even filter"},
    {setting::HighLowStrength, "1 High/Low filter", "2 High/Low filter"},
    {setting::HistoryStrength, "1 History  filter", "2 History  filter"},
    {setting::LongRunStrength, "3 Long Run filter", "2 Long Run filter"},
}};

/// The slots of the colours, title to background.
inline constexpr std::array<setting::Slot, 5> colourSlots = {
    setting::TitleColour, setting::BodyColour, setting::SmallLabelColour, setting::StatusColour,
    setting::BackgroundColour};

/// How many web links can be changed: all but the first.
inline constexpr int changeableLinks = setting::links - 1;

/// The option that a filter's slot shows: 1 where its number is 2, else 0.
int ShownStrength(const State& state, const FilterStrength& filter);

struct EnteredLink {
    std::string caption;
    std::string address;
};

/// What stands in the form when it is saved, but for the colours, which are stored as they are
/// picked.
struct EnteredPreferences {
    bool pictures = false;
    bool colours = false;
    std::array<int, filterStrengths.size()> strengths{};  ///< The options chosen.
    std::array<EnteredLink, changeableLinks> links;
};

/// Puts what was entered into the settings. A link whose caption is left empty keeps both its old
/// caption and its old address.
void StorePreferences(State& state, const EnteredPreferences& entered);

/// The caption of a link as it is kept: each "&" doubled, each comma an apostrophe, no blanks at
/// either end.
std::string StoredCaption(std::string_view typed);

/// The address of a link as it is kept: without blanks at either end, and with "http://" in front
/// where it does not begin so in any case.
std::string StoredAddress(std::string_view typed);

/// Gives the colours their defaults.
void ResetColours(State& state);
