// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PlayForm.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>

#include "platform/widgets/Widgets.h"

namespace {

constexpr int mostLines = 30;

// Below this many seconds nobody has had the time to click anywhere.
constexpr double patience = 0.25;

QCheckBox* MakeCondition(const QString& name, const QString& caption) {
    return Named(new QCheckBox(caption), name);
}

}  // namespace

PlayForm::PlayForm(Program& program, const PlayFormText& text, QWidget* parent)
    : PlayFrame(program, text, {}, mostLines, parent),
      label5_(MakeLabel(QStringLiteral("Label5"), QString())),
      inputs_(new QVBoxLayout),
      conditionsHeading_(new QHBoxLayout) {
    Column().addLayout(BuildLineCount());
    Column().addLayout(inputs_);
    Column().addSpacing(8);
    BuildConditions();
    Foot().addWidget(label5_);
    SetStatusLabel(label5_->objectName());
    connect(hScroll1_, &QScrollBar::valueChanged, this, [this] { HScroll1_Change(); });
}

void PlayForm::BuildConditions() {
    conditionsHeading_->addWidget(
        MakeLabel(QStringLiteral("Label6"), tr("Do not pick lottery entries with...")), 1);
    check1_ = MakeCondition(QStringLiteral("Check1"), tr("Too many odd or even numbers"));
    check2_ = MakeCondition(QStringLiteral("Check2"), tr("Too many low or high numbers"));
    check3_ = MakeCondition(QStringLiteral("Check3"), tr("Same numbers as a previous draw"));
    Column().addLayout(conditionsHeading_);
    for (QCheckBox* box : {check1_, check2_, check3_}) Column().addWidget(box);
}

QLayout* PlayForm::BuildLineCount() {
    auto* label8 = MakeLabel(QStringLiteral("Label8"), tr("Lines to generate"));
    label4_ = MakeLabel(QStringLiteral("Label4"), QString());
    label4_->setMinimumWidth(label4_->fontMetrics().horizontalAdvance(QStringLiteral("000")));
    label4_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    hScroll1_ = Named(new QScrollBar(Qt::Horizontal), QStringLiteral("HScroll1"));
    hScroll1_->setRange(1, mostLines);
    hScroll1_->setValue(5);
    hScroll1_->setPageStep(5);
    hScroll1_->setFocusPolicy(Qt::StrongFocus);
    hScroll1_->setAccessibleName(label8->text());
    HScroll1_Change();
    auto* row = new QHBoxLayout;
    row->addWidget(label8);
    row->addWidget(hScroll1_, 1);
    row->addWidget(label4_);
    return row;
}

int PlayForm::LinesWanted() const { return hScroll1_->value(); }

void PlayForm::HScroll1_Change() { label4_->setText(QString::number(LinesWanted())); }

void PlayForm::Generate() {
    const Conditions conditions{.oddEven = check1_->isChecked(),
                                .highLow = check2_->isChecked(),
                                .history = check3_->isChecked()};
    const double start = services().seconds();
    GenerateLines(state(), services().random, conditions, Style(),
                  {.playLotto = [this] { PlayLotto(); },
                   .paintStatus =
                       [this](const std::string& text) {
                           label5_->setText(QString::fromStdString(text));
                           label5_->repaint();
                       },
                   .showLines = [this] { ShowResult(); },
                   .seconds = services().seconds});
    if (services().seconds() - start > patience) DropWaitingInput();
}
