// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/PlayFrame.h"

class HotColdBand;
class OptionGroup;

/// Hot numbers: ten lines out of the ten numbers drawn most often, or least often.
class PHotNumbers final : public PlayFrame {
    Q_OBJECT
  public:
    PHotNumbers(Program& program, QWidget* parent);

  protected:
    void MakeLines() override;

  private:
    bool Cold() const;
    void ChooseMode();

    OptionGroup* modes_;
    HotColdBand* band_;
};
