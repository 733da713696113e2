// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

/// The four bars of the main window's chart, `days` after birth: intellectual, emotional,
/// intuition, and luck, which is the average of the other three. From -10 to 10; negative days
/// follow the remainder's sign.
std::array<double, 4> Biochart(int days);
