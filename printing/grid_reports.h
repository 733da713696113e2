// SPDX-License-Identifier: GPL-3.0-or-later
// The reports that print a grid of numbers as it stands.
#pragma once

#include "printing/report_frame.h"

/// Generated lines: the line's number, seven numbers and the extra ball.
Document LinesReport(const ReportTable& table, std::string_view lotteryName,
                     const ReportChoice& choice, const SheetRoom& room);

/// A draw history: the date, seven numbers and the bonus or extra ball.
Document DrawsReport(const ReportTable& table, std::string_view lotteryName,
                     const ReportChoice& choice, const SheetRoom& room);

/// What is told of each number of a lottery, in four columns.
Document StatsReport(const ReportTable& table, std::string_view lotteryName,
                     const ReportChoice& choice, const SheetRoom& room);

/// Saved entries: the date, the numbers, the lottery and the player's name.
Document EntriesReport(const ReportTable& table, const ReportChoice& choice, const SheetRoom& room);

/// What a cell of numbers prints: a number above 0 with two digits at least, behind the separator;
/// anything else as it stands.
std::string NumberCell(std::string_view cell, std::string_view separator);
