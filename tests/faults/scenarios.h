// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "tests/faults/fault_loop.h"

/// Everything that a user does that writes to the disk.
std::span<const Scenario> Scenarios();
