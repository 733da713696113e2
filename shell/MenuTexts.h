// SPDX-License-Identifier: GPL-3.0-or-later
// The words of the main menu.
#pragma once

#include <span>

/// An entry of a menu.
struct EntryText {
    const char* name;
    const char* caption;
    const char* toolTip;         ///< One sentence on what it is for.
    const char* keys = nullptr;  ///< The keys that choose it in the main window.
    bool startsGroup = false;    ///< Whether a line parts it from the entries above it.
};

/// A menu with its entries; without any it is the menu of the links, whose words are settings.
struct MenuText {
    const char* name;
    const char* caption;
    std::span<const EntryText> entries;
};

/// The menus from the left. All texts wait to be translated, in the context "MainMenu".
std::span<const MenuText> MenuTexts();
