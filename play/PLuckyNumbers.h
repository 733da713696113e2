// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/ShortWheelForm.h"

class DatePicker;
class QLineEdit;

/// Numerology: lines out of a person's name and date of birth.
class PLuckyNumbers final : public ShortWheelForm {
    Q_OBJECT
  public:
    PLuckyNumbers(Program& program, QWidget* parent);

    void Load() override;

  protected:
    std::optional<std::int64_t> SeedValue() override;
    std::string PlayLotto(LuckyNumbers& numbers, std::int64_t seed, WheelType type) override;

  private:
    QLineEdit* fullName_;
    DatePicker* birthDate_;
};
