// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

/// What the slot of the settings holds by default, whatever it holds now.
std::string_view DefaultSetting(int slot);
