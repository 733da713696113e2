// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/RetryingForm.h"

class BarInput;

/// Averages: lines of numbers close to the average draw.
class PAverage final : public RetryingForm {
    Q_OBJECT
  public:
    PAverage(Program& program, QWidget* parent);

  protected:
    void ResetInputs() override;
    void DatabaseLoaded() override;
    void MakeLines() override;
    void PlayLotto() override;
    bool FurtherCondition() override;
    GeneratorStyle Style() const override;

  private:
    BarInput* lineCount_;
};
