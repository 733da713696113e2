// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/ANumberStats.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/forms/Hourglass.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Widgets.h"

namespace {

// The headings, 70 numbers, and the empty row behind them.
constexpr int rowCount = 72;
constexpr int columnCount = 4;

constexpr int reportWidth = 240;

AnalysisFormText Words() {
    return {.name = QStringLiteral("ANumberStats"),
            .caption = ANumberStats::tr("Number statistics"),
            .heading = ANumberStats::tr("Number statistics"),
            .explanation = ANumberStats::tr(
                "The Last Drawn column shows the number of draws since the number was last seen. "
                "The Times Drawn column shows the number of times this number has appeared. The "
                "Average is the average number of draws between appearances."),
            .printTip = ANumberStats::tr(" Print out table ")};
}

AnalysisNames Names() {
    return {.heading = QStringLiteral("Label1"),
            .explanation = QStringLiteral("Label6"),
            .close = QStringLiteral("Command3")};
}

}  // namespace

std::vector<ANumberStats::Sort> ANumberStats::Sorts() {
    using number_stats::Order;
    return {{.button = "Command1",
             .prompt = tr("Overdue numbers:"),
             .toolTip = tr(" Place overdue numbers at the top "),
             .heading = tr("These numbers haven't appeared for a long time and are overdue:"),
             .column = number_stats::lastDrawnColumn,
             .order = Order::HighestFirst},
            {.button = "Command2",
             .prompt = tr("Most common numbers:"),
             .toolTip = tr(" Place most common numbers at the top "),
             .heading = tr("For some reason, these numbers appear more often than others:"),
             .column = number_stats::timesDrawnColumn,
             .order = Order::HighestFirst},
            {.button = "Command4",
             .prompt = tr("Expected numbers:"),
             .toolTip = tr(" Place expected numbers at the top "),
             .heading = tr("These numbers are expected soon to improve their average:"),
             .column = number_stats::timesDrawnColumn,
             .order = Order::LowestFirst}};
}

ANumberStats::ANumberStats(Program& program, QWidget* parent)
    : AnalysisForm(program, Words(), Names(), parent),
      report_(AddExplanation(
          QStringLiteral("Label4"),
          tr("Use the sort buttons to see overdue, most common, and expected numbers"),
          reportWidth)),
      grid_(Named(new Grid(rowCount, columnCount, this), QStringLiteral("MSFlexGrid1"))) {
    AddLotteryList(QStringLiteral("LotteryPrompt"));
    SetUpGrid();
    Results().addWidget(grid_);
    Results().addSpacing(10);
    Results().addLayout(BuildSorts(), 1);
    SetOpeningSize({780, 660});
}

void ANumberStats::SetUpGrid() {
    const int digit = grid_->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    grid_->setAccessibleName(tr("Number statistics"));
    grid_->SetColumnWidths({7 * digit, 16 * digit, 19 * digit, 16 * digit});
}

QLayout* ANumberStats::BuildSorts() {
    constexpr int apart = 14;
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    for (const Sort& sort : Sorts()) {
        QPushButton* button = MakeButton(QString::fromLatin1(sort.button), tr("Sort"));
        button->setToolTip(sort.toolTip);
        button->setAccessibleName(sort.toolTip.trimmed());
        connect(button, &QPushButton::clicked, this, [this, sort] { SortBy(sort); });
        QLabel* prompt =
            AddPrompt(QString::fromLatin1(sort.button) + QStringLiteral("Prompt"), sort.prompt);
        prompt->setBuddy(button);
        column->addWidget(prompt);
        column->addWidget(button, 0, Qt::AlignLeft);
        column->addSpacing(apart);
    }
    QFont strong = report_->font();
    strong.setBold(true);
    report_->setFont(strong);
    column->addWidget(report_);
    column->addStretch(1);
    return column;
}

void ANumberStats::LotteryChosen() {
    grid_->ClearCells();
    const QStringList headings = {tr("Num"), tr("Last drawn"), tr("Times Drawn"), tr("Average")};
    for (int column = 0; column < columnCount; ++column) {
        grid_->SetCell(0, column, headings[column]);
    }
    rows_ = number_stats::TableOf(number_stats::Analyse(state()));
    ShowTable();
}

void ANumberStats::ShowTable() {
    int row = 0;
    for (const number_stats::TableRow& texts : rows_) {
        ++row;
        int column = 0;
        for (const std::string& text : texts) grid_->SetCell(row, column++, ToQString(text));
    }
    grid_->SetRowsInUse(row);
    grid_->SetCurrentCell(1, 0);
    grid_->ScrollToTop();
}

void ANumberStats::SortBy(const Sort& sort) {
    const Hourglass hourglass;
    QWidget* focused = focusWidget();
    ToggleButtons();
    number_stats::SortRows(rows_, sort.column, sort.order);
    report_->setText(sort.heading + ToQString(number_stats::FirstTen(rows_)));
    ShowTable();
    ToggleButtons();
    if (focused != nullptr) focused->setFocus();
}

void ANumberStats::ToggleButtons() {
    for (const char* name : {"Command1", "Command2", "Command3", "Command4", "Command6"}) {
        auto* button = findChild<QPushButton*>(QString::fromLatin1(name));
        button->setEnabled(!button->isEnabled());
    }
}

void ANumberStats::Print() { services().printStats(this, *grid_); }

bool ANumberStats::CanPrint() const { return static_cast<bool>(services().printStats); }
