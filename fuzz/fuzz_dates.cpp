// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <cstdlib>

#include "core/date.h"

// Any text is a date of the calendar or none, and a date is read back from both written forms.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const Date today = std::chrono::November / 21 / 2026;
    Region region;
    region.order = static_cast<Region::Order>(data[0] % 3);
    region.monthNames[2] = "M\xE4rz";
    region.shortMonthNames[11] = "Dez.";
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto date = ReadDate(text.substr(1), region, today);
    if (!date) return 0;
    if (!date->ok() || ReadDate(MediumDate(*date), region, today) != date) std::abort();
    const bool inCentury =
        date->year() > std::chrono::year(1946) && date->year() < std::chrono::year(2047);
    if (inCentury && ReadDate(DrawDate(*date), region, today) != date) std::abort();
    return 0;
}
