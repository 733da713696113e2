// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of WhatIf and where they stand.
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "analysis/WhatIf.h"
#include "platform/forms/FormLayout.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/Widgets.h"

namespace {

// The headings, 179 entries, and the empty row behind them.
constexpr int rowCount = 181;
constexpr int parkingRow = 99;
constexpr int columnCount = 10;

constexpr int textWidth = 400;

AnalysisFormText Words() {
    return {.name = QStringLiteral("WhatIf"),
            .caption = WhatIf::tr("What if...?"),
            .heading = WhatIf::tr("What if...?"),
            .explanation = WhatIf::tr(
                "What if you had played the same lottery numbers each week since the lottery "
                "started. Would you have won the jackpot? What if you had bought 10 tickets each "
                "week. Of course, it would be expensive, but if you would have won, it would have "
                "been worth it. What if..."),
            .closeTip = WhatIf::tr(" Close the window ")};
}

AnalysisNames Names() {
    return {.heading = QStringLiteral("Label5"),
            .explanation = QStringLiteral("Label9"),
            .close = QStringLiteral("Command1"),
            .print = {}};
}

}  // namespace

WhatIf::WhatIf(Program& program, QWidget* parent)
    : AnalysisForm(program, Words(), Names(), parent),
      boxes_(MakeEntryBoxes(1, tr("Extra ball"))),
      extraBallTitle_(AddPrompt(QStringLiteral("Label2"), tr("Pball:"))),
      grid_(Named(new Grid(rowCount, columnCount, this), QStringLiteral("MSFlexGrid1"))),
      result_(Named(new QPlainTextEdit(this), QStringLiteral("Text2"))) {
    AddLotteryList(QStringLiteral("Label8"), tr("1. Select lottery:"));
    Texts().addWidget(AddExplanation(
        QStringLiteral("Label4"),
        tr("You can load lottery entries that have been saved to disk or type them in directly. "
           "Tip: Choose one of the methods of picking lottery entries, such as Full Selection, "
           "save the entries, then load them here to see how good that method is."),
        textWidth));
    Texts().addStretch(1);
    SetUpGrid();
    Results().addLayout(BuildEntries());
    Results().addSpacing(12);
    Results().addLayout(BuildCheck(), 1);
    SetOpeningSize({1080, 660});
}

void WhatIf::SetUpGrid() {
    constexpr int emptyColumn = 8;
    grid_->setAccessibleName(tr("Entries to check"));
    std::vector<int> widths(columnCount, grid_->columnWidth(0));
    widths.back() = emptyColumn;
    grid_->SetColumnWidths(widths);
    grid_->SetParkingRow(parkingRow);
    connect(grid_, &Grid::cellClicked, this, [this](int row) { GoToRow(row); });
}

QLayout* WhatIf::BuildEntries() {
    QPushButton* add = MakeButton(QStringLiteral("Command2"), tr("Add"));
    add->setToolTip(tr(" Add this lottery entry "));
    add->setDefault(true);
    connect(add, &QPushButton::clicked, this, [this] { Add(); });
    QPushButton* remove = MakeCommandButton(QStringLiteral("Command4"), Command::Delete,
                                            tr(" Delete selected lottery entry "));
    connect(remove, &QPushButton::clicked, this, [this] { DeleteEntry(); });
    auto* entries = new QGridLayout;
    entries->setVerticalSpacing(4);
    entries->addLayout(BuildTitles(), 0, 0);
    entries->addLayout(BuildAtColumns(*grid_, 1, {boxes_.begin(), boxes_.end()}), 1, 0);
    entries->addWidget(add, 1, 1);
    entries->addWidget(grid_, 2, 0);
    entries->addWidget(remove, 2, 1, Qt::AlignTop);
    return entries;
}

QLayout* WhatIf::BuildTitles() {
    int toExtraBall = grid_->frameWidth();
    for (int column = 0; column < 8; ++column) toExtraBall += grid_->columnWidth(column);
    QLabel* title = AddPrompt(QStringLiteral("Label1"), tr("2. Enter numbers:"));
    title->setMinimumWidth(toExtraBall);
    auto* titles = new QHBoxLayout;
    titles->setSpacing(0);
    titles->addWidget(title);
    titles->addWidget(extraBallTitle_);
    titles->addStretch(1);
    return titles;
}

QLayout* WhatIf::BuildCheck() {
    constexpr int widest = 46;  // characters of a line of the result
    QLabel* title = AddPrompt(QStringLiteral("Label3"), tr("3. Check numbers:"));
    QPushButton* check =
        WithKeysOf(Command::Generate, MakeButton(QStringLiteral("Command3"), tr("Check")));
    check->setToolTip(tr(" See if you have won! "));
    connect(check, &QPushButton::clicked, this, [this] { Check(); });
    result_->setReadOnly(true);
    result_->setTabChangesFocus(true);
    result_->setAccessibleName(tr("Result of the check"));
    result_->setMinimumWidth(result_->fontMetrics().averageCharWidth() * widest);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(title);
    column->addWidget(check, 0, Qt::AlignLeft);
    column->addWidget(result_, 1);
    return column;
}
