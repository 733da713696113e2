// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "databases/DrawBoxes.h"
#include "platform/forms/Form.h"

class DatePicker;
class ListBox;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;

/// Defines a lottery, by hand or from a ready-made template, and writes a new draw database with it
/// and a first draw.
class CreateDbase final : public Form {
    Q_OBJECT
  public:
    CreateDbase(Program& program, QWidget* parent);

    void Load() override;

  private:
    void MakeTexts();
    void MakeLists();
    void MakeRules();
    void MakeDraw();
    void MakeActions();
    QLayout* BuildLists();
    QLayout* BuildLottery();
    QLayout* BuildRules();
    QLayout* BuildDraw();
    void Connect();

    void List1_Click();
    void HScroll1_Change();
    void HScroll2_Change();
    void HScroll3_Change();
    void Option1_Click(int index);
    void Command1_Click();
    void Command2_Click();
    void CancelButton_Click();

    void ShowNumberCount();

    std::array<QLabel*, 19> label_{};  // by the number in the name; some numbers have no label
    ListBox* list1_;
    ListBox* list2_;
    QLineEdit* text2_;
    QLineEdit* text3_;
    DrawBoxes text1_;
    QScrollBar* hScroll1_;
    QScrollBar* hScroll2_;
    QScrollBar* hScroll3_;
    std::array<QRadioButton*, 2> option1_;
    DatePicker* dtPicker1_;
    QPushButton* command1_;
    QPushButton* command2_;
    QPushButton* cancelButton_;
};
