// SPDX-License-Identifier: GPL-3.0-or-later
// Where the numbers of a lottery slip stand: the measurements that the user takes and the positions
// that follow from them. All of it is in millimetres, from the edges of the paper.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/program_folder.h"
#include "core/table.h"
#include "printing/page.h"

/// The measurements of a slip, two a line in the order of the file's lines 4 to 12.
enum class Measure {
    MarkWidth,
    MarkHeight,
    BoardsAcross,
    BoardsDown,
    NumbersPerRow,
    ExtrasPerRow,
    FirstNumberX,
    FirstNumberY,
    FirstExtraX,
    FirstExtraY,
    NumberStepX,
    NumberStepY,
    ExtraStepX,
    ExtraStepY,
    BoardStepX,
    BoardStepY,
    MarginX,
    MarginY,
};
inline constexpr int measureCount = 18;

/// The highest number that has a position on a slip, whatever the lottery.
inline constexpr int highestOnSlip = 60;

/// The columns of the positions: those of a main number, then those of an extra ball.
enum PositionColumn { numberX, numberY, extraX, extraY, positionColumns };

/// A slip template, its texts as they were typed. Text that is no number counts as 0.
struct SlipTemplate {
    std::string name;     ///< What the user calls the template.
    std::string lottery;  ///< The lottery that it is for, by name.
    Orientation orientation = Orientation::Landscape;
    std::array<std::string, measureCount> measures;

    /// Row i has the positions of number i: the top left corner of its mark on the first board.
    /// They have two decimals or are empty. Row 0 is not used.
    Table<std::string, highestOnSlip + 1, positionColumns> positions{"number positions"};

    std::string& operator[](Measure measure) {
        return measures.at(static_cast<std::size_t>(measure));
    }
    const std::string& operator[](Measure measure) const {
        return measures.at(static_cast<std::size_t>(measure));
    }
};

/// Computes the positions from the measurements, in place of those that were there.
///
/// In landscape numbers run upwards in a column and columns to the right, as far as the lottery has
/// numbers and extra balls. In portrait they run to the right in a row and rows downwards, and all
/// 60 rows get both positions, whatever the lottery. Numbers per row of 0 are a `Failure`, those of
/// the extra ball also where there is none.
void GeneratePositions(SlipTemplate& slip, int maxNum, int maxPball);

/// A template in the program's folder, as lists show it.
struct SlipTemplateFile {
    std::string file;
    std::string name;  ///< The file's first line as it stands.
};

/// All files `PTemplate.*`, whatever stands behind the point. One without a first line is a
/// `Failure`.
std::vector<SlipTemplateFile> ListSlipTemplates(const ProgramFolder& folder);

/// Reads a template. An end of the file before the positions of number 60 and an orientation other
/// than 0 and 1 are each a `Failure`.
SlipTemplate ReadSlipTemplate(const ProgramFolder& folder, const std::string& file);

/// Writes a template to that file.
void WriteSlipTemplate(ProgramFolder& folder, const std::string& file, const SlipTemplate& slip);

/// Writes a template to a new file, the first of `PTemplate.000`, `PTemplate.001` and so on that is
/// free, and gives its name.
std::string CreateSlipTemplate(ProgramFolder& folder, const SlipTemplate& slip);

/// Whether all of a measurement counts: a number with nothing behind it that would be passed over.
bool ReadsWhole(std::string_view measure);

/// What a text of a template is called in the report of a `Failure`.
std::string_view MeasureInWords(Measure measure);
std::string PositionInWords(int number, int column);
