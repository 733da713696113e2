// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Contrast.h"

#include <algorithm>
#include <cmath>

namespace {

double Linear(float part) {
    const auto value = static_cast<double>(part);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// How bright the colour looks, from 0 to 1.
double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

QColor Mixed(const QColor& one, const QColor& other, float share) {
    const auto mix = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
    const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

bool IsExtreme(const QPalette& palette) {
    constexpr double least = 19;
    const QColor words = palette.color(QPalette::WindowText);
    return Contrast(palette.color(QPalette::Window), words) >= least;
}

QColor StandingOut(QColor colour, const QColor& other, double contrast) {
    constexpr int steps = 20;
    const QColor away =
        Contrast(Qt::white, other) > Contrast(Qt::black, other) ? Qt::white : Qt::black;
    const QColor start = colour;
    for (int step = 1; step <= steps && Contrast(colour, other) < contrast; ++step) {
        colour = Mixed(start, away, static_cast<float>(step) / steps);
    }
    return colour;
}
