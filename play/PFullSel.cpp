// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PFullSel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"
#include "play/full_selection.h"

namespace {

// 110 numbers, the most that can be dealt, in lines of 4.
constexpr int mostLines = 28;

PlayFormText Words() {
    return {.name = QStringLiteral("PFullSel"),
            .caption = PFullSel::tr("Full Selection"),
            .heading = PFullSel::tr("Full selection"),
            .body = PFullSel::tr(
                "Every lottery number is played and you are guaranteed to match every number in "
                "the draw result, but you can choose to ignore numbers that don't fit an exact "
                "number of lines, eg 6/49 is 8 lines of 6 with 1 number unused.")};
}

PlayControlNames Names() {
    PlayControlNames names;
    names.help = QStringLiteral("Command4");
    return names;
}

}  // namespace

PFullSel::PFullSel(Program& program, QWidget* parent)
    : RetryingForm(program, Words(), Names(), mostLines, parent),
      includeAll_(Named(new QCheckBox(tr("Include all numbers")), QStringLiteral("Check4"))),
      unused_(MakeLabel(QStringLiteral("Label4"), QString())) {
    includeAll_->setChecked(true);
    auto* row = new QHBoxLayout;
    row->addWidget(includeAll_);
    row->addWidget(unused_, 1);
    Inputs().addLayout(row);
    connect(includeAll_, &QCheckBox::toggled, this, [this] { Generate(); });
}

bool PFullSel::IncludesAll() const { return includeAll_->isChecked(); }

void PFullSel::MakeLines() {
    unused_->setText(ToQString(full_selection::UnusedNote(state(), IncludesAll())));
    EmptyGrid();
    RetryingForm::MakeLines();
}

void PFullSel::PlayLotto() { full_selection::PlayLotto(state(), services().random, IncludesAll()); }

GeneratorStyle PFullSel::Style() const { return {.sortLines = true}; }
