// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/Services.h"
#include "shell/Panel.h"

class Chart;
class DatePicker;
class OptionGroup;
class QPushButton;

/// The biochart: birth date, today or tomorrow, and four bars.
class BiochartPanel final : public Panel {
    Q_OBJECT
  public:
    BiochartPanel(Program& program, QWidget* parent);

    /// Sets the picker to the birth date of the settings; one that is no date is a `Failure`.
    void ShowBirthDate();

    /// Draws the chart and keeps the birth date in the settings.
    void DoBiorhythm();

    /// Lets the button More lead on; without a form behind it the button is disabled.
    void SetMoreAvailable(bool available);

  Q_SIGNALS:
    void moreWanted();

  private:
    void Build();
    void LabelChart();

    Program& program_;
    DatePicker* birthDate_;
    OptionGroup* days_;  // today, tomorrow
    QPushButton* more_ = nullptr;
    Chart* chart_ = nullptr;
};
