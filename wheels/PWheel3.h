// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wheels/WheelFrame.h"

/// Wheeling triplets: up to eight groups of three of the user's numbers, each played with the
/// others.
class PWheel3 final : public WheelFrame {
    Q_OBJECT
  public:
    PWheel3(Program& program, QWidget* parent);

  protected:
    void SizeChosen() override;
    void ShowLottery() override;
    wheels::Outcome MakeWheel(wheels::Boxes& boxes) override;

  private:
    QLabel* advice_;
};
