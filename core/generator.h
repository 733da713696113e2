// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "core/random.h"
#include "core/state.h"

/// What a generator is asked to keep to: the three boxes of a play form.
struct Conditions {
    bool oddEven = false;
    bool highLow = false;
    bool history = false;
};

/// How one form's generator differs from the others'.
struct GeneratorStyle {
    int timeDecimals = 2;          ///< Places of the shown time: 3 or 2.
    bool sortLines = false;        ///< Whether the lines are sorted at the end; tries need not be.
    bool pruneDuplicates = false;  ///< Whether equal lines are removed at the end.
    bool paintTries = true;        ///< Whether the status tells of the tries while they go on.
};

/// What the generator calls while it works.
struct GeneratorSteps {
    std::function<void()> playLotto;                      ///< Fills `state.Lines` once.
    std::function<void(const std::string&)> paintStatus;  ///< Shows a status text at once.
    std::function<void()> showLines;                      ///< Fills the grid.
    std::function<double()> seconds;                      ///< Monotonic clock, in seconds.
    /// Whether the lines keep to what this method asks beside the boxes; nothing: it asks for no
    /// more. It sees the lines as `playLotto` left them, before the boxes' conditions do.
    std::function<bool()> furtherCondition{};
};

/// The status line of a generator: "Tries: 1,234   Time: 0.123 sec".
std::string StatusText(int tries, double seconds, int timeDecimals);

/// How many seconds a generator tries before the last attempt stands.
inline constexpr double generatorLimit = 10.0;

/// Clears the lines, seeds `random` from the clock, and makes whole sets of lines until one passes
/// all conditions or more than 10 seconds are over; then sorts them and prunes equal ones where the
/// style says so, shows the lines, and returns the status text, which says where the lines do not
/// comply.
///
/// The status is painted at the first try, then some 60 times a second, and at the end; or, where
/// the style says so, only at the end, with the time that the lines took to be shown. `Busy` is
/// the caller's. A failure in a step leaves through here.
std::string GenerateLines(State& state, Random& random, const Conditions& conditions,
                          const GeneratorStyle& style, const GeneratorSteps& steps);
