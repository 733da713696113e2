// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of SPayments and where they stand.
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "platform/forms/FormLayout.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "syndicates/PayByList.h"
#include "syndicates/SPayments.h"
#include "syndicates/payments.h"

SPayments::SPayments(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("SPayments"), tr("Syndicate Member Payments"), parent),
      grid_(Named(new Grid(lastPayment + 1, 5), QStringLiteral("MSFlexGrid1"))),
      amount_(Named(new FilteredBox, QStringLiteral("Text1"))),
      paidUpTo_(Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), services().today()),
                      QStringLiteral("DTPicker1"))),
      payBy_(MakePayByList()) {
    MakeGrid();
    amount_->SetTaken(QStringLiteral("0123456789."));
    LayOutForm(
        this, MakeTitle(QStringLiteral("Label1"), tr("Syndicate member payments")),
        MakeBody(QStringLiteral("Label2(1)"),
                 tr("Record each member's payments by entering the amount they have paid and the "
                    "date they have paid up to. This date is effectively the date the next payment "
                    "is due. Members can pay each week, or they can pay several weeks in advance - "
                    "just set the date as appropriate.")),
        BuildBody(), BuildActions());
    TabInReadingOrder();
    SetOpeningSize({sizeHint().width(), 600});
}

void SPayments::MakeGrid() {
    grid_->setAccessibleName(tr("Payments"));
    const std::initializer_list<QString> headings = {tr("Name"), tr("Pay by"), tr("Amount paid"),
                                                     tr("Paid up to date")};
    int column = 0;
    for (const QString& heading : headings) grid_->SetCell(0, column++, heading);
    column = 0;
    for (const auto alignment :
         {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignHCenter}) {
        grid_->SetColumnAlignment(column++, alignment);
    }
    const auto widthOf = [this](const QString& text) {
        return grid_->fontMetrics().horizontalAdvance(text);
    };
    grid_->SetColumnWidths({widthOf(QStringLiteral("___000000000000000000000___")),
                            widthOf(QStringLiteral("___0000000000000___")),
                            widthOf(QStringLiteral("___\u00A300000.00___")),
                            widthOf(QStringLiteral("____000 00 000 0000____")), 0});
    connect(grid_, &Grid::cellClicked, this, [this](int row) { ChooseRow(row); });
}

QLayout* SPayments::BuildBody() {
    auto* body = new QHBoxLayout;
    body->setSpacing(24);
    body->addWidget(grid_);
    body->addLayout(BuildInputs());
    body->addStretch(1);
    return body;
}

QLayout* SPayments::BuildInputs() {
    auto* layout = new QGridLayout;
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(8);
    int row = 0;
    const auto add = [&](QLabel* title, QWidget* input) {
        layout->addWidget(title, row, 0);
        layout->addWidget(Titled(title, input), row++, 1);
    };
    add(MakeLabel(QStringLiteral("Label4"), tr("Payment:")), amount_);
    add(MakeLabel(QStringLiteral("Label3"), tr("Paid up to:")), paidUpTo_);
    add(MakeLabel(QStringLiteral("Label2"), tr("Pay by:")), payBy_);
    QPushButton* enter = MakeButton(QStringLiteral("Command10"), tr("Enter"));
    enter->setToolTip(tr(" Change cell value "));
    connect(enter, &QPushButton::clicked, this, [this] { Enter(); });
    layout->addWidget(enter, row++, 1, Qt::AlignLeft);
    layout->setRowStretch(row, 1);
    return layout;
}

QLayout* SPayments::BuildActions() {
    QPushButton* save =
        MakeCommandButton(QStringLiteral("Command1"), Command::Save, tr(" Save the changes "));
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    QPushButton* print = MakeCommandButton(QStringLiteral("Command6"), Command::Print,
                                           tr("Print out the lottery entries"));
    print->setEnabled(services().printPayments != nullptr);
    connect(print, &QPushButton::clicked, this, [this] { Print(); });
    QPushButton* close =
        MakeCommandButton(QStringLiteral("Command2"), Command::Close, tr(" Close Window "));
    connect(close, &QPushButton::clicked, this, [this] { Close(); });
    SetCloseButton(close);
    return BuildActionRow({save, print}, {close});
}
