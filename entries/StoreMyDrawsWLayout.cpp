// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of StoreMyDrawsW and where they stand.
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "entries/EntryGrid.h"
#include "entries/StoreMyDrawsW.h"
#include "platform/forms/FormLayout.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/PastedNumbers.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int rowCount = 100;
constexpr int columnCount = 12;

}  // namespace

StoreMyDrawsW::StoreMyDrawsW(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("StoreMyDrawsW"), tr("Store Draws Entries"), parent) {
    MakeControls();
    MakeGrid();
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(label5_);
    layout->addLayout(BuildTop());
    layout->addSpacing(8);
    layout->addLayout(BuildNumbers());
    layout->addWidget(grid_, 1);
    layout->addLayout(BuildActions());
    Connect();
    SetOpeningSize({sizeHint().width(), 620});
    SetCloseButton(command1_);
}

void StoreMyDrawsW::MakeControls() {
    label5_ = MakeTitle(QStringLiteral("Label5"), tr("Store lottery draw entries"));
    label8_ = MakeLabel(QStringLiteral("Label8"), tr("Select the lottery:"));
    list1_ = Titled(label8_, Named(new ListBox, QStringLiteral("List1")));
    label7_ = MakeLabel(QStringLiteral("Label7"), tr("Draw date:"));
    dtPicker1_ = Named(new DatePicker(QStringLiteral("dd MMM yy"), services().today()),
                       QStringLiteral("DTPicker1"));
    Titled(label7_, dtPicker1_);
    labelPName_ = MakeLabel(QStringLiteral("LabelPName"), tr("Player/syndicate:"));
    textPName_ = Named(new QLineEdit, QStringLiteral("TextPName"));
    textPName_->setToolTip(tr(" Enter the player's name or syndicate name "));
    Titled(labelPName_, textPName_);
    label1_ = MakeLabel(QStringLiteral("Label1"), tr("Enter your numbers:"));
    label2_ = MakeLabel(QStringLiteral("Label2"), tr(" Pball"));
    for (int index = 1; index <= 8; ++index) {
        auto* box = Named(new NumberBox, Member(QStringLiteral("Text1"), index));
        box->setAccessibleName(index == 8 ? tr("Extra ball") : tr("Number %1").arg(index));
        box->setAlignment(Qt::AlignCenter);
        text1_[static_cast<std::size_t>(index - 1)] = box;
    }
    DealPastedNumbers({text1_.begin(), text1_.end()});
}

void StoreMyDrawsW::MakeGrid() {
    grid_ = Named(new Grid(rowCount, columnCount), QStringLiteral("MSFlexGrid1"));
    grid_->setAccessibleName(tr("Entries to save"));
    SetEntryHeadings(*grid_);
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const int date = 12 * digit;
    const int number = 7 * digit;
    grid_->SetColumnWidths({date, number, number, number, number, number, number, number, number,
                            22 * digit, 18 * digit, 16 * digit});
    grid_->SetParkingRow(rowCount - 1);
}

QLayout* StoreMyDrawsW::BuildTop() {
    auto* lottery = new QVBoxLayout;
    lottery->setSpacing(4);
    lottery->addWidget(label8_);
    lottery->addWidget(list1_);
    list1_->setMaximumHeight(112);
    auto* details = new QVBoxLayout;
    details->setSpacing(4);
    details->addWidget(label7_);
    details->addWidget(dtPicker1_);
    details->addSpacing(8);
    details->addWidget(labelPName_);
    details->addWidget(textPName_);
    details->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addLayout(lottery, 3);
    row->addSpacing(16);
    row->addLayout(details, 2);
    row->addStretch(3);
    return row;
}

QLayout* StoreMyDrawsW::BuildNumbers() {
    QHBoxLayout* boxes = BuildAtColumns(*grid_, 1, {text1_.begin(), text1_.end()});
    command2_ = MakeButton(QStringLiteral("Command2"), tr("Add"));
    command2_->setToolTip(tr(" Add this entry to the grid "));
    command2_->setDefault(true);
    boxes->addSpacing(8);
    boxes->addWidget(command2_);
    boxes->addStretch(1);

    auto* headings = new QHBoxLayout;
    headings->setSpacing(0);
    int toExtraBall = grid_->frameWidth();
    for (int column = 0; column < 8; ++column) toExtraBall += grid_->columnWidth(column);
    label1_->setMinimumWidth(toExtraBall);
    headings->addWidget(label1_);
    headings->addWidget(label2_);
    headings->addStretch(1);
    auto* numbers = new QVBoxLayout;
    numbers->setSpacing(4);
    numbers->addLayout(headings);
    numbers->addLayout(boxes);
    return numbers;
}

QLayout* StoreMyDrawsW::BuildRowCommands() {
    command4_ = MakeIconButton(QStringLiteral("Command4"), QStringLiteral("edit-delete"),
                               tr(" Delete current row "));
    command5_ = MakeIconButton(QStringLiteral("Command5"), QStringLiteral("go-up"),
                               tr(" Move current row up "));
    command6_ = MakeIconButton(QStringLiteral("Command6"), QStringLiteral("go-down"),
                               tr(" Move current row down "));
    auto* row = new QHBoxLayout;
    row->addWidget(command4_);
    row->addWidget(command5_);
    row->addWidget(command6_);
    return row;
}

QLayout* StoreMyDrawsW::BuildActions() {
    command3_ = MakeIconButton(QStringLiteral("Command3"), QStringLiteral("document-save"),
                               tr(" Save all lottery entries in the grid "));
    command1_ = MakeIconButton(QStringLiteral("Command1"), QStringLiteral("window-close"),
                               tr(" Close the window "));
    QHBoxLayout* row = BuildActionRow({command3_}, {command1_});
    row->insertSpacing(1, 24);
    row->insertLayout(2, BuildRowCommands());
    return row;
}

void StoreMyDrawsW::Connect() {
    connect(list1_, &ListBox::clicked, this, [this] { List1_Click(); });
    connect(command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(command2_, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(command3_, &QPushButton::clicked, this, [this] { Command3_Click(); });
    connect(command4_, &QPushButton::clicked, this, [this] { Command4_Click(); });
    connect(command5_, &QPushButton::clicked, this, [this] { Command5_Click(); });
    connect(command6_, &QPushButton::clicked, this, [this] { Command6_Click(); });
    connect(grid_, &Grid::cellClicked, this, [this] { MSFlexGrid1_Click(); });
}
