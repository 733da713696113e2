// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/biochart.h"

#include <cmath>

namespace {

// The chart's own value of pi; a closer one would draw other bars.
constexpr double chartPi = 3.142;

double Bar(int days, int period) {
    const double degrees = days % period * 360.0 / period;
    return 10 * std::sin(chartPi * degrees / 180);
}

}  // namespace

std::array<double, 4> Biochart(int days) {
    const double intellectual = Bar(days, 33);
    const double emotional = Bar(days, 28);
    const double intuition = Bar(days, 38);
    return {intellectual, emotional, intuition, (intellectual + emotional + intuition) / 3};
}
