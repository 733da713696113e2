// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wheels/WheelFrame.h"

class RingLists;

/// Create-a-wheel: 8 to 20 of the user's numbers in a ring, each line a run of neighbours.
class PDIYWheels final : public WheelFrame {
    Q_OBJECT
  public:
    PDIYWheels(Program& program, QWidget* parent);

  protected:
    void SizeChosen() override;
    wheels::Outcome MakeWheel(wheels::Boxes& boxes) override;

  private:
    RingLists* lists_;
};
