// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/date.h"

/// A region with English month names.
inline Region EnglishRegion(Region::Order order = Region::Order::DayMonthYear) {
    return {order,
            {"January", "February", "March", "April", "May", "June", "July", "August", "September",
             "October", "November", "December"},
            {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sept", "Oct", "Nov", "Dec"}};
}

/// A region with German month names; "M\xE4rz" is March in Windows-1252.
inline Region GermanRegion() {
    return {Region::Order::DayMonthYear,
            {"Januar", "Februar", "M\xE4rz", "April", "Mai", "Juni", "Juli", "August", "September",
             "Oktober", "November", "Dezember"},
            {"Jan.", "Feb.", "M\xE4rz", "Apr.", "Mai", "Juni", "Juli", "Aug.", "Sept.", "Okt.",
             "Nov.", "Dez."}};
}
