// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "core/failure.h"
#include "databases/us_results.h"

namespace {

using Convert = std::string (*)(const std::string&, std::string_view, const us_results::UsDates&,
                                std::string_view);

void Run(Convert convert, const std::string& workText, const us_results::UsDates& dates) {
    if (!workText.ends_with("\r\n")) std::abort();
    try {
        const std::string database = convert(workText, "address", dates, "Temp.txt");
        if (std::count(database.begin(), database.end(), '\n') < 3) std::abort();
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with("Temp.txt, line ")) std::abort();
    }
}

}  // namespace

// Any page is converted or is a failure that names the work file, in both orders of dates.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view page(reinterpret_cast<const char*>(data), size);
    Region british;
    british.monthNames.at(5) = "June";
    for (const Region& region : {british, Region()}) {
        const us_results::UsDates dates(
            {.region = region, .today = std::chrono::year(2005) / 6 / 1});
        Run(us_results::MegaMillionsDatabase, us_results::MegaMillionsWorkText(page), dates);
        Run(us_results::PowerballDatabase, us_results::PowerballWorkText(page), dates);
    }
    return 0;
}
