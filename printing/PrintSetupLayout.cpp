// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of PrintSetup and where they stand.
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/forms/FormLayout.h"
#include "platform/forms/GridEditor.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "printing/PrintSetup.h"

namespace {

constexpr int gridColumns = 6;

}  // namespace

PrintSetup::PrintSetup(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("PrintSetup"), tr("Lottery slip print setup"), parent) {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(16);
    columns->addLayout(MakeTemplates(), 1);
    columns->addLayout(MakeMeasures());
    columns->addLayout(MakePositions());
    LayOutForm(
        this, MakeTitle(QStringLiteral("FormTitle"), tr("Lottery slip print setup")),
        MakeBody(QStringLiteral("Explanation"),
                 tr("Measure an empty slip once, and your printer can mark your numbers on "
                    "it. Enter the measurements, generate the positions and lay a test print "
                    "over a slip: a mark on every number shows what does not fit yet.")),
        columns, MakeActions());
    TabInReadingOrder();
    SetHelpPage(QStringLiteral("helpprint.html"));
    SetOpeningSize({1290, 660});
}

QLayout* PrintSetup::MakeTemplates() {
    auto* templatesTitle = MakeLabel(QStringLiteral("Label6"), tr(" Select a template:"));
    templates_ = Titled(templatesTitle, Named(new ListBox, QStringLiteral("List3")));
    files_ = Named(new ListBox(this), QStringLiteral("List2"));
    files_->hide();
    auto* lotteriesTitle = MakeLabel(QStringLiteral("Label1"), tr(" Select a lottery:"));
    lotteries_ = Titled(lotteriesTitle, Named(new ListBox, QStringLiteral("List1")));
    connect(templates_, &ListBox::clicked, this, [this] { ChooseTemplate(); });
    connect(lotteries_, &ListBox::clicked, this, [this] { ChooseLottery(); });
    auto* nameTitle = MakeLabel(QStringLiteral("Label3"), tr(" Save template as:"));
    name_ = Titled(nameTitle, Named(new QLineEdit, QStringLiteral("Text3")));
    for (ListBox* list : {templates_, lotteries_}) list->setMinimumSize(170, 100);

    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(templatesTitle);
    column->addWidget(templates_, 1);
    column->addSpacing(8);
    column->addWidget(lotteriesTitle);
    column->addWidget(lotteries_, 1);
    column->addSpacing(8);
    column->addWidget(nameTitle);
    column->addWidget(name_);
    column->addSpacing(4);
    column->addLayout(MakeTemplateCommands());
    return column;
}

QLayout* PrintSetup::MakeTemplateCommands() {
    auto* save = MakeCommandButton(QStringLiteral("Command4"), Command::Save,
                                   tr(" Save As/Update template "));
    auto* remove =
        MakeCommandButton(QStringLiteral("Command3"), Command::Delete, tr(" Delete template "));
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    connect(remove, &QPushButton::clicked, this, [this] { DeleteTemplate(); });
    auto* commands = new QHBoxLayout;
    commands->addWidget(save);
    commands->addStretch(1);
    AddApart(*commands, remove);
    return commands;
}

QLayout* PrintSetup::MakePositions() {
    auto* title =
        MakeLabel(QStringLiteral("Label4"), tr("Number positions on the lottery slip (mm):"));
    MakeGrid();
    Titled(title, grid_);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(title);
    column->addWidget(grid_, 1);
    column->addLayout(MakeEditRow());
    column->addWidget(MakeBody(QStringLiteral("EditHint"),
                               tr("Positions typed here serve the test print: saving makes them "
                                  "afresh.")));
    return column;
}

void PrintSetup::MakeGrid() {
    grid_ = Named(new Grid(highestOnSlip + 1, gridColumns), QStringLiteral("MSFlexGrid1"));
    const QStringList headings = {QStringLiteral("Number"), QStringLiteral("Num_X"),
                                  QStringLiteral("Num_Y"), QStringLiteral("Pball_X"),
                                  QStringLiteral("Pball_Y")};
    int column = 0;
    for (const QString& heading : headings) grid_->SetCell(0, column++, heading);
    for (int row = 1; row <= highestOnSlip; ++row) grid_->SetCell(row, 0, QString::number(row));
    const auto widthOf = [this](const char* text) {
        return grid_->fontMetrics().horizontalAdvance(QLatin1String(text));
    };
    const int position = widthOf("12345678900");
    grid_->SetColumnWidths({widthOf("_NUMBER_"), position, position, position, position, 0});
    grid_->setMinimumHeight(8 * grid_->verticalHeader()->defaultSectionSize());
}

QLayout* PrintSetup::MakeEditRow() {
    auto* title = MakeLabel(Member(QStringLiteral("Label1"), 1), tr("Edit:"));
    position_ = Titled(title, Named(new FilteredBox, QStringLiteral("Text4")));
    position_->SetTaken(QStringLiteral("0123456789.-,"));
    position_->installEventFilter(this);
    auto* enter = MakeButton(QStringLiteral("Command7"), tr("Enter"));
    connect(enter, &QPushButton::clicked, this, [this] { ChangePosition(); });
    editor_ = new GridEditor(*grid_, *position_, *enter);
    connect(editor_, &GridEditor::cellChanged, this,
            [this](int row, int column) { FollowCell(row, column); });
    connect(editor_, &GridEditor::editRequested, this, [this] { editor_->EditCell(); });
    auto* row = new QHBoxLayout;
    row->addWidget(title);
    row->addWidget(position_, 1);
    row->addWidget(enter);
    row->addStretch(1);
    return row;
}

QPushButton* PrintSetup::MakeTestPrint() {
    auto* test = MakeCommandButton(QStringLiteral("Command6"), Command::Print,
                                   tr(" Test print on lottery slip "));
    test->setText(tr("Test print"));
    test->setEnabled(services().printers != nullptr);
    connect(test, &QPushButton::clicked, this, [this] { PrintTest(); });
    return test;
}

QPushButton* PrintSetup::MakeAdjustPrinter() {
    auto* adjust =
        MakeIconButton(QStringLiteral("AdjustPrinter"), QStringLiteral("transform-move"),
                       tr("Correct what the current printer is off, for test print and slips"));
    adjust->setText(tr("Adjust printer..."));
    adjust->setEnabled(services().printers != nullptr);
    connect(adjust, &QPushButton::clicked, this, [this] { AdjustPrinter(); });
    return adjust;
}

QLayout* PrintSetup::MakeActions() {
    generate_ = MakeCommandButton(QStringLiteral("Command5"), Command::Generate,
                                  tr(" Generate number positions "));
    connect(generate_, &QPushButton::clicked, this, [this] { Generate(); });
    for (QLineEdit* box : measures_) {
        connect(box, &QLineEdit::returnPressed, generate_, &QPushButton::click);
    }
    auto* help = MakeIconButton(QStringLiteral("Command1"), QStringLiteral("help-contents"),
                                tr(" Get help "));
    help->setText(tr("Help"));
    connect(help, &QPushButton::clicked, this, [this] { OpenHelp(); });
    auto* close = MakeCommandButton(QStringLiteral("CancelButton"), Command::Close, tr(" Close "));
    connect(close, &QPushButton::clicked, this, [this] { AskAndClose(); });
    SetCloseButton(close);
    return BuildActionRow({generate_, MakeTestPrint(), MakeAdjustPrinter()}, {help, close});
}
