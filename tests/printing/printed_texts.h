// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "printing/page.h"

/// The only text of a document that reads so; a miss fails the test and prints the texts there are.
inline PlacedText OnlyText(const Document& document, const std::string& text) {
    PlacedText found;
    int count = 0;
    std::string all;
    for (const Sheet& sheet : document.sheets) {
        for (const PlacedText& placed : sheet.texts) {
            all += "\"" + placed.text + "\" ";
            if (placed.text != text) continue;
            found = placed;
            ++count;
        }
    }
    EXPECT_EQ(count, 1) << "\"" << text << "\" in " << all;
    return found;
}

/// All texts of a document in the order in which they are set.
inline std::vector<std::string> Texts(const Document& document) {
    std::vector<std::string> texts;
    for (const Sheet& sheet : document.sheets) {
        for (const PlacedText& placed : sheet.texts) texts.push_back(placed.text);
    }
    return texts;
}

inline void ExpectAt(const PlacedText& text, double across, double down) {
    EXPECT_NEAR(text.across, across, 1e-9) << text.text;
    EXPECT_NEAR(text.down, down, 1e-9) << text.text;
}
