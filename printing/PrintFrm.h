// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"
#include "printing/report_frame.h"

class ComboList;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QRadioButton;

/// Asks for printer, paper, size of text, margin and number of lines before a report is printed.
///
/// It is loaded once a run and only hidden when it is answered: what was chosen stands the next
/// time.
class PrintFrm final : public Form {
    Q_OBJECT
  public:
    PrintFrm(Program& program, QWidget* parent);

    void Load() override;

    /// Puts the margin back to its usual width.
    void ResetMargin();

    /// Proposes to print so many lines, and waits for the answer over another form: whether to
    /// print.
    bool Ask(QWidget* over, int lines);

    /// What was chosen.
    ReportChoice Choice() const;
    PrintOptions Options() const;

  private:
    QLayout* MakeInputs();
    QGroupBox* MakeOrientation();
    QLayout* MakeActions();
    void Print();
    void Cancel();

    ComboList* printers_;
    ComboList* qualities_;
    ComboList* papers_;
    ComboList* textSizes_;
    QLineEdit* margin_;
    QLineEdit* lines_;
    QRadioButton* portrait_ = nullptr;
    QLabel* answer_;  // for the caller, hidden
};
