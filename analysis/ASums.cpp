// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/ASums.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "analysis/AnalysisPieces.h"
#include "analysis/LastDrawsTable.h"
#include "analysis/draw_sums.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int ratioRows = 8;
constexpr int leastWordsWidth = 260;
constexpr std::array<LastDrawNames, 4> lastDrawNames = {{{"Label19", "Label17"},
                                                         {"Label18", "Label16"},
                                                         {"Label3", "Label15"},
                                                         {"Label13", "Label14"}}};

AnalysisFormText Words() {
    return {.name = QStringLiteral("ASums"),
            .caption = ASums::tr("Analyse sums"),
            .heading = ASums::tr("Sums"),
            .explanation = ASums::tr(
                "To calculate the sum of a lottery draw result, just add all the numbers together. "
                "Few sums are very small and few are very large. In theory, the sum of the draw "
                "numbers could be under 30, but it never is. Perhaps you should check the sums of "
                "your lottery entries to make sure that they are close to the average!")};
}

QString RatioExplanation() {
    return ASums::tr(
        "<--- A lottery draw result could contain all low numbers or all high numbers, but this "
        "rarely happens. This chart shows the ratio of low numbers to high numbers. It shows that "
        "the most common draw result has an even mixture of low and high numbers.");
}

}  // namespace

ASums::ASums(Program& program, QWidget* parent)
    : AnalysisForm(program, Words(), {}, parent),
      sums_(Named(new Chart(recentDraws, 1), QStringLiteral("MSChart1"))),
      ratios_(Named(new Chart(ratioRows, 1), QStringLiteral("MSChart3"))),
      smallest_(MakeFigure(QStringLiteral("Label2"))),
      largest_(MakeFigure(QStringLiteral("Label9"))),
      average_(MakeFigure(QStringLiteral("Label10"))),
      lastDraws_(new LastDrawsTable(AddPrompt(QStringLiteral("Label20"), tr("Last 4 draws     ")),
                                    lastDrawNames)) {
    AddLotteryList();
    auto* column = new QVBoxLayout;
    column->addLayout(BuildSums(), 6);
    column->addLayout(BuildRatios(), 5);
    Results().addLayout(column);
    SetOpeningSize({1180, 740});
}

QLayout* ASums::BuildSums() {
    sums_->SetTitle(tr(" Sums of most recent lottery draws "));
    sums_->setMinimumSize(520, 160);
    auto* figures = new QFormLayout;
    figures->setHorizontalSpacing(12);
    figures->setVerticalSpacing(8);
    figures->addRow(AddPrompt(QStringLiteral("Label6"), tr("Smallest sum:")), smallest_);
    figures->addRow(AddPrompt(QStringLiteral("Label7"), tr("Largest sum:")), largest_);
    figures->addRow(AddPrompt(QStringLiteral("Label8"), tr("Average sum:")), average_);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(sums_, 1);
    row->addLayout(figures);
    return row;
}

QLayout* ASums::BuildRatios() {
    ratios_->SetTitle(tr(" Low:High ratio in draw results "));
    ratios_->setMinimumSize(340, 150);
    auto* words = new QVBoxLayout;
    words->setSpacing(6);
    words->addWidget(AddPrompt(QStringLiteral("Label12"), tr("High/Low numbers")));
    words->addWidget(
        AddExplanation(QStringLiteral("Label11"), RatioExplanation(), leastWordsWidth));
    words->addStretch(1);
    auto* atRight = new QVBoxLayout;
    atRight->addLayout(lastDraws_);
    atRight->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(ratios_, 1);
    row->addLayout(words, 1);
    row->addLayout(atRight);
    return row;
}

void ASums::LotteryChosen() {
    const draw_sums::Figures figures = draw_sums::Analyse(view());
    int row = 0;
    for (const int sum : figures.sums) sums_->SetValue(++row, 1, sum);
    NameDraws(*sums_, DrawsAmong(view(), recentDraws), DrawLabels::Shown);
    sums_->SetAverage(figures.average);
    sums_->Refresh();
    smallest_->setText(QString::number(figures.smallest));
    largest_->setText(QString::number(figures.largest));
    average_->setText(QString::number(figures.average));
    SetRatios(*ratios_, figures.RatioCount, state().Picks, tr("%1 low, %2 high"));
    ratios_->Refresh();
    lastDraws_->Show(figures.last);
}
