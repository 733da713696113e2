// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/RetryingForm.h"

class BarInput;

/// Lucky dip: lines of plain random numbers.
class PLuckyDip final : public RetryingForm {
    Q_OBJECT
  public:
    PLuckyDip(Program& program, QWidget* parent);

  protected:
    void PlayLotto() override;
    GeneratorStyle Style() const override;

  private:
    BarInput* lineCount_;
};
