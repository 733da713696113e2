// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wheels/WheelFrame.h"

/// Budget wheels: up to 18 of the user's numbers in groups of three, in very few lines.
class PBudgetWheel final : public WheelFrame {
    Q_OBJECT
  public:
    PBudgetWheel(Program& program, QWidget* parent);

  protected:
    void SizeChosen() override;
    wheels::Outcome MakeWheel(wheels::Boxes& boxes) override;
    void Prune(void (*prune)(State&)) override;

  private:
    wheels::Outcome Play(const wheels::Boxes& boxes);
};
