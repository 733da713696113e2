// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/Services.h"
#include "shell/Panel.h"

class Chart;
class DatePicker;
class QPushButton;
class QRadioButton;

/// The biochart: birth date, today or tomorrow, and four bars.
class BiochartPanel final : public Panel {
    Q_OBJECT
  public:
    BiochartPanel(Program& program, QWidget* parent);

    /// Sets the picker to the birth date of the settings; one that is no date is a `Failure`.
    void ShowBirthDate();

    /// Draws the chart and keeps the birth date in the settings.
    void DoBiorhythm();

    /// Lets `Command1(17)` lead on; without a form behind it the button is disabled.
    void SetMoreAvailable(bool available);

  Q_SIGNALS:
    void moreWanted();

  private:
    void Build();
    void Connect();

    Program& program_;
    DatePicker* dtPicker1_;
    QPushButton* update_;
    QPushButton* more_;
    QRadioButton* today_;
    QRadioButton* tomorrow_;
    Chart* chart_;
};
