// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "printing/page.h"

/// A sheet whose figures can be told in one's head: a line is as high as 0.4 mm a point, a letter
/// 0.2 mm a point wide.
inline SheetRoom PlainRoom(double width = 210, double height = 297) {
    return {.width = width,
            .height = height,
            .lineHeight = [](const TextLook& look) { return 0.4 * look.points; },
            .textWidth =
                [](std::string_view text, const TextLook& look) {
                    return 0.2 * look.points * static_cast<double>(text.size());
                }};
}
