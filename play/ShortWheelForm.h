// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "play/PlayFrame.h"
#include "play/short_wheel.h"

class OptionGroup;
class QGridLayout;

/// The frame of the forms that place a person's lucky numbers in a short wheel. It adds the choice
/// of the wheel, the label of the lucky numbers and the note below them; there are no filters.
///
/// A form on this frame tells `SeedValue` and `PlayLotto` and adds its inputs with `AddInput`.
/// Choosing a lottery makes no lines.
class ShortWheelForm : public PlayFrame {
    Q_OBJECT
  protected:
    /// `note` is the name of the label that says which numbers are ignored.
    ShortWheelForm(Program& program, const PlayFormText& text, const QString& note,
                   QWidget* parent);

    /// What the inputs say about the person; nothing where they do not do, which the form has said.
    virtual std::optional<std::int64_t> SeedValue() = 0;

    /// Makes `state().Lines` and returns the lucky numbers as they are shown.
    virtual std::string PlayLotto(LuckyNumbers& numbers, std::int64_t seed, WheelType type) = 0;

    /// Puts an input with its prompt below the others.
    void AddInput(const QString& promptName, const QString& prompt, QWidget* input);

    void MakeLines() override;
    void LotteryChosen() override {}

  private:
    void BuildWheelTypes();

    LuckyNumbers luckyNumbers_;
    QGridLayout* inputs_;
    OptionGroup* types_;
    QLabel* numbers_;
};
