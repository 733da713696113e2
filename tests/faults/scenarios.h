// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "tests/faults/fault_loop.h"

/// Everything that a user does that writes to the disk.
std::vector<Scenario> Scenarios();
