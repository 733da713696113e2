// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "core/failure.h"

/// The text of the failure that the action ends with; "no failure" where it ends well.
template <typename Action>
std::string FailureOf(Action action) {
    try {
        action();
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "no failure";
}
