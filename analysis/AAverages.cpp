// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/AAverages.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>

#include "analysis/AnalysisPieces.h"
#include "analysis/position_averages.h"
#include "analysis/recent_draws.h"
#include "core/draws.h"
#include "core/text.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr std::array ordinals = {"1st", "2nd", "3rd", "4th", "5th", "6th", "7th"};
constexpr int positionCount = static_cast<int>(ordinals.size());
constexpr int positionsInColumn = 4;
constexpr int optionSpacing = 4;
constexpr int leastChartWidth = 740;
constexpr int leastChartHeight = 145;

QString Ordinal(int position) {
    return QString::fromLatin1(ordinals.at(static_cast<std::size_t>(position - 1)));
}

AnalysisFormText Words() {
    return {.name = QStringLiteral("AAverages"),
            .caption = AAverages::tr("Number Averages"),
            .heading = AAverages::tr("Number Averages"),
            .explanation = AAverages::tr(
                "The top chart plots the value of the selected draw lottery number (sorted, not "
                "draw order) over the past 100 draws. The average value is displayed. There may be "
                "benefits to choosing lottery numbers close to the average.")};
}

// Kept on purpose: "occured".
QString CountsExplanation() {
    return AAverages::tr(
        "The bottom chart plots the number of times each number occurs for the selected draw "
        "number. For example, select 1st number and you can see which numbers have occured in this "
        "position and how many times.");
}

}  // namespace

AAverages::AAverages(Program& program, QWidget* parent)
    : AnalysisForm(program, Words(), {}, parent),
      positions_(new OptionGroup(this)),
      average_(MakeFigure(QStringLiteral("Label3"))),
      recent_(Named(new Chart(0, 1), QStringLiteral("MSChart1"))),
      counts_(Named(new Chart(0, 1), QStringLiteral("MSChart2"))) {
    AddLotteryList();
    BuildPositions();
    BuildCharts();
    SetOpeningSize({1180, 740});
}

void AAverages::BuildPositions() {
    auto* options = new QHBoxLayout;
    options->setSpacing(20);
    std::array<QVBoxLayout*, 2> columns{};
    for (QVBoxLayout*& column : columns) {
        column = new QVBoxLayout;
        column->setSpacing(optionSpacing);
        options->addLayout(column);
    }
    for (int index = 0; index < positionCount; ++index) {
        columns.at(index < positionsInColumn ? 0 : 1)
            ->addWidget(positions_->Add(Member(QStringLiteral("Option3"), index),
                                        tr("%1 number").arg(Ordinal(index + 1))));
    }
    columns.back()->addStretch(1);
    auto* average = new QHBoxLayout;
    average->addWidget(AddPrompt(QStringLiteral("Label2"), tr("Average value:")));
    average->addWidget(average_, 1);
    Choices().addWidget(AddPrompt(QStringLiteral("Label7"), tr("Pick draw number")));
    Choices().addLayout(options);
    Choices().addLayout(average);
    Choices().addStretch(1);
    connect(positions_, &OptionGroup::clicked, this, [this] { Analyse(); });
}

void AAverages::BuildCharts() {
    counts_->SetTitle(tr(" How many times a number has appeared "));
    recent_->setMinimumSize(leastChartWidth, leastChartHeight);
    counts_->setMinimumSize(leastChartWidth, leastChartHeight);
    auto* column = new QVBoxLayout;
    column->addWidget(recent_, 1);
    column->addWidget(
        AddExplanation(QStringLiteral("Label6"), CountsExplanation(), leastChartWidth));
    column->addWidget(counts_, 1);
    Results().addLayout(column);
}

void AAverages::LotteryChosen() {
    CheckPicks(view(), positionCount);
    SortDraws(state(), state().Picks);
    OfferPositions();
    Analyse();
}

/// The first position is chosen, which is no click on it.
void AAverages::OfferPositions() {
    const QSignalBlocker blocker(positions_);
    for (int index = 0; index < positionCount; ++index) {
        positions_->Option(index).setEnabled(index < state().Picks);
    }
    positions_->Option(0).setChecked(true);
}

void AAverages::Analyse() {
    const int position = positions_->Index() + 1;
    const position_averages::Figures figures = position_averages::Analyse(view(), position);
    average_->setText(ToQString(NumberText(figures.average)));
    const int rows = static_cast<int>(figures.recent.size());
    recent_->SetRowCount(rows);
    for (int row = 1; row <= rows; ++row) {
        recent_->SetValue(row, 1, figures.recent[static_cast<std::size_t>(row - 1)]);
    }
    NameDraws(*recent_, DrawsAmong(view(), rows), DrawLabels::None);
    recent_->SetTitle(
        tr(" Value of %1 number over last %2 draws").arg(Ordinal(position)).arg(rows));
    recent_->SetAverage(figures.average);
    recent_->Refresh();
    SetNumbers(*counts_, figures.PositionCount, state().MaxNum);
    counts_->Refresh();
}
