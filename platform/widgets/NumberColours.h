// SPDX-License-Identifier: GPL-3.0-or-later
// The colours that tell one kind of number from another, in grids, charts and texts.
#pragma once

#include <QColor>

/// The reds of hot numbers, the blues of cold ones.
struct HotColdColours {
    QColor words;    ///< Texts, and the ground under white text.
    QColor pattern;  ///< The pattern on the bars of a chart.
    QColor bars;     ///< The bars under it.
};

inline HotColdColours ColoursOfMode(bool cold) {
    if (cold) return {.words = 0x0000c0, .pattern = 0x0000ff, .bars = 0x000080};
    return {.words = 0xc00000, .pattern = 0xff0000, .bars = 0x800000};
}

/// The blue of odd numbers, dark where printed without colours.
inline QColor OddColour() { return QColor(0x1c3f94); }

/// The green of even numbers: a lighter tone than the blue, and a pattern, tell it to every eye.
struct EvenNumberColours {
    QColor bars;
    QColor pattern;
};

inline EvenNumberColours EvenColours() { return {.bars = 0x57b865, .pattern = 0x1f6b2c}; }

/// Dark red, the colour of the extra or bonus ball in a grid.
inline QColor ExtraBallColour() { return QColor(0xa00000); }
