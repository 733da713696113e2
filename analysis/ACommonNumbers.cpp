// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/ACommonNumbers.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "analysis/common_numbers.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/HotColdBand.h"
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
    chart.SetRowCount(rows);
    for (int number = 1; number <= rows; ++number) {
        chart.SetRowLabel(number, QString::number(number));
        chart.SetValue(number, 1, counts(number));
    }
    chart.Refresh();
}

}  // namespace

ACommonNumbers::ACommonNumbers(Program& program, QWidget* parent)
    : AnalysisForm(program, Words(), {}, parent),
      chart1_(Named(new Chart(0, 1), QStringLiteral("MSChart1"))),
      chart2_(Named(new Chart(0, 1), QStringLiteral("MSChart2"))),
      band_(new HotColdBand(QStringLiteral("Label2"), QStringLiteral("Label3"))) {
    AddLotteryList();
    BuildOptions();
    chart1_->SetTitle(tr("Number frequency"));
    chart2_->SetTitle(tr("Bonus number frequency"));
    chart1_->setMinimumSize(480, 240);
    chart2_->setMinimumSize(340, 240);
    Results().addWidget(chart1_, widthBeside);
    Results().addWidget(chart2_, widthAlone - widthBeside);
    band_->Heading().setText(tr("Hot numbers"));
    Foot().addWidget(band_);
    resize(1180, 640);
}

void ACommonNumbers::BuildOptions() {
    Choices().addWidget(AddPrompt(QStringLiteral("Label6"), tr("Pick hot or cold:")));
    hot_ = Named(new QRadioButton(tr("Hot numbers")), Member(QStringLiteral("Option1"), 0));
    cold_ = Named(new QRadioButton(tr("Cold numbers")), Member(QStringLiteral("Option1"), 1));
    hot_->setChecked(true);
    for (QRadioButton* option : {hot_, cold_}) {
        Choices().addWidget(option);
        connect(option, &QRadioButton::clicked, this, [this] { Option1_Click(); });
    }
    Choices().addStretch(1);
}

void ACommonNumbers::Load() {
    coldMode_ = false;
    AnalysisForm::Load();
}

void ACommonNumbers::LotteryChosen() {
    NumberCounts counts;
    common_numbers::AnalyseDraws(state(), coldMode_, counts);
    DrawChart(counts);
    const TenNumbers numbers = common_numbers::TakeTen(state(), counts.MainCount);
    band_->Numbers().setText(ToQString(TenNumbersText(numbers)));
}

void ACommonNumbers::DrawChart(const NumberCounts& counts) {
    DrawMainChart(counts.MainCount);
    const bool alone = state().HasBonus == 0 && state().MaxPball == 0;
    chart2_->setVisible(!alone);
    if (!alone) DrawExtraChart(counts.ExtraCount);
}

// The pattern tells hot from cold where colours cannot.
void ACommonNumbers::DrawMainChart(const Counts& counts) {
    if (coldMode_) {
        chart1_->SetPattern(Qt::HorPattern, QColor(0, 0, 255), QColor(0, 0, 128));
    } else {
        chart1_->SetPattern(Qt::BDiagPattern, QColor(255, 0, 0), QColor(128, 0, 0));
    }
    ShowCounts(*chart1_, counts, state().MaxNum);
}

// A header below zero tells of a ball but not of which: what the chart shows stays.
void ACommonNumbers::DrawExtraChart(const Counts& counts) {
    if (state().HasBonus <= 0 && state().MaxPball <= 0) return;
    const QString mode = coldMode_ ? tr("frequency (cold nums) ") : tr("frequency (hot nums) ");
    if (state().HasBonus > 0) chart2_->SetTitle(tr(" Bonus ") + mode);
    if (state().MaxPball > 0) chart2_->SetTitle(tr(" Powerball ") + mode);
    ShowCounts(*chart2_, counts, common_numbers::ExtraRows(state()));
}

void ACommonNumbers::Option1_Click() {
    coldMode_ = !hot_->isChecked();
    ShowMode();
    List1_Click();
}

void ACommonNumbers::ShowMode() {
    const QString words = coldMode_ ? tr("Cold numbers") : tr("Hot numbers");
    setWindowTitle(words);
    Heading().setText(words);
    band_->Heading().setText(words);
    band_->SetCold(coldMode_);
    chart1_->SetTitle(coldMode_ ? tr(" Least common (cold) numbers ")
                                : tr(" Most common (hot) numbers "));
    Explanation().setText(coldMode_ ? ColdExplanation() : HotExplanation());
}
