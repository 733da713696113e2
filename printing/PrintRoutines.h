// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "platform/system/Services.h"
#include "printing/report_frame.h"

class PrintFrm;

/// The print routines of a run, with the one dialog that all reports share. Each prints what its
/// form shows, after asking how, and does nothing where the user thinks better of it.
class PrintRoutines {
  public:
    explicit PrintRoutines(Program& program);
    ~PrintRoutines();
    PrintRoutines(const PrintRoutines&) = delete;
    PrintRoutines& operator=(const PrintRoutines&) = delete;

    /// Lets all forms print: gives the services what they call. This object must outlive them.
    void Offer();

    /// Lines are printed on paper or, where the user says so, on lottery slips.
    void PrintLines(Form* form, const Grid& grid);
    void PrintDraws(Form* form, const Grid& grid);
    void PrintStats(Form* form, const Grid& grid);
    void PrintEntries(Form* form, const Grid& grid);
    void PrintMembers(Form* form);
    void PrintPayments(Form* form, const Grid& grid);
    void PrintDiary(Form* form, const Grid& grid, const DiaryFrame& frame);

    /// Prints the form as it stands, at once.
    void PrintForm(Form& form);

  private:
    using Compose = std::function<Document(const ReportChoice& choice, const SheetRoom& room)>;

    using GridReport = Document(const ReportTable& table, std::string_view lotteryName,
                                const ReportChoice& choice, const SheetRoom& room);

    PrintFrm& Dialog();
    void PrintGrid(Form* form, const std::string& title, const ReportTable& table,
                   GridReport* report);
    void Report(Form* form, const std::string& title, int lines, const Compose& compose);

    Program& program_;
    std::unique_ptr<PrintFrm> dialog_;  // none before its first use
};
