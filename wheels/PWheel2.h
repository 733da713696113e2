// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wheels/WheelFrame.h"

/// Wheeling pairs: up to nine pairs of the user's numbers, each played with the others.
class PWheel2 final : public WheelFrame {
    Q_OBJECT
  public:
    PWheel2(Program& program, QWidget* parent);

  protected:
    void SizeChosen() override;
    void ShowLottery() override;
    wheels::Outcome MakeWheel(wheels::Boxes& boxes) override;
};
