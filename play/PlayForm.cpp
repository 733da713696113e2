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
      status_(MakeLabel(QStringLiteral("Label5"), QString())),
      inputs_(new QVBoxLayout),
      conditionsHeading_(new QHBoxLayout) {
    Column().addLayout(BuildLineCount());
    Column().addLayout(inputs_);
    Column().addSpacing(8);
    BuildConditions();
    Foot().addWidget(status_);
    SetStatusLabel(status_->objectName());
    connect(lineCount_, &QScrollBar::valueChanged, this, [this] { ShowLineCount(); });
}

void PlayForm::BuildConditions() {
    conditionsHeading_->addWidget(
        MakeLabel(QStringLiteral("Label6"), tr("Do not pick lottery entries with...")), 1);
    oddEven_ = MakeCondition(QStringLiteral("Check1"), tr("Too many odd or even numbers"));
    highLow_ = MakeCondition(QStringLiteral("Check2"), tr("Too many low or high numbers"));
    history_ = MakeCondition(QStringLiteral("Check3"), tr("Same numbers as a previous draw"));
    Column().addLayout(conditionsHeading_);
    for (QCheckBox* box : {oddEven_, highLow_, history_}) Column().addWidget(box);
}

QLayout* PlayForm::BuildLineCount() {
    QLabel* title = MakeLabel(QStringLiteral("Label8"), tr("Lines to generate"));
    shownLineCount_ = MakeLabel(QStringLiteral("Label4"), QString());
    shownLineCount_->setMinimumWidth(
        shownLineCount_->fontMetrics().horizontalAdvance(QStringLiteral("000")));
    shownLineCount_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lineCount_ = Named(new QScrollBar(Qt::Horizontal), QStringLiteral("HScroll1"));
    lineCount_->setRange(1, mostLines);
    lineCount_->setValue(5);
    lineCount_->setPageStep(5);
    lineCount_->setFocusPolicy(Qt::StrongFocus);
    lineCount_->setAccessibleName(title->text());
    ShowLineCount();
    auto* row = new QHBoxLayout;
    row->addWidget(title);
    row->addWidget(lineCount_, 1);
    row->addWidget(shownLineCount_);
    return row;
}

int PlayForm::LinesWanted() const { return lineCount_->value(); }

void PlayForm::ShowLineCount() { shownLineCount_->setText(QString::number(LinesWanted())); }

void PlayForm::MakeLines() {
    const Conditions conditions{.oddEven = oddEven_->isChecked(),
                                .highLow = highLow_->isChecked(),
                                .history = history_->isChecked()};
    const double start = services().seconds();
    GenerateLines(state(), services().random, conditions, Style(),
                  {.playLotto = [this] { PlayLotto(); },
                   .paintStatus =
                       [this](const std::string& text) {
                           status_->setText(QString::fromStdString(text));
                           status_->repaint();
                       },
                   .showLines = [this] { ShowResult(); },
                   .seconds = services().seconds});
    if (services().seconds() - start > patience) DropWaitingInput();
}
