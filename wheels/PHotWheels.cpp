// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PHotWheels.h"

#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/text.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/HotColdBand.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"
#include "wheels/RingLists.h"
#include "wheels/WheelFrame.h"

namespace {

constexpr int mostLines = 21;  // of the longest ring, for four picks

PlayFormText Words() {
    return {.name = QStringLiteral("PHotWheels"),
            .caption = PHotWheels::tr("Hot wheels"),
            .heading = PHotWheels::tr("Hot wheels"),
            .body = PHotWheels::tr(
                "Hot numbers occur more than others in lottery draws. Playing them in a wheel "
                "might improve your chances of a win. These entries wheel the hottest numbers.")};
}

}  // namespace

PHotWheels::PHotWheels(Program& program, QWidget* parent)
    : PlayFrame(program, Words(), PlayControlNames::FromCommand8(), mostLines, parent),
      modes_(new OptionGroup(this)),
      lists_(new RingLists(MakeLabel(QStringLiteral("Label9"), tr("Numbers:")),
                           MakeLabel(QStringLiteral("Label5"), tr("Interval:")))),
      lineCount_(MakeLabel(QStringLiteral("Label6(0)"), QString())),
      band_(new HotColdBand(QStringLiteral("Label8"), QStringLiteral("Label3"))) {
    SetBusyRules(wheels::RulesOf(FromQString(objectName())).busy);
    lists_->AddRow(MakeLabel(QStringLiteral("Label4"), tr("Lines:")), lineCount_);
    BesideList().addWidget(lists_);
    BesideList().addStretch(1);
    Column().addWidget(modes_->Add(QStringLiteral("Option1(0)"), tr("Hot numbers")));
    Column().addWidget(modes_->Add(QStringLiteral("Option1(1)"), tr("Cold numbers")));
    band_->Heading().setText(tr("Hot numbers"));
    Foot().addWidget(band_);
    connect(lists_, &RingLists::numbersChosen, this, [this] { CountHotWheelLines(); });
    connect(lists_, &RingLists::intervalChosen, this, [this] { CountHotWheelLines(); });
    connect(modes_, &OptionGroup::clicked, this, [this] { ChooseMode(); });
}

SkinLabels PHotWheels::SkinnedLabels() const { return WheelSkinLabels(objectName()); }

void PHotWheels::MakeLines() {
    CountHotWheelLines();
    const auto mode = cold_ ? hot_numbers::Mode::Cold : hot_numbers::Mode::Hot;
    const std::string numbers =
        hot_wheels::Generate(state(), services().random, lists_->Choice(), mode);
    band_->Numbers().setText(ToQString(numbers));
    ShowResult();
}

void PHotWheels::CountHotWheelLines() {
    const auto count = hot_wheels::CountHotWheelLines(state().Picks, lists_->Choice());
    if (!count) return;
    lineCount_->setText(ToQString(NumberText(*count)));
    EmptyGrid();
}

// The form opens with other words for hot numbers; they stay until the mode changes.
void PHotWheels::ChooseMode() {
    const bool cold = modes_->Index() != 0;
    if (cold != cold_) {
        cold_ = cold;
        ShowMode();
    }
    ChooseLottery();
}

void PHotWheels::ShowMode() {
    const QString wheels = cold_ ? tr("Cold wheels") : tr("Hot wheels");
    setWindowTitle(wheels);
    Heading().setText(wheels);
    band_->Heading().setText(cold_ ? tr("Cold numbers") : tr("Hot numbers"));
    band_->SetCold(cold_);
    Body().setText(
        cold_ ? tr("Some draw numbers have not come up for a long time. They are overdue and might "
                   "come up soon. These entries wheel the coldest numbers.")
              : tr("Hot numbers occur more than others in lottery draws. Using them might improve "
                   "your chances of a win. These entries wheel the hottest numbers."));
}
