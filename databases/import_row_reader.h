// SPDX-License-Identifier: GPL-3.0-or-later
// One row of a table as a draw.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "databases/import_dates.h"
#include "databases/import_draws.h"

/// Why a row gives no draw, with the sentence for the user.
using LeftOutReason = std::pair<LeftOut, std::string>;

/// Reads row after row by one mapping; table and mapping must outlive it.
class RowReader {
  public:
    RowReader(const ImportTable& table, const ImportMapping& mapping, const DateRules& dates);

    /// Reads the row into `draw`, or says why it is none.
    std::optional<LeftOutReason> Read(std::size_t row, ImportedDraw& draw) const;

  private:
    std::optional<LeftOutReason> ReadDate(std::size_t row, ImportedDraw& draw) const;
    LeftOutReason NoDraw(std::size_t row, const std::string& instead) const;
    std::optional<LeftOutReason> OtherProduct(std::size_t row) const;
    std::optional<LeftOutReason> ReadNumbers(std::size_t row, ImportedDraw& draw) const;
    std::optional<LeftOutReason> ReadList(std::string_view cell, std::size_t& count,
                                          ImportedDraw& draw) const;
    std::optional<LeftOutReason> ReadExtra(std::size_t row, ImportedDraw& draw) const;

    const ImportTable& table_;
    const ImportMapping& mapping_;
    DateReader dates_;
    std::vector<std::size_t> dateColumns_;
    std::vector<std::size_t> numberColumns_;
    std::vector<std::size_t> listColumns_;
    std::vector<std::size_t> extraColumns_;
};
