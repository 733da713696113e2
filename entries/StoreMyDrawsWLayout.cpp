// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of StoreMyDrawsW and where they stand.
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "entries/CommaWarning.h"
#include "entries/EntryGrid.h"
#include "entries/StoreMyDrawsW.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/TakeBack.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int columnCount = 12;

}  // namespace

StoreMyDrawsW::StoreMyDrawsW(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("StoreMyDrawsW"), tr("Store Draws Entries"), parent) {
    MakeGrid();
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(MakeTitle(QStringLiteral("Label5"), tr("Store lottery draw entries")));
    layout->addLayout(MakeTop());
    layout->addSpacing(8);
    layout->addLayout(MakeNumbers());
    layout->addWidget(grid_, 1);
    layout->addLayout(MakeActions());
    takeBack_ = new TakeBack(*this);
    SetOpeningSize({sizeHint().width(), 620});
    GoToRow(grid_->CurrentRow());
    // A screen reader makes cells current without a click or a key.
    connect(grid_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& now) {
                if (now.isValid()) OfferRowCommands();
            });
}

void StoreMyDrawsW::MakeGrid() {
    grid_ = Named(new Grid(parkingRow + 1, columnCount), QStringLiteral("MSFlexGrid1"));
    grid_->setAccessibleName(tr("Entries to save"));
    SetEntryHeadings(*grid_);
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const int date = 12 * digit;
    const int number = 7 * digit;
    grid_->SetColumnWidths({date, number, number, number, number, number, number, number, number,
                            22 * digit, 18 * digit, 16 * digit});
    grid_->SetParkingRow(parkingRow);
    connect(grid_, &Grid::cellClicked, this, [this](int row) { GoToRow(row); });
}

QLayout* StoreMyDrawsW::MakeTop() {
    QLabel* lotteryTitle = MakeLabel(QStringLiteral("Label8"), tr("Select the lottery:"));
    lotteries_ = Titled(lotteryTitle, Named(new ListBox, QStringLiteral("List1")));
    lotteries_->setMaximumHeight(112);
    connect(lotteries_, &ListBox::clicked, this, [this] { ChooseLottery(); });
    QLabel* dateTitle = MakeLabel(QStringLiteral("Label7"), tr("Draw date:"));
    date_ = Titled(dateTitle, Named(new DatePicker(QStringLiteral("dd MMM yy"), services().today()),
                                    QStringLiteral("DTPicker1")));
    QLabel* playerTitle = MakeLabel(QStringLiteral("LabelPName"), tr("Player/syndicate:"));
    player_ = Titled(playerTitle, Named(new QLineEdit, QStringLiteral("TextPName")));
    player_->setToolTip(tr(" Enter the player's name or syndicate name "));
    WarnOfCommas(*player_);

    auto* lottery = new QVBoxLayout;
    lottery->setSpacing(4);
    lottery->addWidget(lotteryTitle);
    lottery->addWidget(lotteries_);
    auto* details = new QVBoxLayout;
    details->setSpacing(4);
    details->addWidget(dateTitle);
    details->addWidget(date_);
    details->addSpacing(8);
    details->addWidget(playerTitle);
    details->addWidget(player_);
    details->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addLayout(lottery, 3);
    row->addSpacing(16);
    row->addLayout(details, 2);
    row->addStretch(3);
    return row;
}

QLayout* StoreMyDrawsW::MakeNumbers() {
    auto* numbers = new QVBoxLayout;
    numbers->setSpacing(4);
    numbers->addLayout(MakeHeadings());
    numbers->addLayout(MakeBoxes());
    return numbers;
}

QLayout* StoreMyDrawsW::MakeHeadings() {
    QLabel* title = MakeLabel(QStringLiteral("Label1"), tr("Enter your numbers:"));
    int toExtraBall = grid_->frameWidth();
    for (int column = 0; column < entry_column::extraBall; ++column) {
        toExtraBall += grid_->columnWidth(column);
    }
    title->setMinimumWidth(toExtraBall);
    extraBallTitle_ = MakeLabel(QStringLiteral("Label2"), tr(" Pball"));
    auto* headings = new QHBoxLayout;
    headings->setSpacing(0);
    headings->addWidget(title);
    headings->addWidget(extraBallTitle_);
    headings->addStretch(1);
    return headings;
}

QLayout* StoreMyDrawsW::MakeBoxes() {
    boxes_ = MakeEntryBoxes(1, tr("Extra ball"));
    add_ = MakeButton(QStringLiteral("Command2"), tr("Add"));
    add_->setToolTip(tr(" Add this entry to the grid "));
    add_->setDefault(true);
    add_->setEnabled(false);  // until a lottery is chosen
    connect(add_, &QPushButton::clicked, this, [this] { Add(); });
    QHBoxLayout* row = BuildAtColumns(*grid_, 1, {boxes_.begin(), boxes_.end()});
    row->addSpacing(8);
    row->addWidget(add_);
    row->addStretch(1);
    return row;
}

QPushButton* StoreMyDrawsW::MakeCommand(const QString& name, Command command,
                                        const QString& toolTip, Action action) {
    QPushButton* button = MakeCommandButton(name, command, toolTip);
    connect(button, &QPushButton::clicked, this, [this, action] { (this->*action)(); });
    return button;
}

QLayout* StoreMyDrawsW::MakeRowCommands() {
    deleteRow_ = MakeCommand(QStringLiteral("Command4"), Command::Delete,
                             tr(" Delete current row "), &StoreMyDrawsW::DeleteRow);
    moveUp_ = MakeCommand(QStringLiteral("Command5"), Command::Up, tr(" Move current row up "),
                          &StoreMyDrawsW::MoveRowUp);
    moveDown_ = MakeCommand(QStringLiteral("Command6"), Command::Down,
                            tr(" Move current row down "), &StoreMyDrawsW::MoveRowDown);
    auto* row = new QHBoxLayout;
    for (QPushButton* command : {deleteRow_, moveUp_, moveDown_}) row->addWidget(command);
    return row;
}

QLayout* StoreMyDrawsW::MakeActions() {
    QPushButton* save =
        MakeCommand(QStringLiteral("Command3"), Command::Save,
                    tr(" Save all lottery entries in the grid "), &StoreMyDrawsW::Save);
    QPushButton* close = MakeCommand(QStringLiteral("Command1"), Command::Close,
                                     tr(" Close the window "), &StoreMyDrawsW::Close);
    SetCloseButton(close);
    QHBoxLayout* row = BuildActionRow({save}, {close});
    row->insertSpacing(1, 24);
    row->insertLayout(2, MakeRowCommands());
    return row;
}
