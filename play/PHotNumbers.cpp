// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PHotNumbers.h"

#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/filters.h"
#include "core/lines.h"
#include "platform/forms/Skin.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/HotColdBand.h"
#include "platform/widgets/OptionGroup.h"
#include "play/hot_numbers.h"

namespace {

constexpr int lineCount = 10;

PlayFormText Words() {
    return {.name = QStringLiteral("PHotNumbers"),
            .caption = PHotNumbers::tr("Hot Numbers"),
            .heading = PHotNumbers::tr("Hot numbers"),
            .body = PHotNumbers::tr(
                "Some numbers occur more than others in lottery draws results. Picking them might "
                "improve your chances of a win. All these entries include all the most common "
                "(hot) numbers..")};
}

PlayControlNames Names() {
    PlayControlNames names = PlayControlNames::FromCommand8();
    names.filters = QStringLiteral("Label6");
    return names;
}

}  // namespace

PHotNumbers::PHotNumbers(Program& program, QWidget* parent)
    : PlayFrame(program, Words(), Names(), lineCount, parent),
      modes_(new OptionGroup(this)),
      band_(new HotColdBand(QStringLiteral("Label8"), QStringLiteral("Label5"))) {
    Column().addWidget(modes_->Add(QStringLiteral("Option1(0)"), tr("Hot numbers")));
    Column().addWidget(modes_->Add(QStringLiteral("Option1(1)"), tr("Cold numbers")));
    connect(modes_, &OptionGroup::clicked, this, [this] { ChooseMode(); });
    band_->Heading().setText(tr("Hot numbers"));
    Foot().addWidget(band_);
    // Where the skin has no colours, the numbers keep the one of their mode.
    if (SkinChoiceOf(state()).colours) SetStatusLabel(band_->Numbers().objectName());
}

bool PHotNumbers::Cold() const { return modes_->Index() != 0; }

void PHotNumbers::MakeLines() {
    ClearLines(state());
    services().random.SeedFromClock();
    const auto mode = Cold() ? hot_numbers::Mode::Cold : hot_numbers::Mode::Hot;
    const std::string numbers = hot_numbers::PlayLotto(state(), services().random, mode);
    band_->Numbers().setText(ToQString(numbers));
    PruneDuplicates(state());
    ShowResult();
}

void PHotNumbers::ChooseMode() {
    const bool cold = Cold();
    const QString words = cold ? tr("Cold numbers") : tr("Hot numbers");
    setWindowTitle(words);
    Heading().setText(words);
    band_->Heading().setText(words);
    band_->SetCold(cold);
    Body().setText(
        cold ? tr("Some draw numbers have not come up for a long time. They are overdue and might "
                  "come up soon. These entries pick random cold numbers.")
             : tr("Hot numbers occur more than others in lottery draws. Using them might improve "
                  "your chances of a win. These entries pick random hot numbers."));
    ChooseLottery();
}
