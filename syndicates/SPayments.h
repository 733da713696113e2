// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Dirty.h"
#include "platform/forms/Form.h"

class ComboList;
class DatePicker;
class FilteredBox;
class Grid;
class QLayout;

/// Keeps for the manager and each member how he pays, what he paid last, and up to which date.
class SPayments final : public Form {
    Q_OBJECT
  public:
    SPayments(Program& program, QWidget* parent);

    void Load() override;

  private:
    QLayout* BuildBody();
    QLayout* BuildInputs();
    QLayout* BuildActions();
    void MakeGrid();

    void ShowAll();
    void ShowPayment(int row);
    void ChooseRow(int row);
    void Enter();
    void Save();
    void Print();
    void Close();

    Dirty dirty_;

    Grid* grid_;
    FilteredBox* amount_;
    DatePicker* paidUpTo_;
    ComboList* payBy_;
};
