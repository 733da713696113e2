// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/ShortWheelForm.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int mostLines = 9;

/// The short work of these forms does not touch `Busy`.
constexpr BusyRules rules = {.generateWaits = false, .generateSets = false};

PlayControlNames Names() {
    PlayControlNames names;
    names.filters.clear();
    names.help.clear();
    return names;
}

PlayFormText WithTip(PlayFormText text) {
    text.generateTip = ShortWheelForm::tr(" Generate lottery entries ");
    return text;
}

}  // namespace

ShortWheelForm::ShortWheelForm(Program& program, const PlayFormText& text, const QString& note,
                               QWidget* parent)
    : PlayFrame(program, WithTip(text), Names(), mostLines, parent),
      inputs_(new QGridLayout),
      types_(new OptionGroup(this)),
      numbers_(MakeBody(QStringLiteral("Label4"), tr(" Your lucky numbers:"))) {
    SetBusyRules(rules);
    inputs_->setColumnStretch(1, 1);
    Column().addLayout(inputs_);
    Column().addSpacing(8);
    BuildWheelTypes();
    QFont bold = numbers_->font();
    bold.setBold(true);
    numbers_->setFont(bold);
    Foot().addWidget(numbers_);
    Foot().addWidget(
        MakeBody(note, tr("Any of your lucky numbers that are not in this lottery (eg. "
                          "out of range) will be ignored.")));
}

void ShortWheelForm::BuildWheelTypes() {
    Column().addWidget(MakeLabel(QStringLiteral("Label9"), tr("Pick a wheel:     ")));
    Column().addWidget(types_->Add(QStringLiteral("Option1"), tr("Wheel type 1")));
    Column().addWidget(types_->Add(QStringLiteral("Option2"), tr("Wheel type 2")));
    Column().addWidget(types_->Add(QStringLiteral("Option3"), tr("Wheel type 3")));
    types_->Option(1).setChecked(true);
}

void ShortWheelForm::AddInput(const QString& promptName, const QString& prompt, QWidget* input) {
    const int row = inputs_->rowCount();
    QLabel* title = MakeLabel(promptName, prompt);
    inputs_->addWidget(title, row, 0);
    inputs_->addWidget(Titled(title, input), row, 1);
}

void ShortWheelForm::MakeLines() {
    const std::optional<std::int64_t> seed = SeedValue();
    if (!seed) return;
    const auto type = static_cast<WheelType>(types_->Index() + 1);
    const std::string numbers = PlayLotto(luckyNumbers_, *seed, type);
    numbers_->setText(tr(" Your lucky numbers:") + ToQString(numbers));
    ShowResult();
}
