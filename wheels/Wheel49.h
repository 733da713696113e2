// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/RetryingForm.h"
#include "wheels/wheel_of_49.h"

class ToldProof;

/// The wheel of 49: all numbers from 1 to 49 in 175 lines, made anew until they comply.
class Wheel49 final : public RetryingForm {
    Q_OBJECT
  public:
    Wheel49(Program& program, QWidget* parent);

    void Load() override;

  protected:
    SkinLabels SkinnedLabels() const override;
    void DatabaseLoaded() override;
    void LotteryChosen() override {}
    bool MayGenerate() override;
    void MakeLines() override;
    void PlayLotto() override;
    GeneratorStyle Style() const override;
    void LinesTakenOut() override;

  private:
    void ShowProof();

    wheel49::Table wheel49Data_{};
    std::string found_;  ///< What the verifier found for the table; empty before it was read.
    ToldProof* proof_;
};
