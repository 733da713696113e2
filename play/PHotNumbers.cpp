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
#include "platform/widgets/Widgets.h"

using hot_numbers::Mode;

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

PlayButtonNames Names() {
    return {.oddEven = QStringLiteral("Command8"),
            .highLow = QStringLiteral("Command9"),
            .longRuns = QStringLiteral("Command10"),
            .previousDraws = QStringLiteral("Command11"),
            .help = QStringLiteral("Command4"),
            .filtersLabel = QStringLiteral("Label6")};
}

}  // namespace

PHotNumbers::PHotNumbers(Program& program, QWidget* parent)
    : PlayFrame(program, Words(), Names(), lineCount, parent),
      band_(new HotColdBand(QStringLiteral("Label8"), QStringLiteral("Label5"))) {
    BuildOptions();
    band_->Heading().setText(tr("Hot numbers"));
    Foot().addWidget(band_);
    // Where the skin has no colours, the numbers keep the one of their mode.
    if (SkinChoiceOf(state()).colours) SetStatusLabel(band_->Numbers().objectName());
}

void PHotNumbers::BuildOptions() {
    hot_ = Named(new QRadioButton(tr("Hot numbers")), Member(QStringLiteral("Option1"), 0));
    cold_ = Named(new QRadioButton(tr("Cold numbers")), Member(QStringLiteral("Option1"), 1));
    hot_->setChecked(true);
    for (QRadioButton* option : {hot_, cold_}) {
        Column().addWidget(option);
        connect(option, &QRadioButton::clicked, this, [this] { Option1_Click(); });
    }
}

void PHotNumbers::Load() {
    mode_ = Mode::Hot;
    PlayFrame::Load();
}

void PHotNumbers::Generate() {
    ClearLines(state());
    services().random.SeedFromClock();
    const std::string numbers = hot_numbers::PlayLotto(state(), services().random, mode_);
    band_->Numbers().setText(ToQString(numbers));
    PruneDuplicates(state());
    ShowResult();
}

void PHotNumbers::Option1_Click() {
    mode_ = hot_->isChecked() ? Mode::Hot : Mode::Cold;
    ShowMode();
    List1_Click();
}

void PHotNumbers::ShowMode() {
    const bool cold = mode_ == Mode::Cold;
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
}
