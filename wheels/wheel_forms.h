// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "core/busy_rules.h"
#include "wheels/number_boxes.h"

/// In what the eight wheel forms differ from one another, as data.
namespace wheels {

/// Which keys write into a number box. Arrow keys, Delete and the like always work; Enter never
/// does what it does elsewhere in a form.
enum class BoxKeys {
    Digits,          ///< Digits and Backspace.
    DigitsAndEnter,  ///< The same, and Enter moves on to the next box where that one is in use.
    Any,             ///< Any text; only its leading number counts.
};

/// The number boxes `Text1(0)` onward of a form.
struct BoxRules {
    int count = 0;  ///< How many there are; 0 where the user enters no numbers into boxes.
    BoxKeys keys = BoxKeys::Digits;
    UnusedTexts unusedTexts = UnusedTexts::Emptied;
    bool unusedDisabled = false;  ///< Whether a box out of use takes no keys.
    /// Whether the number of a box in use can be played; the cursor goes to the first that cannot.
    bool (*accepts)(const Box&, int maxNum) = IsInField;
    /// What `Command12`, random selection, does.
    void (*select)(State&, Random&, Boxes&) = nullptr;
    /// What `Command8`, random order, does.
    void (*mix)(State&, Random&, Boxes&) = nullptr;
};

/// The names of the labels that take the skin's colours 3 and 4, empty behind the last; colour 1 is
/// always `Label7`'s and colour 2 `Label2`'s.
struct SkinSlots {
    std::array<std::string_view, 4> small;
    std::array<std::string_view, 4> status;
};

/// The row of one form.
struct WheelFormRules {
    std::string_view form;
    SkinSlots skin;
    BusyRules busy;
    BoxRules boxes;
};

/// All eight.
std::span<const WheelFormRules> WheelForms();

/// The row of the form of that name; one that is no wheel form is a `Failure`.
const WheelFormRules& RulesOf(std::string_view form);

}  // namespace wheels
