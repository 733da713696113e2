// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/RetryingForm.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "platform/forms/ShowTip.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"

namespace {

// Below this many seconds nobody has had the time to click anywhere.
constexpr double patience = 0.25;

constexpr int mixtureTip = 1;

}  // namespace

RetryingForm::RetryingForm(Program& program, const PlayFormText& text,
                           const PlayControlNames& names, int mostLines, QWidget* parent)
    : PlayFrame(program, text, names, mostLines, parent),
      oddEven_(Named(new QCheckBox(tr("Too many odd or even numbers")), QStringLiteral("Check1"))),
      highLow_(Named(new QCheckBox(tr("Too many low or high numbers")), QStringLiteral("Check2"))),
      history_(
          Named(new QCheckBox(tr("Same numbers as a previous draw")), QStringLiteral("Check3"))),
      status_(MakeLabel(names.status, QString())),
      inputs_(new QVBoxLayout),
      conditionsHeading_(new QHBoxLayout) {
    Column().addLayout(inputs_);
    Column().addSpacing(8);
    BuildConditions(text, names);
    Foot().addWidget(status_);
    SetStatusLabel(names.status);
}

void RetryingForm::BuildConditions(const PlayFormText& text, const PlayControlNames& names) {
    const QString usual = tr("Do not pick lottery entries with...");
    conditionsHeading_->addWidget(
        MakeLabel(names.conditions, text.conditions.isEmpty() ? usual : text.conditions), 1);
    if (!names.explain.isEmpty()) conditionsHeading_->addWidget(BuildExplain(names.explain));
    Column().addLayout(conditionsHeading_);
    for (QCheckBox* box : {oddEven_, highLow_, history_}) Column().addWidget(box);
}

QPushButton* RetryingForm::BuildExplain(const QString& name) {
    QPushButton* explain = MakeButton(name, tr("?"));
    explain->setAccessibleName(tr("What these conditions do"));
    explain->setFixedWidth(explain->minimumHeight());
    connect(explain, &QPushButton::clicked, this,
            [this] { ShowTip(services(), this, mixtureTip); });
    return explain;
}

void RetryingForm::ClearConditions() {
    for (QCheckBox* box : {oddEven_, highLow_, history_}) box->setChecked(false);
}

void RetryingForm::MakeLines() {
    const Conditions conditions{.oddEven = oddEven_->isChecked(),
                                .highLow = highLow_->isChecked(),
                                .history = history_->isChecked()};
    const double start = services().seconds();
    GenerateLines(state(), services().random, conditions, Style(),
                  {.playLotto = [this] { PlayLotto(); },
                   .paintStatus =
                       [this](const std::string& text) {
                           status_->setText(ToQString(text));
                           status_->repaint();
                       },
                   .showLines = [this] { ShowResult(); },
                   .seconds = services().seconds,
                   .furtherCondition = [this] { return FurtherCondition(); }});
    if (services().seconds() - start > patience) DropWaitingInput();
}
