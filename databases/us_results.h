// SPDX-License-Identifier: GPL-3.0-or-later
// The results pages of the two US lotteries, made into draw databases.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "databases/draw_records.h"

namespace us_results {

/// A page with fewer bytes than this is none.
inline constexpr std::size_t shortestPage = 500;

inline constexpr std::string_view megaMillionsFile = "dbase068.txt";
inline constexpr std::string_view powerballFile = "dbase069.txt";

/// Dates as US pages have them, the month first, whatever the region of the computer.
class UsDates {
  public:
    explicit UsDates(const DateRules& rules);

    /// The date, or nothing where the text is none. Where the region is British, "\" and "-" are
    /// taken as "/", and the text is turned round and read by the region.
    std::optional<Date> GetDate(std::string_view text) const;

  private:
    DateRules rules_;
    bool british_;
};

/// The Mega Millions page as the work file holds it: ";" made a comma, ":" a blank, "Mega Ball"
/// taken out in three spellings, and its lines, which end at CR, from the last to the first.
std::string MegaMillionsWorkText(std::string_view page);

/// The Powerball page as the work file holds it: with one more line end.
std::string PowerballWorkText(std::string_view page);

/// The draw database out of the work file of Mega Millions. The first field in the place of a date
/// that is none ends the draws. A work file without a date, or that ends within a row, is a
/// `Failure` that names `source`, the line and what was expected.
std::string MegaMillionsDatabase(const std::string& workText, std::string_view homePage,
                                 const UsDates& dates, std::string_view source);

/// The draw database out of the work file of Powerball, whose columns stand between blanks. An
/// empty line ends the draws; a row that is the very last thing of the file is not written. A work
/// file without a date, a row that does not begin with one, and a row with too few columns are each
/// a `Failure` as above.
std::string PowerballDatabase(const std::string& workText, std::string_view homePage,
                              const UsDates& dates, std::string_view source);

}  // namespace us_results
