// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PLuckyNumbers.h"

#include <QLineEdit>

#include "platform/forms/ShowTip.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Widgets.h"
#include "play/numerology.h"

namespace {

constexpr int inputTip = 6;

PlayFormText Words() {
    return {.name = QStringLiteral("PLuckyNumbers"),
            .caption = PLuckyNumbers::tr("Numerology"),
            .heading = PLuckyNumbers::tr("Numerology"),
            .body = PLuckyNumbers::tr(
                "Numerology is used to discover a set of numbers that is unique to you. Each "
                "letter in your name has a value and the digits are combined with those in your "
                "birth date to caculate a series of numbers. These are your lucky numbers and they "
                "are placed in a short wheel to maximise their effectiveness.")};
}

}  // namespace

PLuckyNumbers::PLuckyNumbers(Program& program, QWidget* parent)
    : ShortWheelForm(program, Words(), QStringLiteral("Label3"), parent),
      fullName_(Named(new QLineEdit, QStringLiteral("Text1"))),
      birthDate_(Named(new DatePicker(QStringLiteral("d MMMM yyyy"), services().today()),
                       QStringLiteral("DTPicker2"))) {
    fullName_->setToolTip(tr(" Full name on birth certificate "));
    AddInput(QStringLiteral("Label6"), tr("Your full name:"), fullName_);
    AddInput(QStringLiteral("Label8"), tr("Date you were born:"), birthDate_);
}

void PLuckyNumbers::Load() {
    birthDate_->SetValue(services().today());
    ShortWheelForm::Load();
}

std::optional<std::int64_t> PLuckyNumbers::SeedValue() {
    const auto seed = numerology::SeedValue(FromQString(fullName_->text()), birthDate_->Value());
    if (!seed) ShowTip(services(), this, inputTip);
    return seed;
}

std::string PLuckyNumbers::PlayLotto(LuckyNumbers& numbers, std::int64_t seed, WheelType type) {
    return numerology::PlayLotto(state(), services().random, numbers, seed, type);
}
