// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/KeyNumbersForm.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <array>

#include "platform/system/MessageBoxes.h"
#include "platform/widgets/BarInput.h"
#include "platform/widgets/Widgets.h"
#include "play/key_numbers.h"

namespace {

// Three keys and two more numbers a line: the longest result, of the 100 numbers that can be dealt.
constexpr int mostLines = 50;

/// What one of the forms has of its own.
struct KeyForm {
    const char* name;
    const char* caption;
    const char* heading;
    const char* body;
    const char* refusal;  // where the lines of a lottery are too short
};

constexpr auto keyForms = std::to_array<KeyForm>({
    {.name = "P1Key",
     .caption = QT_TRANSLATE_NOOP("KeyNumbersForm", "One key number"),
     .heading = QT_TRANSLATE_NOOP("KeyNumbersForm", "One key number"),
     .body = QT_TRANSLATE_NOOP(
         "KeyNumbersForm",
         "Select your favourite or lucky number on the right. It is played against every other "
         "lottery number, so you are guaranteed to get three or more 2-matches if it is in the "
         "lottery draw result."),
     .refusal = QT_TRANSLATE_NOOP("KeyNumbersForm", "Must be a pick-4/5/6/7 lottery.    ")},
    {.name = "P2KeyNum",
     .caption = QT_TRANSLATE_NOOP("KeyNumbersForm", "Two Key Numbers"),
     .heading = QT_TRANSLATE_NOOP("KeyNumbersForm", "Two key numbers"),
     .body = QT_TRANSLATE_NOOP(
         "KeyNumbersForm",
         "Select your two favourite or lucky numbers on the right. They are played against every "
         "other number, so if they appear in the draw result, you are guaranteed two or more "
         "3-matches."),
     .refusal = QT_TRANSLATE_NOOP("KeyNumbersForm", "Must be a pick-4/5/6/7 lottery.    ")},
    {.name = "P3KeyNum",
     .caption = QT_TRANSLATE_NOOP("KeyNumbersForm", "Three Key Numbers"),
     .heading = QT_TRANSLATE_NOOP("KeyNumbersForm", "Three key numbers"),
     .body = QT_TRANSLATE_NOOP(
         "KeyNumbersForm",
         "Select your three favourite or lucky numbers on the right. If they appear in the draw "
         "result, you are guaranteed at least a 4-match."),
     .refusal = QT_TRANSLATE_NOOP("KeyNumbersForm", "Must be a pick-5/6/7 lottery.    ")},
});

/// A bar and the label of its value.
struct BarNames {
    const char* bar;
    const char* value;
};

constexpr auto barNames = std::to_array<BarNames>(
    {{"HScroll1", "Label8"}, {"HScroll2", "Label9"}, {"HScroll3", "Label13"}});

const KeyForm& FormOf(int keyCount) { return keyForms.at(static_cast<std::size_t>(keyCount) - 1); }

PlayFormText Words(int keyCount) {
    const KeyForm& form = FormOf(keyCount);
    return {.name = QString::fromLatin1(form.name),
            .caption = KeyNumbersForm::tr(form.caption),
            .heading = KeyNumbersForm::tr(form.heading),
            .body = KeyNumbersForm::tr(form.body)};
}

}  // namespace

KeyNumbersForm::KeyNumbersForm(Program& program, int keyCount, QWidget* parent)
    : RetryingForm(program, Words(keyCount), PlayControlNames::FromCommand8(), mostLines, parent),
      keys_(keyCount) {
    Inputs().addLayout(BuildBars());
    TabInReadingOrder();
}

QLayout* KeyNumbersForm::BuildBars() {
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    for (int bar = 1; bar <= keys_.Count(); ++bar) {
        const QString meaning =
            keys_.Count() == 1 ? tr("Key number") : tr("Key number %1").arg(bar);
        auto* title = MakeLabel(Member(QStringLiteral("KeyNumber"), bar), meaning);
        bars_.push_back(BuildBar(bar, meaning));
        grid->addWidget(title, bar - 1, 0, Qt::AlignTop);
        grid->addWidget(bars_.back(), bar - 1, 1);
    }
    return grid;
}

BarInput* KeyNumbersForm::BuildBar(int bar, const QString& meaning) {
    const BarNames& names = barNames.at(static_cast<std::size_t>(bar) - 1);
    auto* input =
        new BarInput(QString::fromLatin1(names.bar), QString::fromLatin1(names.value), meaning,
                     {.lowest = key_numbers::KeyBars::Minimum(bar),
                      .highest = keys_.Maximum(bar),
                      .value = keys_.Value(bar)});
    connect(input, &BarInput::changed, this, [this, bar](int value) {
        keys_.Change(bar, value);
        ShowBars();
    });
    return input;
}

void KeyNumbersForm::ShowBars() {
    for (int bar = 1; bar <= keys_.Count(); ++bar) {
        BarInput& input = *bars_.at(static_cast<std::size_t>(bar) - 1);
        const QSignalBlocker shownOnly(input);
        input.SetHighest(keys_.Maximum(bar));
        input.SetValue(keys_.Value(bar));
    }
}

bool KeyNumbersForm::MayGenerate() {
    if (state().Picks >= key_numbers::LeastPicks(keys_.Count())) return true;
    services().messages.Show(this, {.title = tr("Sorry!"),
                                    .text = tr(FormOf(keys_.Count()).refusal),
                                    .sign = Sign::Exclamation});
    return false;
}

void KeyNumbersForm::ResetInputs() { ClearConditions(); }

void KeyNumbersForm::DatabaseLoaded() {
    keys_.FitTo(state().MaxNum);
    ShowBars();
}

void KeyNumbersForm::MakeLines() {
    EmptyGrid();
    RetryingForm::MakeLines();
}

void KeyNumbersForm::PlayLotto() {
    key_numbers::PlayLotto(state(), services().random, keys_.Values());
}

GeneratorStyle KeyNumbersForm::Style() const { return {.sortLines = true}; }
