// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/slip_marks.h"

#include <algorithm>
#include <utility>

#include "core/failure.h"
#include "core/field_reader.h"
#include "core/text.h"

namespace {

struct Board {
    int across = 0;
    int down = 0;
};

FilledRectangle MarkAt(const SlipLayout& layout, const Board& board, int number, PositionColumn x,
                       PositionColumn y) {
    return {
        .across = board.across * layout.boardStepX + layout.positions(number, x) - layout.marginX,
        .down = board.down * layout.boardStepY + layout.positions(number, y) - layout.marginY,
        .width = layout.markWidth,
        .height = layout.markHeight};
}

void CheckNumber(int number, std::size_t line, int column) {
    if (number <= highestOnSlip) return;
    throw Failure("Lottery slip: expected a number of at most " + std::to_string(highestOnSlip) +
                  " in line " + std::to_string(line) + ", column " + std::to_string(column) +
                  ", but " + std::to_string(number) + " stands there.");
}

void MarkLine(Sheet& sheet, const SlipLayout& layout, const Board& board, const SlipLine& line,
              std::size_t lineNumber) {
    const int extra = line.back();
    for (int column = 1; column < static_cast<int>(line.size()); ++column) {
        const int number = line.at(static_cast<std::size_t>(column - 1));
        CheckNumber(number, lineNumber, column);
        if (number > 0) {
            sheet.rectangles.push_back(MarkAt(layout, board, number, numberX, numberY));
        }
        // Kept on purpose: the extra ball is marked with each column, seven times on one spot.
        CheckNumber(extra, lineNumber, static_cast<int>(line.size()));
        if (extra > 0) sheet.rectangles.push_back(MarkAt(layout, board, extra, extraX, extraY));
    }
}

void EndSlip(Document& document, Sheet& sheet) {
    if (!sheet.rectangles.empty()) document.sheets.push_back(std::move(sheet));
    sheet = {};
}

double ReadNumber(FieldReader& reader, const std::string& expected) {
    return LeadingNumber(reader.ReadField(expected));
}

double ReadNumber(FieldReader& reader, Measure measure) {
    return ReadNumber(reader, std::string(MeasureInWords(measure)));
}

int ReadCount(FieldReader& reader, Measure measure) {
    return LeadingWhole(reader.ReadField(MeasureInWords(measure)));
}

void PassLines(FieldReader& reader, int count, std::string_view expected) {
    for (int i = 0; i < count; ++i) reader.ReadLine(expected);
}

}  // namespace

SlipLayout LayoutOf(const SlipTemplate& slip) {
    const auto number = [&slip](Measure measure) { return LeadingNumber(slip[measure]); };
    SlipLayout layout{.markWidth = number(Measure::MarkWidth),
                      .markHeight = number(Measure::MarkHeight),
                      .boardsAcross = LeadingWhole(slip[Measure::BoardsAcross]),
                      .boardsDown = LeadingWhole(slip[Measure::BoardsDown]),
                      .boardStepX = number(Measure::BoardStepX),
                      .boardStepY = number(Measure::BoardStepY),
                      .marginX = number(Measure::MarginX),
                      .marginY = number(Measure::MarginY)};
    for (int row = 1; row <= highestOnSlip; ++row) {
        for (int column = 0; column < positionColumns; ++column) {
            layout.positions(row, column) = LeadingNumber(slip.positions(row, column));
        }
    }
    return layout;
}

SlipLayout ReadSlipLayout(const ProgramFolder& folder, const std::string& file) {
    const std::string content = folder.Read(file);
    FieldReader reader(content, file);
    SlipLayout layout;
    PassLines(reader, 3, "a line of the template's heading");
    layout.markWidth = ReadNumber(reader, Measure::MarkWidth);
    layout.markHeight = ReadNumber(reader, Measure::MarkHeight);
    layout.boardsAcross = ReadCount(reader, Measure::BoardsAcross);
    layout.boardsDown = ReadCount(reader, Measure::BoardsDown);
    PassLines(reader, 5, "a line of measurements");
    layout.boardStepX = ReadNumber(reader, Measure::BoardStepX);
    layout.boardStepY = ReadNumber(reader, Measure::BoardStepY);
    layout.marginX = ReadNumber(reader, Measure::MarginX);
    layout.marginY = ReadNumber(reader, Measure::MarginY);
    for (int number = 1; number <= highestOnSlip; ++number) {
        for (int column = 0; column < positionColumns; ++column) {
            layout.positions(number, column) = ReadNumber(reader, PositionInWords(number, column));
        }
    }
    return layout;
}

Document SlipsOf(const SlipLayout& layout, const std::vector<SlipLine>& lines) {
    Document document;
    Sheet sheet;
    Board board;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        MarkLine(sheet, layout, board, lines[i], i + 1);
        ++board.across;
        if (board.across == layout.boardsAcross) board = {.across = 0, .down = board.down + 1};
        // A count of 0 is not met by the first row of boards either.
        if (layout.boardsDown == 0 || board.down != layout.boardsDown) continue;
        EndSlip(document, sheet);
        board = {};
    }
    EndSlip(document, sheet);
    return document;
}

Document TestSlip(const SlipLayout& layout, int maxNum, int maxPball) {
    constexpr long long mostBoards = 10000;
    const long long boards =
        std::max<long long>(layout.boardsAcross, 0) * std::max<long long>(layout.boardsDown, 0);
    if (boards > mostBoards) {
        throw Failure("Lottery slip: expected at most " + GroupedDigits(mostBoards) +
                      " boards, but across and down make " + GroupedDigits(boards) + ".");
    }
    Document document;
    if (boards == 0) return document;
    Sheet sheet;
    Board board;
    for (board.across = 0; board.across < layout.boardsAcross; ++board.across) {
        for (board.down = 0; board.down < layout.boardsDown; ++board.down) {
            for (int number = 1; number <= highestOnSlip; ++number) {
                const auto mark = [&](PositionColumn x, PositionColumn y) {
                    sheet.rectangles.push_back(MarkAt(layout, board, number, x, y));
                };
                if (number <= maxNum) mark(numberX, numberY);
                if (number <= maxPball) mark(extraX, extraY);
            }
        }
    }
    EndSlip(document, sheet);
    return document;
}

std::string SlipTemplateFor(const ProgramFolder& folder, const std::string& lotteryName) {
    std::string found;
    for (const std::string& file : folder.Find("PTemplate.*")) {
        const std::string content = folder.Read(file);
        FieldReader reader(content, file);
        reader.ReadLine("the name of the template");
        if (Trim(reader.ReadLine("the name of the lottery")) == lotteryName) found = file;
    }
    return found;
}
