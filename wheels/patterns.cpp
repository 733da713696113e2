// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/patterns.h"

#include <array>
#include <cstddef>
#include <string>

#include "core/failure.h"
#include "core/text.h"
#include "wheels/pattern_tables.h"

namespace wheels {

const WheelFamily& FamilyOf(WheelList list) {
    static const std::array<WheelFamily, std::size(allWheelLists)> families{{
        {"PWheel2", "Option1", 4, 5, 2, 2, 0, 0, tables::pairs},
        {"PWheel2", "Option1", 6, 7, 3, 2, 0, 0, tables::pairsOfSix},
        {"PWheel3", "Option1", 4, 7, 2, 3, 0, 0, tables::triplets},
        {"PBudgetWheel", "Option1", 5, 7, 2, 3, 0, 0, tables::budget},
        {"PThreeMatch", "Combo1", 5, 7, 6, 1, 0, 3, tables::threeMatch},
        {"PThreeMatch", "Combo2", 5, 7, 6, 1, 0, 4, tables::fourMatch},
        {"PGuaranteed", "Combo1", 5, 7, 6, 1, 1, 3, tables::threeForSix},
        {"PGuaranteed", "Combo2", 5, 7, 6, 1, 1, 3, tables::threeForThree},
        {"PGuaranteed", "Combo3", 5, 7, 6, 1, 1, 5, tables::fiveForSix},
    }};
    return families.at(static_cast<std::size_t>(list));
}

const Wheel& WheelAt(WheelList list, int item) {
    const WheelFamily& family = FamilyOf(list);
    if (item < 0 || item >= static_cast<int>(family.items.size())) {
        throw Failure(std::string(family.form) + ", " + std::string(family.control) +
                      ": there is no wheel " + std::to_string(item) + ", only 0 to " +
                      std::to_string(family.items.size() - 1));
    }
    return family.items[static_cast<std::size_t>(item)];
}

std::string InColumn(int number) { return (number < 10 ? "  " : "") + PlainDigits(number); }

}  // namespace wheels
