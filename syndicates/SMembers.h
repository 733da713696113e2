// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Dirty.h"
#include "platform/forms/Form.h"
#include "syndicates/PersonBoxes.h"

class ComboList;
class ListBox;
class QLabel;
class QLayout;
class QPushButton;

/// Adds, changes, deletes and sorts the members of the syndicate. A member is known by his name.
class SMembers final : public Form {
    Q_OBJECT
  public:
    SMembers(Program& program, QWidget* parent);

    void Load() override;

  private:
    QLayout* BuildBody();
    QLayout* BuildSyndicate();
    QLayout* BuildBoxes();
    QLayout* BuildList();
    QLayout* BuildActions();
    QPushButton* Connect(QPushButton* button, void (SMembers::*action)());

    void ShowAll();
    void FillList();
    void Add();
    void ShowChosen();
    void Delete();
    void Clear();
    void Sort();
    void Print();
    void Save();
    void Close();

    Dirty dirty_;

    PersonBoxes boxes_;
    ComboList* payBy_;
    ListBox* members_;
    QLabel* syndicate_;
    QLabel* manager_;
};
