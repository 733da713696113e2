// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/date.h"
#include "core/program_folder.h"

/// A lottery that is the user's own, no supplied sample.
struct OwnLottery {
    std::int16_t index = 0;  ///< Its place in the lists of lotteries, from 0.
    std::string name;
    std::optional<Date> newest;  ///< Its newest draw; none where the file does not begin with one.
    bool operator==(const OwnLottery&) const = default;
};

/// What draw databases are there.
struct LotteriesAtHand {
    bool any = false;
    std::optional<OwnLottery> own;  ///< The first in the order of the lists.
};

/// Looks at the draw databases. One that the program could not load is no failure here, where
/// nothing is done with it.
LotteriesAtHand LookAtLotteries(const ProgramFolder& folder, const Region& region, Date today);
