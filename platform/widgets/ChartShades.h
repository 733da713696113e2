// SPDX-License-Identifier: GPL-3.0-or-later
// What the pieces of a chart's drawing have in common: its colours and its small letters.
#pragma once

#include <QColor>
#include <QFont>

/// The colours of all but the series.
struct Shades {
    QColor background;
    QColor text;
    QColor axis;
    QColor grid;
    QColor frame;  // around the whole chart
};

inline Shades ShadesOf(bool dark) {
    if (dark) {
        return {.background = {0x1e, 0x20, 0x23},
                .text = {0xe8, 0xea, 0xed},
                .axis = {0x8a, 0x90, 0x99},
                .grid = {0x36, 0x3a, 0x40},
                .frame = {0x5a, 0x60, 0x68}};
    }
    return {.background = Qt::white,
            .text = {0x1f, 0x23, 0x28},
            .axis = {0x8a, 0x90, 0x99},
            .grid = {0xe6, 0xe8, 0xec},
            .frame = {0xd5, 0xd7, 0xda}};
}

/// From so many places on, bars and labels stand close.
inline constexpr int denseFrom = 13;

/// The letters of what stands close.
inline QFont SmallFont(QFont font) {
    constexpr double smaller = 0.85;
    font.setPointSizeF(font.pointSizeF() * smaller);
    return font;
}
