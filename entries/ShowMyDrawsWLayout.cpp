// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of ShowMyDrawsW and where they stand.
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "entries/EntryGrid.h"
#include "entries/MatchColours.h"
#include "entries/ShowMyDrawsW.h"
#include "platform/forms/FormLayout.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int rowCount = 501;
constexpr int columnCount = 12;

/// A patch of a match colour that says its name too.
QLabel* MakeSample(const QString& name, const QString& colourName, const QColor& colour) {
    QLabel* sample = MakeLabel(name, colourName);
    QPalette palette(Qt::black, colour);
    palette.setColor(QPalette::Window, colour);
    palette.setColor(QPalette::WindowText, Qt::black);
    sample->setPalette(palette);
    sample->setAutoFillBackground(true);
    sample->setAlignment(Qt::AlignCenter);
    sample->setContentsMargins(8, 1, 8, 1);
    return sample;
}

/// A button with a caption that other buttons bear too: its tool-tip tells them apart.
QPushButton* MakeCommand(const QString& name, const QString& caption, const QString& toolTip) {
    QPushButton* button = MakeButton(name, caption);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip.trimmed());
    return button;
}

}  // namespace

ShowMyDrawsW::ShowMyDrawsW(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("ShowMyDrawsW"), tr("Show/Check Lottery Entries"), parent) {
    MakeLabels();
    MakeGrid();
    MakeInputs();
    MakeCommands();
    auto* below = new QHBoxLayout;
    below->setSpacing(32);
    below->addLayout(BuildCommands());
    below->addLayout(BuildCheck(), 1);
    below->addLayout(BuildReport());
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(label8_);
    layout->addWidget(label10_);
    layout->addWidget(label5_);
    layout->addWidget(grid_, 1);
    layout->addLayout(below);
    layout->addLayout(BuildActions());
    TabInReadingOrder();
    Connect();
    SetCloseButton(command1_);
}

void ShowMyDrawsW::MakeLabels() {
    label8_ = MakeTitle(QStringLiteral("Label8"), tr("Stored lottery entries"));
    label10_ = MakeBody(QStringLiteral("Label10"),
                        tr("To play the same lottery entry in future draw, select the row and "
                           "update the draw date below. Numbers and names can be changed too. "
                           "Click any item and use the edit box below."));
    // Two lines, which a layout does not count in its smallest height.
    label10_->setMinimumHeight(2 * label10_->fontMetrics().lineSpacing());
    label5_ = MakeLabel(QStringLiteral("Label5"), tr("   Your lottery entries"));
    label2_ = MakeLabel(QStringLiteral("Label2"), tr("Item:"));
    label1_ = MakeLabel(QStringLiteral("Label1"), tr("Date:"));
    deleteLabel_ = MakeLabel(QStringLiteral("DeleteLabel"), tr("Delete:"));
    sortLabel_ = MakeLabel(QStringLiteral("SortLabel"), tr("Sort:"));
    label9_ = MakeBody(QStringLiteral("Label9"),
                       tr("The Check button tells you if you have won anything. Each lottery "
                          "entry is checked with the lottery draw result on the date specified. "
                          "Any numbers matched are highlighted."));
    label14_ = MakeLabel(QStringLiteral("Label14"), tr("Check report:"));
    label4_ = MakeLabel(QStringLiteral("Label4"), tr("Match main draw number:"));
    label3_ = MakeSample(QStringLiteral("Label3"), tr("yellow"), MainMatchColour());
    label6_ = MakeLabel(QStringLiteral("Label6"), tr("Match Bonus/Powerball:"));
    label7_ = MakeSample(QStringLiteral("Label7"), tr("light red"), ExtraMatchColour());
}

void ShowMyDrawsW::MakeGrid() {
    grid_ = Named(new Grid(rowCount, columnCount), QStringLiteral("MSFlexGrid1"));
    grid_->setAccessibleName(label5_->text().trimmed());
    SetEntryHeadings(*grid_);
    const auto widthOf = [this](const char* text) {
        return grid_->fontMetrics().horizontalAdvance(QLatin1String(text));
    };
    const int number = widthOf("---NUM----");
    grid_->SetColumnWidths({widthOf("------DATE--------"), number, number, number, number, number,
                            number, number, number, widthOf("--------LOTTERY NAME---------"),
                            widthOf("-----PLAYER NAME---------"), widthOf("----dbase000.txt----")});
    grid_->setMinimumHeight(240);
}

void ShowMyDrawsW::MakeInputs() {
    text1_ = Titled(label2_, Named(new QLineEdit, QStringLiteral("Text1")));
    dtPicker1_ = Named(new DatePicker(QStringLiteral("dd MMM yy"), services().today()),
                       QStringLiteral("DTPicker1"));
    Titled(label1_, dtPicker1_);
    text2_ = Titled(label14_, Named(new QPlainTextEdit, QStringLiteral("Text2")));
    text2_->setReadOnly(true);
    text2_->setTabChangesFocus(true);
}

void ShowMyDrawsW::MakeCommands() {
    command10_ = MakeCommand(QStringLiteral("Command10"), tr("Enter"), tr(" Change cell value "));
    command8_ =
        MakeCommand(QStringLiteral("Command8"), tr("This row"), tr(" Change date of current row "));
    command12_ =
        MakeCommand(QStringLiteral("Command12"), tr("All rows"), tr(" Change date of all rows "));
    command7_ = MakeCommand(QStringLiteral("Command7"), tr("This row"),
                            tr(" Delete the current lottery entry "));
    command9_ =
        MakeCommand(QStringLiteral("Command9"), tr("All rows"), tr(" Delete all lottery entries "));
    command4_ = MakeCommand(QStringLiteral("Command4"), tr("Out of date"),
                            tr(" Delete lottery entries older than today "));
    command11_ = MakeCommand(QStringLiteral("Command11"), tr("By date"),
                             tr(" Sort lottery entries by date "));
    command3_ = MakeCommand(QStringLiteral("Command3"), tr("By name"),
                            tr(" Sort lottery entries by player name "));
    command6_ = MakeCommand(QStringLiteral("Command6"), tr("By lottery"),
                            tr(" Sort lottery entries by lottery name "));
    command2_ = MakeCommand(QStringLiteral("Command2"), tr("Check"), tr(" See if you have won! "));
    command13_ = MakeIconButton(QStringLiteral("Command13"), QStringLiteral("document-save"),
                                tr(" Save the lottery entries "));
    command5_ = MakeIconButton(QStringLiteral("Command5"), QStringLiteral("document-print"),
                               tr(" Print out lottery entries "));
    command5_->setEnabled(false);
    command1_ =
        MakeIconButton(QStringLiteral("Command1"), QStringLiteral("window-close"), tr(" Close "));
}

QLayout* ShowMyDrawsW::BuildCommands() {
    auto* commands = new QGridLayout;
    commands->setHorizontalSpacing(8);
    commands->setVerticalSpacing(8);
    int row = 0;
    const auto addRow = [&](const std::vector<QWidget*>& widgets) {
        int column = 0;
        for (QWidget* widget : widgets) commands->addWidget(widget, row, column++);
        ++row;
    };
    addRow({label2_, text1_, command10_});
    addRow({label1_, dtPicker1_, command8_, command12_});
    addRow({deleteLabel_, command4_, command7_, command9_});
    addRow({sortLabel_, command11_, command3_, command6_});
    commands->setColumnMinimumWidth(1, 128);
    commands->setRowStretch(row, 1);
    return commands;
}

QLayout* ShowMyDrawsW::BuildCheck() {
    auto* check = new QVBoxLayout;
    check->setSpacing(12);
    check->addWidget(command2_, 0, Qt::AlignLeft);
    check->addWidget(label9_);
    check->addLayout(BuildColourKey());
    check->addStretch(1);
    return check;
}

QLayout* ShowMyDrawsW::BuildReport() {
    // As high as the report of a lottery of seven numbers, and its margins.
    text2_->setFixedHeight(18 * text2_->fontMetrics().lineSpacing() + 12);
    text2_->setMinimumWidth(text2_->fontMetrics().averageCharWidth() * 36);
    auto* report = new QVBoxLayout;
    report->setSpacing(4);
    report->addWidget(label14_);
    report->addWidget(text2_);
    report->addStretch(1);
    return report;
}

QLayout* ShowMyDrawsW::BuildColourKey() {
    auto* key = new QGridLayout;
    key->setHorizontalSpacing(8);
    key->setVerticalSpacing(8);
    key->addWidget(label4_, 0, 0);
    key->addWidget(label3_, 0, 1);
    key->addWidget(label6_, 1, 0);
    key->addWidget(label7_, 1, 1);
    key->setColumnStretch(2, 1);
    for (QLabel* label : {label4_, label3_, label6_, label7_}) {
        KeepPlaceWhenHidden(label);
        label->hide();
    }
    return key;
}

QLayout* ShowMyDrawsW::BuildActions() {
    return BuildActionRow({command13_, command5_}, {command1_});
}

std::vector<QPushButton*> ShowMyDrawsW::Commands() const {
    return {command10_, command8_, command12_, command4_, command7_,  command9_,
            command11_, command3_, command6_,  command2_, command13_, command1_};
}

void ShowMyDrawsW::Connect() {
    const auto run = [this](QPushButton* button, void (ShowMyDrawsW::*command)()) {
        connect(button, &QPushButton::clicked, this, [this, command] { (this->*command)(); });
    };
    run(command1_, &ShowMyDrawsW::Command1_Click);
    run(command2_, &ShowMyDrawsW::Command2_Click);
    run(command3_, &ShowMyDrawsW::Command3_Click);
    run(command4_, &ShowMyDrawsW::Command4_Click);
    run(command6_, &ShowMyDrawsW::Command6_Click);
    run(command7_, &ShowMyDrawsW::Command7_Click);
    run(command8_, &ShowMyDrawsW::Command8_Click);
    run(command9_, &ShowMyDrawsW::Command9_Click);
    run(command10_, &ShowMyDrawsW::Command10_Click);
    run(command11_, &ShowMyDrawsW::Command11_Click);
    run(command12_, &ShowMyDrawsW::Command12_Click);
    run(command13_, &ShowMyDrawsW::Command13_Click);
    connect(text1_, &QLineEdit::returnPressed, command10_, &QPushButton::click);
    // A click or Enter leads to the edit box; the arrow keys stay in the grid.
    connect(grid_, &Grid::cellClicked, this, [this] { ShowCurrentCell(); });
    connect(grid_, &Grid::clicked, this, [this] { MSFlexGrid1_Click(); });
    connect(grid_, &Grid::activated, this, [this] { MSFlexGrid1_Click(); });
}
