// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SPayments.h"

#include "core/syndicate.h"
#include "core/text.h"
#include "platform/forms/ShowTip.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "syndicates/SyndicateReadAnew.h"
#include "syndicates/members.h"
#include "syndicates/payments.h"

namespace {

enum Column : int { Person = 0, PayBy = 1, Amount = 2, PaidUpTo = 3 };

const QColor overdue(0xC0, 0, 0);
const QColor upToDate(Qt::black);

}  // namespace

void SPayments::Load() {
    Skinning(
        QStringLiteral("SkinSyndicates.jpg"),
        {.title = {QStringLiteral("Label1")},
         .body = {QStringLiteral("Label2(1)")},
         .small = {QStringLiteral("Label2"), QStringLiteral("Label3"), QStringLiteral("Label4")},
         .status = {}});
    ShowAll();
}

void SPayments::ShowAll() {
    const int count = PaymentCount(view());
    for (int row = 1; row <= count; ++row) {
        const auto person = [this, row](int column) {
            return ToQString(view().Members(row - 1, column));
        };
        grid_->SetCell(row, Person, person(member_column::Name));
        grid_->SetCell(row, PayBy, person(member_column::PayBy));
        grid_->SetCell(row, PaidUpTo, person(member_column::PaidUpTo));
        ShowPayment(row);
    }
    grid_->SetRowsInUse(count);
    grid_->ScrollToTop();
    // The manager's own way to pay is kept, and shown again once a payment is entered.
    grid_->SetCell(1, PayBy, tr("(Manager)"));
    ChooseRow(1);
    dirty_.Clear();
}

void SPayments::ShowPayment(int row) {
    const Region& region = services().region;
    const bool late = IsOverdue(view(), row, region, services().today());
    grid_->SetCell(row, Amount, ToQString(CurrencyText(AmountPaid(view(), row), region.currency)));
    grid_->SetCellColour(row, PaidUpTo, late ? overdue : upToDate);
}

void SPayments::ChooseRow(int row) {
    const auto& person = view().Members;
    amount_->Show(ToQString(person(row - 1, member_column::AmountPaid)));
    paidUpTo_->SetValue(ProposedDate(view(), row, services().region, services().today()));
    const int method = PayByIndex(person(row - 1, member_column::PayBy));
    if (method >= 0) payBy_->SetIndex(method);
    grid_->MarkRow(row);
    amount_->selectAll();
    if (isVisible()) amount_->setFocus();
}

void SPayments::Enter() {
    const std::string typed = FromQString(amount_->text());
    const std::string kept = KeptAmount(typed);
    if (LeadingNumber(typed) == 0 || !LeadingMoney(kept)) {
        ShowTip(services(), this, 6);
        return;
    }
    const int row = grid_->CurrentRow();
    const std::string name = FromQString(grid_->Cell(row, Person));
    if (Trim(name).empty()) return Say(tr("There is nobody in this row"));
    const std::string date = MediumDate(paidUpTo_->Value());
    grid_->SetCell(row, PayBy, payBy_->currentText());
    grid_->SetCell(row, PaidUpTo, ToQString(date));
    state().Members(row - 1, member_column::PayBy) = FromQString(payBy_->currentText());
    state().Members(row - 1, member_column::AmountPaid) = kept;
    state().Members(row - 1, member_column::PaidUpTo) = date;
    ShowPayment(row);
    grid_->MarkRow(row);
    amount_->setFocus();
    dirty_.Set();
    Say(tr("%1: %2 up to %3, not saved yet")
            .arg(ToQString(name), grid_->Cell(row, Amount), ToQString(date)));
}

void SPayments::Save() {
    if (SyndicateReadAnew(program(), this)) {
        for (int row = 1; row < grid_->RowCount(); ++row) {
            for (const int column : {Person, PayBy, Amount, PaidUpTo})
                grid_->SetCell(row, column, {});
        }
        return ShowAll();
    }
    SaveSyndicate(state(), folder());
    dirty_.Clear();
    services().messages.Show(this, {.title = tr("Lottery Quillon"),
                                    .text = tr("  Member payments have been saved...  "),
                                    .sign = Sign::Information});
}

void SPayments::Print() { services().printPayments(this, *grid_); }

void SPayments::Close() {
    if (dirty_.MayClose(services().messages, this, UnsavedWarning())) Unload();
}
