// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of a syndicate: its members, their payments, the manager's diary.
#pragma once

#include <array>

#include "core/date.h"
#include "core/state.h"
#include "printing/report_frame.h"

/// Name, address, phone, e-mail and way of paying of each person, the manager first. The number of
/// lines chosen counts the members behind the manager.
Document MembersReport(const State& state, const ReportChoice& choice, const SheetRoom& room);

/// The day on which something is printed: how it is compared, and how it is written.
struct PrintDay {
    Date date;
    Region region;
    std::string shown;  ///< "Wed 1 Jun 2005"
};

/// Who pays how, how much and until when; a date before the day is bold.
Document PaymentsReport(const ReportTable& table, const PrintDay& day, const ReportChoice& choice,
                        const SheetRoom& room);

/// What stands above and below the rows of a diary.
struct DiaryHead {
    std::string syndicate;
    std::string manager;
    std::array<std::string, 4> address;
    std::string phone;
    std::string email;
    std::string total;
};

Document DiaryReport(const ReportTable& table, const DiaryHead& head, const ReportChoice& choice,
                     const SheetRoom& room);
