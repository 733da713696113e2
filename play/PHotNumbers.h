// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/PlayFrame.h"
#include "play/hot_numbers.h"

class HotColdBand;
class QRadioButton;

/// Hot numbers: ten lines out of the ten numbers drawn most often, or least often.
class PHotNumbers final : public PlayFrame {
    Q_OBJECT
  public:
    PHotNumbers(Program& program, QWidget* parent);

    void Load() override;

  protected:
    void Generate() override;

  private:
    void BuildOptions();
    void Option1_Click();
    void ShowMode();

    hot_numbers::Mode mode_ = hot_numbers::Mode::Hot;
    HotColdBand* band_;
    QRadioButton* hot_;
    QRadioButton* cold_;
};
