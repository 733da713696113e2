// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/date.h"

/// Whether the region reads "01/06/2005" as a day of the month that it calls "June": the program's
/// whole test for a user in the UK. Day-first dates alone do not do, where the month's name is
/// another ("Juni").
bool BritishDates(const Region& region);
