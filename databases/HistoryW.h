// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "databases/DrawBoxes.h"
#include "platform/forms/Form.h"

class DatePicker;
class Grid;
class ListBox;
class QGroupBox;
class QLayout;
class QPushButton;
class QRadioButton;
class QTimer;

/// Shows all draws of a lottery, in draw order or with the numbers of each draw ascending, and lets
/// the user correct or delete a draw in draw order.
///
/// The grid shows 2,999 draws; a longer history is a `Failure`. The draws in memory follow each
/// choice and each edit.
class HistoryW final : public Form {
    Q_OBJECT
  public:
    HistoryW(Program& program, QWidget* parent);

    void Load() override;

  private:
    void MakeControls();
    void MakeGrid();
    void MakeEditPanel();
    QLayout* BuildHistory();
    QLayout* BuildChoices();
    void Connect();

    void List1_Click();
    void MSFlexGrid1_RowColChange();
    void Option1_Click();
    void Option2_Click();
    void Command2_Click();
    void Command3_Click();
    void Command6_Click();
    void Timer1_Timer();

    void ShowHeadings();
    void ShowDraws();
    void ShowBoxes();
    void SelectRow(int row);
    bool HasExtraColumn() const;

    NumberBox* Text1(int index) const { return text1_[static_cast<std::size_t>(index - 1)]; }

    std::int16_t sortedView_ = 0;  // 0 in draw order, -1 in ascending order
    ListBox* list1_;
    Grid* grid_;
    QLabel* label1_;
    QLabel* label2_;
    QLabel* label3_;
    QLabel* label4_;
    QRadioButton* option1_;
    QRadioButton* option2_;
    QGroupBox* frame1_;
    DatePicker* dtPicker1_;
    DrawBoxes text1_;
    QPushButton* command1_;
    QPushButton* command2_;
    QPushButton* command3_;
    QPushButton* command6_;
    QTimer* timer1_;
};
