// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analysis/AnalysisForm.h"

class Chart;
class OptionGroup;
class QLabel;

/// Number averages: what stands at one position of the sorted draws.
class AAverages final : public AnalysisForm {
    Q_OBJECT
  public:
    AAverages(Program& program, QWidget* parent);

  protected:
    void LotteryChosen() override;

  private:
    void BuildPositions();
    void BuildCharts();
    void OfferPositions();
    void Analyse();

    OptionGroup* positions_;
    QLabel* average_;
    Chart* recent_;
    Chart* counts_;
};
