// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The bytes that were packed by gzip or zlib; nothing where they are damaged, cut off, or more
/// than `most`.
std::optional<std::string> Unpack(std::string_view packed, std::size_t most);
