// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"

class QRadioButton;

/// Asks whether lines are printed on paper or on lottery forms. `exec()` is `Accepted` where the
/// user has chosen.
class PrintSelection final : public Form {
    Q_OBJECT
  public:
    PrintSelection(Program& program, QWidget* parent);

    bool OnLotteryForms() const;

  private:
    QRadioButton* lotteryForms_;
};
