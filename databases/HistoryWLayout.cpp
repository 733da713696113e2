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
#include "platform/widgets/DatePicker.h"
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
    MakeControls();
    MakeGrid();
    MakeEditPanel();
    auto* columns = new QHBoxLayout;
    columns->addLayout(BuildHistory());
    columns->addSpacing(16);
    columns->addLayout(BuildChoices(), 1);
    LayOutForm(this, label2_, label4_, columns, BuildActionRow({command6_}, {command1_}));
    TabInReadingOrder();
    Connect();
    SetCloseButton(command1_);
    resize(sizeHint().width(), 660);
}

void HistoryW::MakeControls() {
    label2_ = MakeTitle(QStringLiteral("Label2"), tr("Lottery draw results"));
    label4_ = MakeBody(QStringLiteral("Label4"),
                       tr("Select a lottery in the list on the right to view all the draw results. "
                          "The numbers can be viewed in the order they were drawn or in ascending "
                          "order."));
    label1_ = MakeLabel(QStringLiteral("Label1"), QString());
    QFont bold = label1_->font();
    bold.setBold(true);
    label1_->setFont(bold);
    label3_ = MakeLabel(QStringLiteral("Label3"), tr("Select a lottery:"));
    list1_ = Titled(label3_, Named(new ListBox, QStringLiteral("List1")));
    option1_ = Named(new QRadioButton(tr("Draw order")), QStringLiteral("Option1"));
    option2_ = Named(new QRadioButton(tr("Ascending order")), QStringLiteral("Option2"));
    option1_->setChecked(true);
    timer1_ = Named(new QTimer(this), QStringLiteral("Timer1"));
    timer1_->setInterval(closingDelay);
    command6_ = MakeButton(QStringLiteral("Command6"), tr(" Print "));
    command6_->setEnabled(services().printDraws != nullptr);
    command1_ = MakeButton(QStringLiteral("Command1"), tr(" Close "));
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
}

void HistoryW::MakeEditPanel() {
    frame1_ = Named<QGroupBox>(new PlainPanel, QStringLiteral("Frame1"));
    dtPicker1_ = Named(new DatePicker(QStringLiteral("dd MMM yy"), services().today()),
                       QStringLiteral("DTPicker1"));
    dtPicker1_->setAccessibleName(tr("Date of the draw"));
    text1_ = MakeDrawBoxes(1);
    std::vector<QWidget*> inputs = {dtPicker1_};
    inputs.insert(inputs.end(), text1_.begin(), text1_.end());
    QHBoxLayout* boxes = BuildAtColumns(*grid_, 0, inputs);
    boxes->addStretch(1);
    command3_ = MakeButton(QStringLiteral("Command3"), tr("Update Draw"));
    command3_->setToolTip(tr(" Update selected draw "));
    command2_ = MakeButton(QStringLiteral("Command2"), tr("Delete Draw"));
    command2_->setToolTip(tr(" Delete selected draw "));
    for (QPushButton* command : {command3_, command2_}) command->setMinimumWidth(commandWidth);
    auto* commands = new QHBoxLayout;
    commands->addWidget(command3_);
    commands->addWidget(command2_);
    commands->addStretch(1);
    // No margin of the panel may push the boxes away from their columns.
    frame1_->setContentsMargins(0, 0, 0, 0);
    auto* panel = new QVBoxLayout(frame1_);
    panel->setContentsMargins(0, 4, 0, 0);
    panel->addLayout(boxes);
    panel->addLayout(commands);
}

QLayout* HistoryW::BuildHistory() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(label1_);
    column->addWidget(grid_, 1);
    column->addWidget(frame1_);
    return column;
}

QLayout* HistoryW::BuildChoices() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(label3_);
    column->addWidget(list1_, 1);
    column->addSpacing(8);
    column->addWidget(option1_);
    column->addWidget(option2_);
    return column;
}

void HistoryW::Connect() {
    connect(list1_, &ListBox::clicked, this, [this] { List1_Click(); });
    // Enter updates only while the user edits: whoever just looks at draws changes none.
    for (NumberBox* box : text1_) {
        connect(box, &QLineEdit::returnPressed, command3_, &QPushButton::click);
    }
    connect(grid_, &Grid::cellClicked, this, [this] { MSFlexGrid1_RowColChange(); });
    connect(option1_, &QRadioButton::toggled, this, [this](bool on) {
        if (on) Option1_Click();
    });
    connect(option2_, &QRadioButton::toggled, this, [this](bool on) {
        if (on) Option2_Click();
    });
    connect(timer1_, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    connect(command1_, &QPushButton::clicked, this, [this] { Unload(); });
    connect(command2_, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(command3_, &QPushButton::clicked, this, [this] { Command3_Click(); });
    connect(command6_, &QPushButton::clicked, this, [this] { Command6_Click(); });
}
