// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "core/date.h"

/// A draw as an operator publishes it: six numbers and a bonus ball.
struct PublishedDraw {
    Date date;
    std::array<int, 7> balls{};
};

/// Draws of every Saturday up to Saturday 28 Feb 2026, the newest first, of numbers from 1 to
/// `highest`; the same at each call.
inline std::vector<PublishedDraw> PublishedDraws(int count, int highest = 49, int weeksAgo = 0) {
    const Date newest(std::chrono::year(2026), std::chrono::February, std::chrono::day(28));
    std::uint32_t seed = static_cast<std::uint32_t>(highest) * 7919U;
    std::vector<PublishedDraw> draws;
    for (int draw = 0; draw < count; ++draw) {
        PublishedDraw& published = draws.emplace_back();
        published.date = DaysAfter(newest, -7 * (draw + weeksAgo));
        for (int place = 0; place < 7;) {
            seed = seed * 1664525U + 1013904223U;
            const int ball = static_cast<int>((seed >> 8U) % static_cast<unsigned>(highest)) + 1;
            const auto end = published.balls.begin() + place;
            if (std::find(published.balls.begin(), end, ball) == end) {
                published.balls.at(static_cast<std::size_t>(place++)) = ball;
            }
        }
    }
    return draws;
}

/// The draws with a heading, as "28-Feb-2026,3,17,22,34,41,48,9,Arthur,1234" in each row.
inline std::string ResultsCsv(const std::vector<PublishedDraw>& draws) {
    std::string text =
        "DrawDate,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Ball 6,Bonus Ball,Machine,DrawNumber\n";
    int number = 3000;
    for (const PublishedDraw& draw : draws) {
        text += MediumDate(draw.date);
        for (const int ball : draw.balls) text += "," + std::to_string(ball);
        text += (number % 3 == 0 ? ",Merlin," : ",Arthur,") + std::to_string(number) + "\n";
        --number;
    }
    return text;
}

/// The line of a draw in a draw database.
inline std::string DatabaseLine(const PublishedDraw& draw) {
    std::string line = DrawDate(draw.date);
    for (int place = 0; place < 6; ++place) {
        line += "," + std::to_string(draw.balls.at(static_cast<std::size_t>(place)));
    }
    return line + ",0," + std::to_string(draw.balls.back());
}

/// A draw database of these draws.
inline std::string DatabaseText(const std::string& name, int highest,
                                const std::vector<PublishedDraw>& draws) {
    std::string bytes = name + "\r\n\r\n6," + std::to_string(highest) + ",0,0,1\r\n";
    for (const PublishedDraw& draw : draws) bytes += DatabaseLine(draw) + "\r\n";
    return bytes;
}
