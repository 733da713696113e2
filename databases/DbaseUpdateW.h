// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "databases/DrawBoxes.h"
#include "platform/forms/Form.h"

class DatePicker;
class ListBox;
class QLayout;
class QPushButton;

/// Takes one draw that the user types in and inserts it at the place of its date.
///
/// Choosing a lottery reads its heading and its newest draw; the draws in memory stay those of the
/// lottery that was loaded last.
class DbaseUpdateW final : public Form {
    Q_OBJECT
  public:
    DbaseUpdateW(Program& program, QWidget* parent);

    void Load() override;

  private:
    void MakeControls();
    void MakeButtons();
    QLayout* BuildLotteries();
    QLayout* BuildDraw();

    void List1_Click();
    void Command1_Click();
    void Command2_Click();

    bool NumbersAreValid() const;

    ListBox* list1_;
    DatePicker* dtPicker1_;
    DrawBoxes text1_;
    QLabel* label4_;
    QLabel* label5_;
    QLabel* label6_;
    QLabel* label7_;
    QLabel* label8_;
    QLabel* label11_;
    QLabel* label13_;
    QPushButton* command1_;
    QPushButton* command2_;
    QPushButton* cancelButton_;
};
