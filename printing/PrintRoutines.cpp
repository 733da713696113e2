// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintRoutines.h"

#include <QCoreApplication>
#include <QLocale>

#include "core/syndicate.h"
#include "platform/forms/FormPicture.h"
#include "platform/system/LocaleRegion.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/Printers.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Grid.h"
#include "printing/PrintFrm.h"
#include "printing/PrintSelection.h"
#include "printing/PrintSlips.h"
#include "printing/grid_reports.h"
#include "printing/syndicate_reports.h"

namespace {

/// The rows of the grid that have something in column 1, and its headings.
ReportTable TableOf(const Grid& grid) {
    ReportTable table;
    for (int row = 0; row < grid.RowCount(); ++row) {
        if (row > 0 && grid.Cell(row, 1).isEmpty()) break;
        auto& cells = table.emplace_back();
        for (int column = 0; column < grid.ColumnCount(); ++column) {
            cells.push_back(FromQString(grid.Cell(row, column)));
        }
    }
    return table;
}

PrintDay Today(const Services& services) {
    const Date today = services.today();
    const QString shown = QLocale().toString(ToQDate(today), QStringLiteral("ddd d MMM yyyy"));
    return {.date = today, .region = services.region, .shown = FromQString(shown)};
}

DiaryHead HeadOf(const DiaryFrame& frame) {
    DiaryHead head = {.syndicate = FromQString(frame.syndicate),
                      .manager = FromQString(frame.manager),
                      .address = {},
                      .phone = FromQString(frame.phone),
                      .email = FromQString(frame.email),
                      .total = FromQString(frame.total)};
    std::size_t line = 0;
    for (const QString& text : frame.address) head.address.at(line++) = FromQString(text);
    return head;
}

}  // namespace

PrintRoutines::PrintRoutines(Program& program) : program_(program) {}

PrintRoutines::~PrintRoutines() = default;

void PrintRoutines::Offer() {
    Services& services = program_.services;
    services.printLines = [this](Form* form, Grid& grid) { PrintLines(form, grid); };
    services.printDraws = [this](Form* form, Grid& grid) { PrintDraws(form, grid); };
    services.printStats = [this](Form* form, Grid& grid) { PrintStats(form, grid); };
    services.printEntries = [this](Form* form, Grid& grid) { PrintEntries(form, grid); };
    services.printMembers = [this](Form* form) { PrintMembers(form); };
    services.printPayments = [this](Form* form, Grid& grid) { PrintPayments(form, grid); };
    services.printDiary = [this](Form* form, Grid& grid, const DiaryFrame& frame) {
        PrintDiary(form, grid, frame);
    };
    services.printForm = [this](Form& form) { PrintForm(form); };
}

PrintFrm& PrintRoutines::Dialog() {
    if (dialog_ == nullptr) {
        dialog_ = std::make_unique<PrintFrm>(program_, nullptr);
        dialog_->Load();
    }
    return *dialog_;
}

void PrintRoutines::Report(Form* form, const std::string& title, int lines,
                           const Compose& compose) {
    PrintFrm& dialog = Dialog();
    const bool print = dialog.Ask(form, lines);
    QCoreApplication::processEvents();
    if (!print) return;
    program_.services.printers->Print(
        form, {.title = title,
               .options = dialog.Options(),
               .compose = [choice = dialog.Choice(), compose](const SheetRoom& room) {
                   return compose(choice, room);
               }});
}

void PrintRoutines::PrintLines(Form* form, const Grid& grid) {
    const ReportTable table = TableOf(grid);
    const int count = ReportLineCount(table);
    if (count == 0) {
        program_.services.messages.Show(
            form, {.title = QCoreApplication::translate("PrintRoutines", "Error!"),
                   .text = QCoreApplication::translate("PrintRoutines", "Nothing to print!    "),
                   .sign = Sign::Exclamation});
        return;
    }
    bool onLotteryForms = false;
    {
        PrintSelection selection(program_, form);
        selection.Load();
        if (selection.exec() != QDialog::Accepted) return;
        onLotteryForms = selection.OnLotteryForms();
    }
    if (onLotteryForms) {
        PrintSlips(program_, form, grid, count);
        return;
    }
    PrintGrid(form, "Lottery lines", table, LinesReport);
}

void PrintRoutines::PrintGrid(Form* form, const std::string& title, const ReportTable& table,
                              GridReport* report) {
    Report(form, title, ReportLineCount(table),
           [table, lottery = View(program_.state).LotteryName, report](const ReportChoice& choice,
                                                                       const SheetRoom& room) {
               return report(table, lottery, choice, room);
           });
}

void PrintRoutines::PrintDraws(Form* form, const Grid& grid) {
    PrintGrid(form, "Lottery draw results", TableOf(grid), DrawsReport);
}

void PrintRoutines::PrintStats(Form* form, const Grid& grid) {
    PrintGrid(form, "Lottery number statistics", TableOf(grid), StatsReport);
}

void PrintRoutines::PrintEntries(Form* form, const Grid& grid) {
    const ReportTable table = TableOf(grid);
    Dialog().ResetMargin();
    Report(form, "Lottery entries", ReportLineCount(table),
           [table](const ReportChoice& choice, const SheetRoom& room) {
               return EntriesReport(table, choice, room);
           });
}

void PrintRoutines::PrintMembers(Form* form) {
    const State& state = View(program_.state);
    Report(form, "Syndicate members", MemberCount(state),
           [&state](const ReportChoice& choice, const SheetRoom& room) {
               return MembersReport(state, choice, room);
           });
}

void PrintRoutines::PrintPayments(Form* form, const Grid& grid) {
    const ReportTable table = TableOf(grid);
    const PrintDay day = Today(program_.services);
    Report(form, "Syndicate member payments", ReportLineCount(table),
           [table, day](const ReportChoice& choice, const SheetRoom& room) {
               return PaymentsReport(table, day, choice, room);
           });
}

void PrintRoutines::PrintDiary(Form* form, const Grid& grid, const DiaryFrame& frame) {
    const ReportTable table = TableOf(grid);
    const DiaryHead head = HeadOf(frame);
    Report(form, "Syndicate diary", ReportLineCount(table),
           [table, head](const ReportChoice& choice, const SheetRoom& room) {
               return DiaryReport(table, head, choice, room);
           });
}

void PrintRoutines::PrintForm(Form& form) {
    program_.services.printers->PrintPicture(&form, PictureOf(form));
}
