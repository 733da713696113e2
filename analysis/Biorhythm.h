// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analysis/AnalysisForm.h"
#include "analysis/biorhythms.h"

class Chart;
class DatePicker;
class OptionGroup;

/// Biorhythms: seven cycles of the user over four weeks, and how lucky he is today or tomorrow.
class Biorhythm final : public AnalysisForm {
    Q_OBJECT
  public:
    Biorhythm(Program& program, QWidget* parent);

    void Load() override;

  private:
    void BuildChoices();
    QLayout* BuildCurves();
    QLayout* BuildDates();
    QLayout* BuildBiochart();

    void ShowDates();
    void Calculate();
    void ShowCurves(Chart& chart, const biorhythms::Chart& values);
    void ShowBiochart(int days);

    DatePicker* birthDate_;
    OptionGroup* days_;
    Chart* body_;
    Chart* mind_;
    Chart* biochart_;
    QLabel* firstDay_;
    QLabel* today_;
    QLabel* lastDay_;
};
