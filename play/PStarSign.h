// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/ShortWheelForm.h"

class ComboList;
class DatePicker;

/// Astrology: lines out of a star sign, a day of birth and the date of the draw.
class PStarSign final : public ShortWheelForm {
    Q_OBJECT
  public:
    PStarSign(Program& program, QWidget* parent);

    void Load() override;

  protected:
    void DatabaseLoaded() override;
    std::optional<std::int64_t> SeedValue() override;
    std::string PlayLotto(LuckyNumbers& numbers, std::int64_t seed, WheelType type) override;

  private:
    ComboList* sign_;
    ComboList* birthDay_;
    DatePicker* drawDate_;
};
