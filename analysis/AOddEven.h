// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analysis/AnalysisForm.h"
#include "analysis/odd_even.h"

class Chart;
class LastDrawsTable;
class QLayout;

/// Odd and even numbers: in recent draws, in all, and the ratios of all draws.
class AOddEven final : public AnalysisForm {
    Q_OBJECT
  public:
    AOddEven(Program& program, QWidget* parent);

  protected:
    void LotteryChosen() override;

  private:
    QLayout* BuildRecent();
    QLayout* BuildTotals();
    void ShowRecent(const odd_even::Figures& figures);

    Chart* recent_;
    Chart* totals_;
    Chart* ratios_;
    LastDrawsTable* lastDraws_;
};
