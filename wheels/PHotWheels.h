// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/PlayFrame.h"

class HotColdBand;
class OptionGroup;
class RingLists;

/// Hot and cold wheels: the numbers drawn most often, or least often, in a ring, each line a run of
/// neighbours. A choice of lottery or mode makes lines at once.
class PHotWheels final : public PlayFrame {
    Q_OBJECT
  public:
    PHotWheels(Program& program, QWidget* parent);

  protected:
    void MakeLines() override;
    SkinLabels SkinnedLabels() const override;

  private:
    void ChooseMode();
    void ShowMode();
    void CountHotWheelLines();

    bool cold_ = false;
    OptionGroup* modes_;
    RingLists* lists_;
    QLabel* lineCount_;
    HotColdBand* band_;
};
