// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

/// Six different places from 1 to 49, ascending.
using WheelLine = std::array<int, 6>;

/// The 175 lines of the supplied wheel of 49: whatever six places are drawn, some line holds three
/// of them. The same lines at each call.
///
/// The places are parted in two. Any six drawn are three or more of the first 22 or four or more of
/// the other 27.
///
/// - Lines 1 to 77 lie among the first 22 and hold each three of those together in exactly one line
///   (a Steiner system S(3,6,22), read off the binary Golay code of length 23).
/// - Lines 78 to 167 lie among the other 27, thought of as a cube of 3 x 3 x 3 whose opposite faces
///   meet: four lines, moved to every place of the cube, of which every four places have three in
///   some line.
/// - Lines 168 to 175 are spare and play 48 places once each, so that every place of the wheel
///   stands in 21 or 22 lines. The first 22 places go into them in their order; of the cube they
///   take three squares and five rows, which meet the other lines so little that together they give
///   101,273 more selections of six a 4-match.
std::vector<WheelLine> Wheel49Lines();

/// The bytes of `wheel49.dat`: a line of text for each line of the wheel, commas between.
std::string Wheel49File();
