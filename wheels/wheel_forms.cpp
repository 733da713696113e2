// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/wheel_forms.h"

#include <algorithm>

#include "core/failure.h"
#include "core/text.h"
#include "wheels/budget_wheels.h"
#include "wheels/match_wheels.h"
#include "wheels/pairs_triplets.h"
#include "wheels/ring_wheels.h"

namespace wheels {
namespace {

/// For the forms whose short work does not touch `Busy`.
constexpr BusyRules careless = {.filtersWait = false,
                                .printAndSaveWait = false,
                                .close = CloseWhileBusy::Closes,
                                .generateWaits = false,
                                .generateSets = false};

/// Pairs and triplets make their lines whether `Busy` is set or not.
constexpr BusyRules generatesAnyway = {.generateWaits = false};

/// Budget wheels set `Busy` on their own, once the numbers have passed.
constexpr BusyRules budget = {
    .filtersWait = false, .close = CloseWhileBusy::Ignored, .generateSets = false};

constexpr auto forms = std::to_array<WheelFormRules>({
    {.form = "PWheel2",
     .skin = {},
     .busy = generatesAnyway,
     .boxes = {.count = pairs::boxCount, .select = SelectFromOne, .mix = MixOrder}},
    {.form = "PWheel3",
     .skin = {.small = {}, .status = {"Label4"}},
     .busy = generatesAnyway,
     .boxes = {.count = triplets::boxCount,
               .unusedTexts = UnusedTexts::Kept,
               .select = SelectFromOne,
               .mix = MixOrder}},
    {.form = "PBudgetWheel",
     .skin = {.small = {"Label1"}, .status = {}},
     .busy = budget,
     .boxes = {.count = budget_wheels::boxCount,
               .keys = BoxKeys::Any,
               .unusedDisabled = true,
               .accepts = HasNumber,
               .select = SelectFromZero,
               .mix = MixOrderUpToLast}},
    {.form = "PDIYWheels",
     .skin = {.small = {"Label1", "Label9", "Label10", "Label5"}, .status = {}},
     .busy = careless,
     .boxes = {.count = own_wheels::boxCount,
               .keys = BoxKeys::DigitsAndEnter,
               .unusedDisabled = true,
               .accepts = IsAboveZero,
               .select = SelectFromZero,
               .mix = MixOrder}},
    {.form = "PHotWheels",
     .skin = {.small = {"Label1", "Label9", "Label5", "Label4"}, .status = {}},
     .busy = {},
     .boxes = {}},
    {.form = "PThreeMatch",
     .skin = {.small = {"Label1", "Label5"}, .status = {}},
     .busy = careless,
     .boxes = {.count = match_wheels::boxCount,
               .keys = BoxKeys::DigitsAndEnter,
               .unusedDisabled = true,
               .select = SelectFromZero,
               .mix = MixOrder}},
    {.form = "PGuaranteed",
     .skin = {.small = {"Label5"}, .status = {"Label10"}},
     .busy = {},
     .boxes = {}},
    {.form = "Wheel49",
     .skin = {.small = {"Label1"}, .status = {"Label5"}},
     .busy = {},
     .boxes = {}},
});

}  // namespace

std::span<const WheelFormRules> WheelForms() { return forms; }

const WheelFormRules& RulesOf(std::string_view form) {
    const auto* found = std::ranges::find(forms, form, &WheelFormRules::form);
    if (found == forms.end()) throw Failure("There is no wheel form " + Quoted(form));
    return *found;
}

}  // namespace wheels
