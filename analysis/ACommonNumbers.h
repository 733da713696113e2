// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analysis/AnalysisForm.h"
#include "core/frequency.h"

class Chart;
class HotColdBand;
class OptionGroup;

/// Most common numbers: charts of how often each number was drawn, and the ten hottest or coldest.
class ACommonNumbers final : public AnalysisForm {
    Q_OBJECT
  public:
    ACommonNumbers(Program& program, QWidget* parent);

  protected:
    void LotteryChosen() override;

  private:
    void BuildModes();
    bool Cold() const;
    void ChooseMode();
    void DrawChart(const NumberCounts& counts);
    void DrawMainChart(const Counts& counts);
    void DrawExtraChart(const Counts& counts);

    OptionGroup* modes_;
    Chart* mainChart_;
    Chart* extraChart_;
    HotColdBand* band_;
};
