// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/RetryingForm.h"

class QCheckBox;

/// Full selection: every number of the lottery, dealt into lines.
class PFullSel final : public RetryingForm {
    Q_OBJECT
  public:
    PFullSel(Program& program, QWidget* parent);

  protected:
    void MakeLines() override;
    void PlayLotto() override;
    GeneratorStyle Style() const override;

  private:
    bool IncludesAll() const;

    QCheckBox* includeAll_;
    QLabel* unused_;
};
