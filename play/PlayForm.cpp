// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PlayForm.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>

#include "platform/widgets/Widgets.h"

namespace {

constexpr int mostLines = 30;

}  // namespace

PlayForm::PlayForm(Program& program, const PlayFormText& text, QWidget* parent)
    : RetryingForm(program, text, {}, mostLines, parent) {
    Inputs().addLayout(BuildLineCount());
    connect(lineCount_, &QScrollBar::valueChanged, this, [this] { ShowLineCount(); });
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
