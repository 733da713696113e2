// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analysis/AnalysisForm.h"

class Chart;
class QLabel;

/// Number ranges: how far apart the lowest and the highest number of a draw lie.
class ARange final : public AnalysisForm {
    Q_OBJECT
  public:
    ARange(Program& program, QWidget* parent);

  protected:
    void LotteryChosen() override;

  private:
    void BuildCharts();

    QLabel* average_;
    Chart* recent_;
    Chart* counts_;
};
