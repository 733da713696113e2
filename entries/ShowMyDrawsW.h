// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "entries/check_entries.h"
#include "entries/entry_table.h"
#include "platform/forms/Form.h"

class DatePicker;
class Grid;
class QGridLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// Shows the saved entries, lets them be edited, sorted and deleted, and checks them against the
/// draws of their dates.
class ShowMyDrawsW final : public Form {
    Q_OBJECT
  public:
    ShowMyDrawsW(Program& program, QWidget* parent);

    void Load() override;

  private:
    void MakeGrid();
    void MakeLabels();
    void MakeInputs();
    void MakeCommands();
    QLayout* BuildCommands();
    QLayout* BuildCheck();
    QLayout* BuildReport();
    QLayout* BuildColourKey();
    QLayout* BuildActions();
    void Connect();

    /// The commands that are available while nothing runs, in the order of the form.
    std::vector<QPushButton*> Commands() const;
    void ToggleButtons();

    void DisplayMyDraws();
    void GoToFirstCell();
    void ShowCurrentCell();
    bool Confirmed(const QString& text);

    template <typename Sort>
    void SortEntries(Sort sort);

    void ShowColourKey();
    void CheckEntries(EntryCheck& check);
    void Paint(int row, const EntryMatch& match);
    void LetMessagesRun(int row);

    void MSFlexGrid1_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command6_Click();
    void Command7_Click();
    void Command8_Click();
    void Command9_Click();
    void Command10_Click();
    void Command11_Click();
    void Command12_Click();
    void Command13_Click();

    EntryTable entryTable_{"saved entries"};
    int entriesChanged_ = 0;  // 0 or -1
    double nextMessages_ = 0;

    Grid* grid_;
    QLineEdit* text1_;
    QPlainTextEdit* text2_;
    DatePicker* dtPicker1_;
    QLabel* label1_;
    QLabel* label2_;
    QLabel* label3_;
    QLabel* label4_;
    QLabel* label5_;
    QLabel* label6_;
    QLabel* label7_;
    QLabel* label8_;
    QLabel* label9_;
    QLabel* label10_;
    QLabel* label14_;
    QLabel* deleteLabel_;
    QLabel* sortLabel_;
    QPushButton* command1_;
    QPushButton* command2_;
    QPushButton* command3_;
    QPushButton* command4_;
    QPushButton* command5_;
    QPushButton* command6_;
    QPushButton* command7_;
    QPushButton* command8_;
    QPushButton* command9_;
    QPushButton* command10_;
    QPushButton* command11_;
    QPushButton* command12_;
    QPushButton* command13_;
};
