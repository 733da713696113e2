// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analysis/AnalysisForm.h"

class Chart;
class LastDrawsTable;
class QLabel;
class QLayout;

/// Sums of draws, and how many low and high numbers draws have.
class ASums final : public AnalysisForm {
    Q_OBJECT
  public:
    ASums(Program& program, QWidget* parent);

  protected:
    void LotteryChosen() override;

  private:
    QLayout* BuildSums();
    QLayout* BuildRatios();

    Chart* sums_;
    Chart* ratios_;
    QLabel* smallest_;
    QLabel* largest_;
    QLabel* average_;
    LastDrawsTable* lastDraws_;
};
