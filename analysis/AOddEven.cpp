// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/AOddEven.h"

#include <QLabel>
#include <QVBoxLayout>

#include "analysis/AnalysisPieces.h"
#include "analysis/LastDrawsTable.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/NumberColours.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int ratioRows = 8;
constexpr int leastWordsWidth = 300;
constexpr std::array<LastDrawNames, 4> lastDrawNames = {
    {{"Label2", "Label9"}, {"Label3", "Label10"}, {"Label12", "Label11"}, {"Label13", "Label14"}}};

AnalysisFormText Words() {
    return {.name = QStringLiteral("AOddEven"),
            .caption = AOddEven::tr("Analyse Odd/Even"),
            .heading = AOddEven::tr("Odd:Even ratios"),
            .explanation = AOddEven::tr(
                "These charts examine the ratio of odd to even numbers in lottery draws. Although "
                "it is possible for the draw result to contain all odd numbers or all even "
                "numbers, this rarely happens. It is best for your lottery entries to have roughly "
                "equal numbers of odd and even numbers.")};
}

// Kept on purpose: "roughtly", here and below.
QString TotalsExplanation() {
    return AOddEven::tr(
        "<---- This shows the total number of odd and even numbers in the lottery draw results. "
        "They are roughtly equal, showing no bias.");
}

QString RatiosExplanation() {
    return AOddEven::tr(
        "This shows the ratio of odd to even numbers in each draw. It is rare for all odd or all "
        "even numbers to be drawn. The most common result is when roughtly half the numbers are "
        "odd and half are even ---->");
}

BarLook OddLook() { return {.fill = OddColour()}; }

BarLook EvenLook() {
    return {.fill = EvenColours().bars,
            .pattern = QBrush(EvenColours().pattern, Qt::Dense6Pattern)};
}

}  // namespace

AOddEven::AOddEven(Program& program, QWidget* parent)
    : AnalysisForm(program, Words(), {}, parent),
      recent_(Named(new Chart(recentDraws, 2), QStringLiteral("MSChart1"))),
      totals_(Named(new Chart(2, 1), QStringLiteral("MSChart2"))),
      ratios_(Named(new Chart(ratioRows, 1), QStringLiteral("MSChart3"))),
      lastDraws_(new LastDrawsTable(AddPrompt(QStringLiteral("Label6"), tr("Last 4 draws     ")),
                                    lastDrawNames)) {
    AddLotteryList();
    auto* column = new QVBoxLayout;
    column->addLayout(BuildRecent(), 6);
    column->addLayout(BuildTotals(), 5);
    Results().addLayout(column);
    SetOpeningSize({1180, 740});
}

QLayout* AOddEven::BuildRecent() {
    recent_->SetTitle(tr("  Odd (blue):Even (green) numbers in recent draws  "));
    recent_->SetColumnLabel(1, tr("Odd"));
    recent_->SetColumnLabel(2, tr("Even"));
    recent_->SetSeriesLook(1, OddLook());
    recent_->SetSeriesLook(2, EvenLook());
    recent_->setMinimumSize(520, 180);
    auto* atRight = new QVBoxLayout;
    atRight->addLayout(lastDraws_);
    atRight->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(recent_, 1);
    row->addLayout(atRight);
    return row;
}

QLayout* AOddEven::BuildTotals() {
    totals_->SetTitle(tr(" Totals"));
    totals_->SetRowLabel(1, tr("Odd"));
    totals_->SetRowLabel(2, tr("Even"));
    totals_->SetRowLook(1, OddLook());
    totals_->SetRowLook(2, EvenLook());
    totals_->SetRankedRows({1, 2});
    totals_->setMinimumSize(150, 150);
    ratios_->SetTitle(tr(" Ratio of odd:even numbers "));
    ratios_->setMinimumSize(300, 150);
    auto* words = new QVBoxLayout;
    words->setSpacing(6);
    words->addWidget(
        AddExplanation(QStringLiteral("Label7"), TotalsExplanation(), leastWordsWidth));
    words->addSpacing(8);
    words->addWidget(
        AddExplanation(QStringLiteral("Label8"), RatiosExplanation(), leastWordsWidth));
    words->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(totals_, 2);
    row->addLayout(words, 3);
    row->addWidget(ratios_, 4);
    return row;
}

void AOddEven::LotteryChosen() {
    const odd_even::Figures figures = odd_even::Analyse(view());
    ShowRecent(figures);
    totals_->SetValue(1, 1, figures.total.odd);
    totals_->SetValue(2, 1, figures.total.even);
    totals_->Refresh();
    // Kept on purpose: the labels tell even numbers first, under a title that says odd:even.
    SetRatios(*ratios_, figures.EvenCount, state().Picks, tr("%1 even, %2 odd"));
    ratios_->Refresh();
    lastDraws_->Show(figures.last);
}

void AOddEven::ShowRecent(const odd_even::Figures& figures) {
    int row = 0;
    for (const odd_even::OddEven& draw : figures.recent) {
        ++row;
        recent_->SetValue(row, 1, draw.odd);
        recent_->SetValue(row, 2, draw.even);
    }
    NameDraws(*recent_, DrawsAmong(view(), recentDraws), DrawLabels::Shown);
    recent_->Refresh();
}
