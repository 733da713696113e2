// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/Biorhythm.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "core/settings.h"
#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr double highest = 10.5;  // leaves the curves some air at 10

AnalysisFormText Words() {
    return {.name = QStringLiteral("Biorhythm"),
            .caption = Biorhythm::tr("Biorhythm"),
            .heading = Biorhythm::tr("Biorhythms"),
            .explanation = Biorhythm::tr(
                "The body and mind operate according to a series of regular cycles. These affect "
                "how you feel and function. The charts show these cycles for the past week and "
                "next two weeks. The Biochart shows how lucky you are - derived from the combined "
                "intellectual, emotional and intuition cycles.")};
}

AnalysisNames Names() {
    return {.heading = QStringLiteral("Label5"),
            .explanation = QStringLiteral("Label6"),
            .close = QStringLiteral("Command2")};
}

QString DayOf(Date date) { return QString::number(static_cast<unsigned>(date.day())); }

// "25 February", the month as the region names it.
QString DayAndMonth(Date date, const Region& region) {
    const std::size_t month = static_cast<unsigned>(date.month()) - 1;
    return DayOf(date) % QLatin1Char(' ') % ToQString(region.monthNames.at(month));
}

void LabelColumns(Chart& chart, const QStringList& labels) {
    int column = 0;
    for (const QString& label : labels) chart.SetColumnLabel(++column, label);
}

Chart* MakeCurves(const QString& name, const QString& spokenName, const QStringList& cycles) {
    auto* chart = Named(new Chart(biorhythms::chartRows, static_cast<int>(cycles.size())), name);
    chart->setAccessibleName(spokenName);
    chart->SetKind(ChartKind::Lines);
    chart->SetRange(-highest, highest);
    LabelColumns(*chart, cycles);
    chart->setMinimumSize(480, 170);
    return chart;
}

}  // namespace

Biorhythm::Biorhythm(Program& program, QWidget* parent)
    : AnalysisForm(program, Words(), Names(), parent),
      birthDate_(
          Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), program.services.today(), this),
                QStringLiteral("DTPicker1"))),
      days_(new OptionGroup(this)),
      body_(MakeCurves(QStringLiteral("MSChart1"),
                       tr("Physical, intellectual and emotional cycles"),
                       {tr("Physical"), tr("Intellectual"), tr("Emotional"), tr("Average")})),
      mind_(MakeCurves(QStringLiteral("MSChart2"),
                       tr("Spiritual, aesthetic, awareness and intuition cycles"),
                       {tr("Spiritual"), tr("Aesthetic"), tr("Awareness"), tr("Intuition")})),
      biochart_(Named(new Chart(4, 1), QStringLiteral("MSChart3"))),
      firstDay_(AddPrompt(QStringLiteral("Label1"), {})),
      today_(AddPrompt(QStringLiteral("Label2"), {})),
      lastDay_(AddPrompt(QStringLiteral("Label3"), {})) {
    BuildChoices();
    Results().addLayout(BuildCurves(), 5);
    Results().addLayout(BuildBiochart(), 2);
    SetOpeningSize({1080, 680});
}

void Biorhythm::BuildChoices() {
    QLabel* title = AddPrompt(QStringLiteral("Label4"), tr("Day you were born:"));
    QPushButton* update = MakeButton(QStringLiteral("Command1"), tr("Update"), this);
    update->setDefault(true);
    connect(update, &QPushButton::clicked, this, [this] { Calculate(); });
    auto* date = new QHBoxLayout;
    date->addWidget(Titled(title, birthDate_));
    date->addWidget(update);
    Choices().addWidget(title);
    Choices().addLayout(date);
    Choices().addStretch(1);
}

QLayout* Biorhythm::BuildCurves() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(body_, 1);
    column->addLayout(BuildDates());
    column->addWidget(mind_, 1);
    return column;
}

// Each below its day: the row has a column for every day of the charts.
QLayout* Biorhythm::BuildDates() {
    constexpr int leftOfDays = 34;
    constexpr int rightOfDays = 16;
    constexpr int days = 8;  // that a name may cover
    auto* row = new QGridLayout;
    row->setContentsMargins(leftOfDays, 0, rightOfDays, 0);
    row->setHorizontalSpacing(0);
    for (int day = 0; day < biorhythms::chartRows; ++day) row->setColumnStretch(day, 1);
    row->addWidget(firstDay_, 0, 0, 1, days);
    row->addWidget(today_, 0, biorhythms::todaysRow - 2, 1, 3, Qt::AlignHCenter);
    row->addWidget(lastDay_, 0, biorhythms::chartRows - days, 1, days, Qt::AlignRight);
    return row;
}

QLayout* Biorhythm::BuildBiochart() {
    const QStringList rows = {tr("Intellectual"), tr("Emotional"), tr("Intuition"), tr("Luck")};
    int row = 0;
    for (const QString& label : rows) biochart_->SetRowLabel(++row, label);
    biochart_->SetRange(-highest, highest);
    biochart_->setAccessibleName(tr("Biochart"));
    biochart_->setMinimumSize(280, 200);
    auto* options = new QHBoxLayout;
    options->addWidget(AddPrompt(QStringLiteral("Label7"), tr("     Biochart:")));
    options->addWidget(days_->Add(QStringLiteral("Option1(0)"), tr("Today")));
    options->addWidget(days_->Add(QStringLiteral("Option1(1)"), tr("Tomorrow")));
    options->addStretch(1);
    connect(days_, &OptionGroup::clicked, this, [this] { Calculate(); });
    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    column->addLayout(options);
    column->addWidget(biochart_, 1);
    return column;
}

void Biorhythm::Load() {
    AnalysisForm::Load();
    ShowDates();
    birthDate_->SetValue(biorhythms::BirthDate(state(), services().region, services().today()));
    Calculate();
}

void Biorhythm::ShowDates() {
    const Date today = services().today();
    firstDay_->setText(DayAndMonth(DaysAfter(today, biorhythms::firstDay), services().region));
    today_->setText(DayOf(today));
    lastDay_->setText(DayAndMonth(DaysAfter(today, biorhythms::lastDay), services().region));
}

void Biorhythm::Calculate() {
    const int days = DaysBetween(birthDate_->Value(), services().today());
    ShowCurves(*body_, biorhythms::BodyChart(days));
    ShowCurves(*mind_, biorhythms::MindChart(days));
    ShowBiochart(days_->Index() == 0 ? days : days + 1);
    state().Settings(setting::BirthDate) = FullDate(birthDate_->Value());
}

void Biorhythm::ShowCurves(Chart& chart, const biorhythms::Chart& values) {
    int row = 0;
    for (const biorhythms::Values& day : values) {
        const Date date = DaysAfter(services().today(), biorhythms::firstDay + row);
        chart.SetRowLabel(++row, DayOf(date));
        chart.SetRowName(row, DayAndMonth(date, services().region));
        int column = 0;
        for (const double value : day) chart.SetValue(row, ++column, value);
    }
    chart.Refresh();
}

void Biorhythm::ShowBiochart(int days) {
    int row = 0;
    for (const double value : biorhythms::Biochart(days)) biochart_->SetValue(++row, 1, value);
    biochart_->Refresh();
}
