// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/BiochartPanel.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "analysis/biorhythms.h"
#include "core/settings.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int seriesCount = 4;
constexpr double highest = 10;

}  // namespace

BiochartPanel::BiochartPanel(Program& program, QWidget* parent)
    : Panel(QStringLiteral("Label7"), tr("   Biochart:"), parent),
      program_(program),
      birthDate_(
          Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), program.services.today(), this),
                QStringLiteral("DTPicker1"))),
      days_(new OptionGroup(this)) {
    birthDate_->setAccessibleName(tr("Birth date"));
    Build();
    LabelChart();
}

void BiochartPanel::Build() {
    auto* title = MakeLabel(QStringLiteral("Label4"), tr("Birth date:"), this);
    title->setBuddy(birthDate_);
    auto* update = MakeButton(Member(QStringLiteral("Command1"), 8), tr("Update"), this);
    more_ = MakeButton(Member(QStringLiteral("Command1"), 17), tr("More"), this);
    more_->setEnabled(false);
    QRadioButton* today = days_->Add(Member(QStringLiteral("Option1"), 0), tr("Today"));
    QRadioButton* tomorrow = days_->Add(Member(QStringLiteral("Option1"), 1), tr("Tomorrow"));
    for (QRadioButton* option : {today, tomorrow}) option->setParent(this);
    chart_ = Named(new Chart(1, seriesCount, this), QStringLiteral("MSChart1"));
    connect(update, &QPushButton::clicked, this, &BiochartPanel::DoBiorhythm);
    connect(more_, &QPushButton::clicked, this, &BiochartPanel::moreWanted);
    connect(days_, &OptionGroup::clicked, this, &BiochartPanel::DoBiorhythm);

    QGridLayout* sheet = Sheet();
    sheet->addWidget(title, 0, 0);
    sheet->addWidget(birthDate_, 0, 1, 1, 2);
    sheet->addWidget(update, 1, 1);
    sheet->addWidget(more_, 1, 2);
    sheet->addWidget(today, 2, 1);
    sheet->addWidget(tomorrow, 2, 2);
    sheet->addWidget(chart_, 3, 0, 1, 3);
    sheet->setColumnStretch(1, 1);
    sheet->setColumnStretch(2, 1);
    sheet->setRowStretch(3, 1);
}

void BiochartPanel::LabelChart() {
    const std::array<QString, seriesCount> series = {tr("Intellectual"), tr("Emotional"),
                                                     tr("Intuition"), tr("Luck")};
    for (int column = 1; column <= seriesCount; ++column) {
        chart_->SetColumnLabel(column, series.at(static_cast<std::size_t>(column - 1)));
    }
    chart_->SetRange(-highest, highest);
    chart_->setAccessibleName(tr("Biochart"));
    chart_->setMinimumSize(280, 110);
}

void BiochartPanel::ShowBirthDate() {
    const Services& services = program_.services;
    birthDate_->SetValue(biorhythms::BirthDate(program_.state, services.region, services.today()));
}

void BiochartPanel::DoBiorhythm() {
    const Date birthDate = birthDate_->Value();
    const int days = DaysBetween(birthDate, program_.services.today()) + days_->Index();
    const biorhythms::Values values = biorhythms::Biochart(days);
    for (int column = 1; column <= seriesCount; ++column) {
        chart_->SetValue(1, column, values.at(static_cast<std::size_t>(column - 1)));
    }
    chart_->Refresh();
    program_.state.Settings(setting::BirthDate) = MediumDate(birthDate);
}

void BiochartPanel::SetMoreAvailable(bool available) { more_->setEnabled(available); }
