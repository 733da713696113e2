// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "platform/forms/Form.h"

class DatePicker;
class Grid;
class ListBox;
class NumberBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

/// Stores entries that the user types in: they gather in the grid until they are saved.
class StoreMyDrawsW final : public Form {
    Q_OBJECT
  public:
    StoreMyDrawsW(Program& program, QWidget* parent);

    void Load() override;

  private:
    void MakeGrid();
    void MakeControls();
    QLayout* BuildTop();
    QLayout* BuildNumbers();
    QLayout* BuildRowCommands();
    QLayout* BuildActions();
    void Connect();

    void List1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command1_Click();
    void MSFlexGrid1_Click();

    void ShowBoxes();
    bool NumbersAreValid() const;
    int FirstEmptyRow() const;
    void WriteEntry(int row);

    NumberBox* Text1(int index) const { return text1_[static_cast<std::size_t>(index - 1)]; }

    ListBox* list1_;
    std::array<NumberBox*, 8> text1_;
    QLabel* label1_;
    QLabel* label2_;
    QLabel* label5_;
    QLabel* label7_;
    QLabel* label8_;
    QLabel* labelPName_;
    QLineEdit* textPName_;
    DatePicker* dtPicker1_;
    Grid* grid_;
    QPushButton* command1_;
    QPushButton* command2_;
    QPushButton* command3_;
    QPushButton* command4_;
    QPushButton* command5_;
    QPushButton* command6_;
};
