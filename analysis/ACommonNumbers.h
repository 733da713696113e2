// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analysis/AnalysisForm.h"
#include "core/frequency.h"

class Chart;
class HotColdBand;
class QRadioButton;

/// Most common numbers: charts of how often each number was drawn, and the ten hottest or coldest.
class ACommonNumbers final : public AnalysisForm {
    Q_OBJECT
  public:
    ACommonNumbers(Program& program, QWidget* parent);

    void Load() override;

  protected:
    void LotteryChosen() override;

  private:
    void BuildOptions();
    void Option1_Click();
    void ShowMode();
    void DrawChart(const NumberCounts& counts);
    void DrawMainChart(const Counts& counts);
    void DrawExtraChart(const Counts& counts);

    bool coldMode_ = false;
    QRadioButton* hot_;
    QRadioButton* cold_;
    Chart* chart1_;
    Chart* chart2_;
    HotColdBand* band_;
};
