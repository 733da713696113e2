// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screenshots/few_colours.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace {

constexpr std::size_t mostColours = 64;

struct Tint {
    QRgb colour;
    int pixels;
};

using Tints = std::vector<Tint>;

int Channel(QRgb colour, int channel) { return static_cast<int>(colour >> (8 * channel) & 0xFFU); }

Tints TintsOf(const QImage& picture) {
    std::map<QRgb, int> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) ++pixels[picture.pixel(x, y)];
    }
    Tints tints;
    for (const auto& [colour, count] : pixels) tints.push_back({colour, count});
    return tints;
}

/// A group of neighbouring colours and how far it is spread.
struct Box {
    explicit Box(Tints members) : tints(std::move(members)) {
        for (int candidate = 0; candidate < 3; ++candidate) {
            const auto [low, high] = std::ranges::minmax(
                tints, {}, [&](const Tint& tint) { return Channel(tint.colour, candidate); });
            const int extent = Channel(high.colour, candidate) - Channel(low.colour, candidate);
            if (extent > spread) {
                spread = extent;
                channel = candidate;
            }
        }
    }

    /// Takes half of the range of the widest channel into a box of its own.
    Box Split() {
        std::ranges::sort(tints, {},
                          [&](const Tint& tint) { return Channel(tint.colour, channel); });
        const int middle =
            (Channel(tints.front().colour, channel) + Channel(tints.back().colour, channel) + 1) /
            2;
        const auto upper = std::ranges::find_if(
            tints, [&](const Tint& tint) { return Channel(tint.colour, channel) >= middle; });
        Box other(Tints(upper, tints.end()));
        tints.erase(upper, tints.end());
        *this = Box(std::move(tints));
        return other;
    }

    /// How much would be won by splitting it.
    double Weight() const {
        double pixels = 0;
        for (const Tint& tint : tints) pixels += tint.pixels;
        return spread * std::sqrt(pixels);
    }

    /// The colour that most of its pixels have.
    QRgb Chief() const { return std::ranges::max_element(tints, {}, &Tint::pixels)->colour; }

    Tints tints;
    int spread = 0;
    int channel = 0;
};

}  // namespace

QImage InFewColours(const QImage& picture) {
    std::vector<Box> boxes = {Box(TintsOf(picture))};
    while (boxes.size() < mostColours) {
        const auto heaviest = std::ranges::max_element(boxes, {}, &Box::Weight);
        if (heaviest->spread == 0) break;
        Box other = heaviest->Split();
        boxes.push_back(std::move(other));
    }
    QList<QRgb> table;
    for (const Box& box : boxes) table.append(box.Chief());
    return picture.convertToFormat(QImage::Format_Indexed8, table, Qt::AvoidDither);
}
