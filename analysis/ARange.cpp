// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/ARange.h"

#include <QHBoxLayout>
#include <QLabel>

#include "analysis/AnalysisPieces.h"
#include "analysis/draw_ranges.h"
#include "core/draws.h"
#include "core/text.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int leastChartWidth = 740;
constexpr int leastChartHeight = 145;

AnalysisFormText Words() {
    return {.name = QStringLiteral("ARange"),
            .caption = ARange::tr("Analyse Number Range"),
            .heading = ARange::tr("Number ranges"),
            .explanation = ARange::tr(
                "A lottery draw's range is calculated by subtracting the lowest draw number from "
                "the highest. So if the highest is 35 and the lowest is 3, the range would be 32. "
                "The chart below plots the range of recent lottery draws.")};
}

QString Advice() {
    return ARange::tr(
        "The charts show that it is rare for lottery numbers to be bunched close together (a small "
        "range). Therefore you should spread out your numbers and ensure there is an adequate gap "
        "between the smallest and largest.");
}

}  // namespace

ARange::ARange(Program& program, QWidget* parent)
    : AnalysisForm(program, Words(), {}, parent),
      average_(MakeFigure(QStringLiteral("Label3"))),
      recent_(Named(new Chart(recentDraws, 1), QStringLiteral("MSChart1"))),
      counts_(Named(new Chart(0, 1), QStringLiteral("MSChart2"))) {
    AddLotteryList();
    BuildCharts();
    SetOpeningSize({1180, 740});
}

void ARange::BuildCharts() {
    recent_->SetTitle(tr(" Range of numbers - last 50 draws "));
    counts_->SetTitle(tr(" Number of times a range has occurred "));
    counts_->SetCaption(tr("range"));
    recent_->setMinimumSize(leastChartWidth, leastChartHeight);
    counts_->setMinimumSize(leastChartWidth, leastChartHeight);
    auto* column = new QVBoxLayout;
    column->addWidget(recent_, 1);
    column->addWidget(average_);
    column->addWidget(AddExplanation(QStringLiteral("Label2"), Advice(), leastChartWidth));
    column->addWidget(counts_, 1);
    Results().addLayout(column);
}

void ARange::LotteryChosen() {
    SortDraws(state(), state().Picks);
    const draw_ranges::Figures figures = draw_ranges::AnalyseRange(view());
    int row = 0;
    for (const int range : figures.recent) recent_->SetValue(++row, 1, range);
    NameDraws(*recent_, DrawsAmong(view(), recentDraws), DrawLabels::Shown);
    recent_->SetAverage(figures.average);
    recent_->Refresh();
    average_->setText(tr("Average range is") + ToQString(NumberText(figures.average)));
    SetNumbers(*counts_, figures.RangeCount, state().MaxNum);
    counts_->Refresh();
}
