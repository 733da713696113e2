// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/ACommonNumbers.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "analysis/AnalysisPieces.h"
#include "analysis/common_numbers.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/HotColdBand.h"
#include "platform/widgets/NumberColours.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"

namespace {

// Widths of the main chart in twips, beside the second chart and alone.
constexpr int widthBeside = 4155;
constexpr int widthAlone = 7000;

QString HotExplanation() {
    return ACommonNumbers::tr(
        "These charts show how many times each number has appeared in the lottery draw result. Is "
        "there a reason why some numbers come up more often than others? Are the balls bigger or "
        "heavier? Whatever the reason, these numbers are HOT!");
}

QString ColdExplanation() {
    return ACommonNumbers::tr(
        "These charts show which numbers appear the least often. If a lottery is random, all "
        "numbers should appear an equal number of times. The coldest numbers (the ones with the "
        "tallest bars in the charts below ) are therefore overdue. Maybe you should pick them!");
}

AnalysisFormText Words() {
    return {.name = QStringLiteral("ACommonNumbers"),
            .caption = ACommonNumbers::tr("Most Common Numbers"),
            .heading = ACommonNumbers::tr("Hot Numbers"),
            .explanation = HotExplanation()};
}

void ShowCounts(Chart& chart, const Counts& counts, int rows) {
    SetNumbers(chart, counts, rows);
    double sum = 0;
    for (int number = 1; number <= rows; ++number) sum += counts(number);
    chart.SetRankedRows({});
    chart.SetAverage(rows > 0 ? std::optional(sum / rows) : std::nullopt);
    chart.Refresh();
}

}  // namespace

ACommonNumbers::ACommonNumbers(Program& program, QWidget* parent)
    : AnalysisForm(program, Words(), {}, parent),
      modes_(new OptionGroup(this)),
      mainChart_(Named(new Chart(0, 1), QStringLiteral("MSChart1"))),
      extraChart_(Named(new Chart(0, 1), QStringLiteral("MSChart2"))),
      band_(new HotColdBand(QStringLiteral("Label2"), QStringLiteral("Label3"))) {
    AddLotteryList();
    BuildModes();
    mainChart_->SetTitle(tr("Number frequency"));
    extraChart_->SetTitle(tr("Bonus number frequency"));
    mainChart_->setMinimumSize(480, 240);
    extraChart_->setMinimumSize(340, 240);
    Results().addWidget(mainChart_, widthBeside);
    Results().addWidget(extraChart_, widthAlone - widthBeside);
    band_->Heading().setText(tr("Hot numbers"));
    Foot().addWidget(band_);
    SetOpeningSize({1180, 640});
}

void ACommonNumbers::BuildModes() {
    Choices().addWidget(AddPrompt(QStringLiteral("Label6"), tr("Pick hot or cold:")));
    Choices().addWidget(modes_->Add(QStringLiteral("Option1(0)"), tr("Hot numbers")));
    Choices().addWidget(modes_->Add(QStringLiteral("Option1(1)"), tr("Cold numbers")));
    Choices().addStretch(1);
    connect(modes_, &OptionGroup::clicked, this, [this] { ChooseMode(); });
}

bool ACommonNumbers::Cold() const { return modes_->Index() != 0; }

void ACommonNumbers::LotteryChosen() {
    NumberCounts counts;
    common_numbers::AnalyseDraws(state(), Cold(), counts);
    DrawChart(counts);
    const TenNumbers numbers = common_numbers::TakeTen(state(), counts.MainCount);
    band_->Numbers().setText(ToQString(TenNumbersText(numbers)));
    mainChart_->SetRankedRows({numbers.begin(), numbers.end()});
    mainChart_->Refresh();
}

void ACommonNumbers::DrawChart(const NumberCounts& counts) {
    DrawMainChart(counts.MainCount);
    const bool alone = state().HasBonus == 0 && state().MaxPball == 0;
    extraChart_->setVisible(!alone);
    if (!alone) DrawExtraChart(counts.ExtraCount);
}

// The pattern tells hot from cold where colours cannot.
void ACommonNumbers::DrawMainChart(const Counts& counts) {
    const bool cold = Cold();
    const HotColdColours colours = ColoursOfMode(cold);
    const QBrush pattern(colours.pattern, cold ? Qt::HorPattern : Qt::BDiagPattern);
    mainChart_->SetSeriesLook(1, {.fill = colours.bars, .pattern = pattern});
    ShowCounts(*mainChart_, counts, state().MaxNum);
}

// A header below zero tells of a ball but not of which: what the chart shows stays.
void ACommonNumbers::DrawExtraChart(const Counts& counts) {
    if (state().HasBonus <= 0 && state().MaxPball <= 0) return;
    const QString mode = Cold() ? tr("frequency (cold nums) ") : tr("frequency (hot nums) ");
    if (state().HasBonus > 0) extraChart_->SetTitle(tr(" Bonus ") + mode);
    if (state().MaxPball > 0) extraChart_->SetTitle(tr(" Powerball ") + mode);
    ShowCounts(*extraChart_, counts, common_numbers::ExtraRows(state()));
}

void ACommonNumbers::ChooseMode() {
    const bool cold = Cold();
    const QString words = cold ? tr("Cold numbers") : tr("Hot numbers");
    setWindowTitle(words);
    Heading().setText(words);
    band_->Heading().setText(words);
    band_->SetCold(cold);
    mainChart_->SetTitle(cold ? tr(" Least common (cold) numbers ")
                              : tr(" Most common (hot) numbers "));
    Explanation().setText(cold ? ColdExplanation() : HotExplanation());
    ChooseLottery();
}
