// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"
#include "shell/lottery_info.h"

class QPushButton;
class QTabWidget;

/// What is good to know about well-known lotteries, a tab each, as `Lottery Info.txt` has it.
class LotteryInfo final : public Form {
    Q_OBJECT
  public:
    LotteryInfo(Program& program, QWidget* parent);

    void Load() override;

  private:
    void AddTab(const LotteryInfoSection& section);

    QTabWidget* tabs_;
    QPushButton* close_;
};
