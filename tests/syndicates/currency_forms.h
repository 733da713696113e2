// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/region.h"

/// How amounts are written in Britain, the United States, Germany and Sweden.
inline const CurrencyForm british;
inline const CurrencyForm american{.before = "$"};
inline const CurrencyForm german{
    .before = "", .behind = " \x80", .decimalPoint = ',', .groupSeparator = '.'};
inline const CurrencyForm swedish{
    .before = "", .behind = " kr", .decimalPoint = ',', .groupSeparator = ' '};
