// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Preferences.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>

#include "core/money.h"
#include "core/old_files.h"
#include "platform/forms/Skin.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"
#include "shell/ColourSample.h"

namespace {

constexpr std::int32_t noColour = -999;

/// Whether the region writes its money as the UK does; no other words of the program differ there.
bool WritesPounds(const Region& region) {
    return CurrencyText(Money::OfPennies(100), region.currency).starts_with('\xA3');
}

QStringList Members(const QString& array, int count) {
    QStringList names;
    for (int i = 0; i < count; ++i) names += Member(array, i);
    return names;
}

}  // namespace

void Preferences::Load() {
    Skinning(QStringLiteral("SkinFile.jpg"),
             {.title = {},
              .body = {QStringLiteral("Label13")},
              .small = Members(QStringLiteral("Label2"), changeableLinks) +
                       Members(QStringLiteral("Label3"), changeableLinks),
              .status = {QStringLiteral("Label15")}});
    ShowStrengths();
    ShowLinks();
    const SkinChoice skin = SkinChoiceOf(state());
    pictures_->setChecked(skin.pictures);
    colours_->setChecked(skin.colours);
    ShowColours();
    if (WritesPounds(services().region)) TakeBritishWords();
}

void Preferences::ShowStrengths() {
    for (std::size_t i = 0; i < strengths_.size(); ++i) {
        const int shown = ShownStrength(state(), filterStrengths.at(i));
        strengths_.at(i)->Option(shown).setChecked(true);
    }
}

void Preferences::ShowLinks() {
    for (int i = 0; i < changeableLinks; ++i) {
        const auto place = static_cast<std::size_t>(i);
        captions_.at(place)->setText(ToQString(state().Settings(setting::LinkCaptions + 1 + i)));
        addresses_.at(place)->setText(ToQString(state().Settings(setting::LinkAddresses + 1 + i)));
        addresses_.at(place)->setCursorPosition(0);
    }
}

void Preferences::ShowColours() {
    for (std::size_t i = 0; i < samples_.size(); ++i) {
        samples_.at(i)->ShowColour(SettingColour(state(), colourSlots.at(i)));
    }
}

void Preferences::TakeBritishWords() {
    coloursTitle_->setText(tr(" Change the colours"));
    colours_->setAccessibleName(tr("Change the colours: Enable"));
    pickPrompt_->setText(tr("Click an element and pick a new colour:"));
}

std::int32_t Preferences::PickColour(const QColor& current) {
    const std::optional<QColor> picked = services().chooseColour(this, current);
    return picked ? static_cast<std::int32_t>(ToColour(*picked)) : noColour;
}

void Preferences::ChangeColour(std::size_t colour) {
    ColourSample& sample = *samples_.at(colour);
    const std::int32_t picked = PickColour(sample.Colour());
    if (picked == noColour) return;
    const setting::Slot slot = colourSlots.at(colour);
    state().Settings(slot) = ColourText(static_cast<Colour>(picked));
    sample.ShowColour(SettingColour(state(), slot));
}

void Preferences::ResetTheColours() {
    ResetColours(state());
    ShowColours();
    Say(tr("The defaults are back; saving keeps them"));
}

EnteredPreferences Preferences::Entered() const {
    EnteredPreferences entered;
    entered.pictures = pictures_->isChecked();
    entered.colours = colours_->isChecked();
    for (std::size_t i = 0; i < strengths_.size(); ++i) {
        entered.strengths.at(i) = strengths_.at(i)->Index();
    }
    for (std::size_t i = 0; i < captions_.size(); ++i) {
        entered.links.at(i) = {FromQString(captions_.at(i)->text()),
                               FromQString(addresses_.at(i)->text())};
    }
    return entered;
}

void Preferences::Save() {
    StorePreferences(state(), Entered());
    SaveSettings(state(), folder());
    Unload();
}

void Preferences::ResetAll() {
    const Answer answer = services().messages.Show(this, {.title = tr("Reset everything!"),
                                                          .text = tr(" Are you sure?    "),
                                                          .sign = Sign::Question,
                                                          .buttons = Buttons::YesNo,
                                                          .discards = true});
    if (answer != Answer::Yes) return;
    if (folder().Exists(settingsFile)) DeleteKeepingOld(folder(), settingsFile);
    Unload();
}
