// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "core/failure.h"
#include "databases/uk_results.h"

// Any page is converted, with a line for each draw, or is a failure that names the work file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    using namespace uk_results;
    const std::string_view page(reinterpret_cast<const char*>(data + 1), size - 1);
    const DateRules dates{.region = {}, .today = std::chrono::year(2005) / 6 / 1};
    const std::string workText = WorkText(page);
    if (!workText.ends_with("\r\n")) std::abort();
    try {
        const std::string database =
            DatabaseText(workText, LotteryAt(data[0] % 5), {"name", "address"}, dates, "Temp.txt");
        if (!database.starts_with("name\r\naddress\r\n")) std::abort();
        if (std::count(database.begin(), database.end(), '\n') < 4) std::abort();
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with("Temp.txt, line ")) std::abort();
    }
    return 0;
}
