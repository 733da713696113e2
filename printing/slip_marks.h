// SPDX-License-Identifier: GPL-3.0-or-later
// The marks that are printed on lottery slips.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/program_folder.h"
#include "core/table.h"
#include "printing/page.h"
#include "printing/slip_template.h"

/// What of a template places its marks, as numbers in millimetres.
struct SlipLayout {
    double markWidth = 0;
    double markHeight = 0;
    int boardsAcross = 0;
    int boardsDown = 0;
    double boardStepX = 0;
    double boardStepY = 0;
    double marginX = 0;
    double marginY = 0;

    /// As in the template; a position that is empty there is 0.
    Table<double, highestOnSlip + 1, positionColumns> positions{"number positions"};
};

/// The layout of a template in the form.
SlipLayout LayoutOf(const SlipTemplate& slip);

/// Reads the layout of a template file. Names, orientation and the measurements that only led to
/// the positions are passed over line by line, whatever stands there. A file cut short is a
/// `Failure`.
SlipLayout ReadSlipLayout(const ProgramFolder& folder, const std::string& file);

/// One line of a grid: the numbers of columns 1 to 7, then the extra ball of column 8; 0 and less
/// mark nothing.
using SlipLine = std::array<int, 8>;

/// The marks of the lines, each line on a board of its own: across the slip, then down, then on the
/// next slip. A slip without a mark is no sheet.
///
/// A slip of no or fewer boards across or down is never full that way: its lines go on beyond its
/// edge. A number above 60 is a `Failure`.
Document SlipsOf(const SlipLayout& layout, const std::vector<SlipLine>& lines);

/// A sheet with a mark on each number and extra ball of the lottery on each board, to be laid over
/// a slip. No sheet where there is no mark. More than 10,000 boards are a `Failure`.
Document TestSlip(const SlipLayout& layout, int maxNum, int maxPball);

/// The file of the last template whose lottery, trimmed, is the one of that name; empty where there
/// is none. A template without a second line is a `Failure`.
std::string SlipTemplateFor(const ProgramFolder& folder, const std::string& lotteryName);
