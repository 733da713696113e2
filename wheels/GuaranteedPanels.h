// SPDX-License-Identifier: GPL-3.0-or-later
// The three panels of `PGuaranteed`: what they are called and what they guarantee.
#pragma once

#include <QCoreApplication>
#include <array>

#include "wheels/patterns.h"

/// One panel; the texts are translated where they are shown.
struct GuaranteedPanel {
    wheels::WheelList list;
    const char* title;
    const char* promise;
    const char* promiseLabel;
    const char* combo;
    const char* generate;
    const char* pickLabel;
    const char* usesLabel;
};

inline constexpr auto guaranteedPanels = std::to_array<GuaranteedPanel>({
    {.list = wheels::WheelList::ThreeForSix,
     .title = QT_TRANSLATE_NOOP("PGuaranteed", "3-Match for 6"),
     .promise = QT_TRANSLATE_NOOP("PGuaranteed",
                                  "If the 6 numbers in the draw result are in your selection, you "
                                  "will get one or more 3-matches."),
     .promiseLabel = "Label13",
     .combo = "Combo1",
     .generate = "Command2",
     .pickLabel = "Label8",
     .usesLabel = "Label11"},
    {.list = wheels::WheelList::ThreeForThree,
     .title = QT_TRANSLATE_NOOP("PGuaranteed", "3-Match for 3"),
     .promise = QT_TRANSLATE_NOOP("PGuaranteed",
                                  "If any 3 of the 6 draw numbers are in your selection, you will "
                                  "get one or more 3-matches."),
     .promiseLabel = "Label3",
     .combo = "Combo2",
     .generate = "Command3",
     .pickLabel = "Label14",
     .usesLabel = "Label15"},
    {.list = wheels::WheelList::FiveForSix,
     .title = QT_TRANSLATE_NOOP("PGuaranteed", "5-Match for 6"),
     .promise = QT_TRANSLATE_NOOP("PGuaranteed",
                                  "If the 6 numbers in the draw result are in your selection, you "
                                  "will get one or more 5-matches."),
     .promiseLabel = "Label4",
     .combo = "Combo3",
     .generate = "Command4",
     .pickLabel = "Label16",
     .usesLabel = "Label17"},
});
