// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "databases/DrawBoxes.h"
#include "platform/forms/Form.h"

class DatePicker;
class ListBox;
class QLayout;

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
    QLayout* MakeLotteries();
    QLayout* MakeDraw();
    QLayout* MakeActions();

    void ChooseLottery();
    void Save();
    bool NumbersAreValid() const;

    ListBox* lotteries_;
    DatePicker* date_;
    QLabel* lastUpdate_;
    QLabel* lastBoxTitle_;
    DrawBoxes boxes_;
};
