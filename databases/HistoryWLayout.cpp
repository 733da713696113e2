// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of HistoryW and where they stand.
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "databases/HistoryW.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/TakeBack.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/ElidingLabel.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int rowCount = 3000;
constexpr int columnCount = 10;
constexpr int closingDelay = 1000;  // milliseconds
constexpr int commandWidth = 112;

/// A panel without a line around it, so that its boxes seem to belong to the columns above.
class PlainPanel final : public QGroupBox {
  protected:
    void paintEvent(QPaintEvent*) override {}
};

}  // namespace

HistoryW::HistoryW(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("HistoryW"), tr("Lottery Draws History"), parent) {
    auto* title = MakeTitle(QStringLiteral("Label2"), tr("Lottery draw results"));
    auto* explanation =
        MakeBody(QStringLiteral("Label4"),
                 tr("Select a lottery in the list on the right to view all the draw results. "
                    "The numbers can be viewed in the order they were drawn or in ascending "
                    "order."));
    auto* columns = new QHBoxLayout;
    columns->addLayout(MakeHistory());
    columns->addSpacing(16);
    columns->addLayout(MakeChoices(), 1);
    LayOutForm(this, title, explanation, columns, MakeActions());
    TabInReadingOrder();
    takeBack_ = new TakeBack(*this);
    SetOpeningSize({sizeHint().width(), 660});
    closing_ = Named(new QTimer(this), QStringLiteral("Timer1"));
    closing_->setInterval(closingDelay);
    connect(closing_, &QTimer::timeout, this, [this] { CloseIfEmpty(); });
}

QLayout* HistoryW::MakeHistory() {
    lotteryName_ = Named(new ElidingLabel, QStringLiteral("Label1"));
    QFont bold = lotteryName_->font();
    bold.setBold(true);
    lotteryName_->setFont(bold);
    MakeGrid();
    MakeEditPanel();

    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(lotteryName_);
    column->addWidget(grid_, 1);
    column->addWidget(editPanel_);
    return column;
}

void HistoryW::MakeGrid() {
    grid_ = Named(new Grid(rowCount, columnCount), QStringLiteral("MSFlexGrid1"));
    grid_->setAccessibleName(tr("Draws"));
    const QFontMetrics metrics = grid_->fontMetrics();
    const int number = metrics.horizontalAdvance(QStringLiteral("000000000"));
    const int date = metrics.horizontalAdvance(QStringLiteral("00000000000000"));
    // The last column has neither texts nor a heading and is not shown.
    grid_->SetColumnWidths(
        {date, number, number, number, number, number, number, number, number, 0});
    connect(grid_, &Grid::cellClicked, this, [this] { FollowRow(); });
}

void HistoryW::MakeEditPanel() {
    editPanel_ = Named<QGroupBox>(new PlainPanel, QStringLiteral("Frame1"));
    date_ = Named(new DatePicker(QStringLiteral("dd MMM yy"), services().today()),
                  QStringLiteral("DTPicker1"));
    date_->setAccessibleName(tr("Date of the draw"));
    boxes_ = MakeDrawBoxes(1);
    std::vector<QWidget*> inputs = {date_};
    inputs.insert(inputs.end(), boxes_.begin(), boxes_.end());
    QHBoxLayout* boxes = BuildAtColumns(*grid_, 0, inputs);
    boxes->addStretch(1);

    // No margin of the panel may push the boxes away from their columns.
    editPanel_->setContentsMargins(0, 0, 0, 0);
    auto* panel = new QVBoxLayout(editPanel_);
    panel->setContentsMargins(0, 4, 0, 0);
    panel->addLayout(boxes);
    panel->addLayout(MakeEditCommands());
}

QLayout* HistoryW::MakeEditCommands() {
    auto* update = MakeButton(QStringLiteral("Command3"), tr("Update Draw"));
    update->setToolTip(tr(" Update selected draw "));
    auto* deleteDraw = MakeDeletingButton(QStringLiteral("Command2"), tr("Delete Draw"));
    deleteDraw->setToolTip(tr(" Delete selected draw "));
    connect(update, &QPushButton::clicked, this, [this] { UpdateChosenDraw(); });
    connect(deleteDraw, &QPushButton::clicked, this, [this] { DeleteChosenDraw(); });
    // Enter updates only while the user edits: whoever just looks at draws changes none.
    for (NumberBox* box : boxes_) {
        connect(box, &QLineEdit::returnPressed, update, &QPushButton::click);
    }

    auto* commands = new QHBoxLayout;
    for (QPushButton* command : {update, deleteDraw}) command->setMinimumWidth(commandWidth);
    commands->addWidget(update);
    AddApart(*commands, deleteDraw);
    commands->addStretch(1);
    return commands;
}

QLayout* HistoryW::MakeChoices() {
    auto* title = MakeLabel(QStringLiteral("Label3"), tr("Select a lottery:"));
    lotteries_ = Titled(title, Named(new ListBox, QStringLiteral("List1")));
    drawOrder_ = Named(new QRadioButton(tr("Draw order")), QStringLiteral("Option1"));
    drawOrder_->setChecked(true);
    auto* ascending = Named(new QRadioButton(tr("Ascending order")), QStringLiteral("Option2"));
    connect(lotteries_, &ListBox::clicked, this, [this] { ChooseLottery(); });
    connect(drawOrder_, &QRadioButton::toggled, this, [this](bool on) {
        if (on) {
            ShowInDrawOrder();
        } else {
            ShowAscending();
        }
    });

    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(title);
    column->addWidget(lotteries_, 1);
    column->addSpacing(8);
    column->addWidget(drawOrder_);
    column->addWidget(ascending);
    return column;
}

QLayout* HistoryW::MakeActions() {
    auto* print = WithKeysOf(Command::Print, MakeButton(QStringLiteral("Command6"), tr(" Print ")));
    print->setEnabled(services().printDraws != nullptr);
    auto* close = MakeButton(QStringLiteral("Command1"), tr(" Close "));
    SetCloseButton(close);
    connect(print, &QPushButton::clicked, this, [this] { Print(); });
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    return BuildActionRow({print}, {close});
}
