// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PStarSign.h"

#include "core/draw_days.h"
#include "core/text.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "play/astrology.h"

namespace {

constexpr int longestMonth = 31;

PlayFormText Words() {
    return {.name = QStringLiteral("PStarSign"),
            .caption = PStarSign::tr("Star Signs"),
            .heading = PStarSign::tr("Star sign"),
            .body = PStarSign::tr(
                "Things do not happen by chance and everything is mapped out from the day you were "
                "born according to your star sign. Borrowing techniques from astrology, your star "
                "sign and day you were born are used to caculate your lucky numbers for a specific "
                "lottery draw date. The numbers are placed in a short wheel to maximise their "
                "effectiveness.")};
}

// Kept on purpose: "Saggitarius" has stood in the list for years.
QStringList Signs() {
    return {PStarSign::tr("Aries"),     PStarSign::tr("Taurus"),   PStarSign::tr("Gemini"),
            PStarSign::tr("Cancer"),    PStarSign::tr("Leo"),      PStarSign::tr("Virgo"),
            PStarSign::tr("Libra"),     PStarSign::tr("Scorpio"),  PStarSign::tr("Saggitarius"),
            PStarSign::tr("Capricorn"), PStarSign::tr("Aquarius"), PStarSign::tr("Pisces")};
}

}  // namespace

PStarSign::PStarSign(Program& program, QWidget* parent)
    : ShortWheelForm(program, Words(), QStringLiteral("Label10"), parent),
      sign_(Named(new ComboList, QStringLiteral("Combo1"))),
      birthDay_(Named(new ComboList, QStringLiteral("Combo2"))),
      drawDate_(Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), services().today()),
                      QStringLiteral("DTPicker1"))) {
    AddInput(QStringLiteral("Label6"), tr("Star sign:"), sign_);
    AddInput(QStringLiteral("Label8"), tr("Birth day:"), birthDay_);
    AddInput(QStringLiteral("Label3"), tr("Draw date:"), drawDate_);
}

void PStarSign::Load() {
    sign_->addItems(Signs());
    for (int day = 1; day <= longestMonth; ++day) birthDay_->addItem(ToQString(NumberText(day)));
    sign_->SetIndex(0);
    birthDay_->SetIndex(0);
    ShortWheelForm::Load();
}

void PStarSign::DatabaseLoaded() {
    drawDate_->SetValue(NextDrawDate(view(), services().region, services().today()));
}

std::optional<std::int64_t> PStarSign::SeedValue() {
    return astrology::SeedValue(sign_->Index(), birthDay_->Index(), drawDate_->Value());
}

std::string PStarSign::PlayLotto(LuckyNumbers& numbers, std::int64_t seed, WheelType type) {
    return astrology::PlayLotto(state(), services().random, numbers, seed, type);
}
