// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "databases/DrawBoxes.h"
#include "platform/forms/Form.h"

class AddressTip;
class DatePicker;
class ListBox;
class QLayout;

/// Takes one draw that the user types in and inserts it at the place of its date. It shows the
/// newest draws and says when the lottery has a draw of the date already, which bars nothing.
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
    void ReadDraws();
    void ShowNewestDraws(const std::vector<std::string_view>& draws);
    void ShowWhetherDateIsTaken();
    void Save();
    NumberBox* FirstWrongBox() const;

    ListBox* lotteries_;
    DatePicker* date_;
    QLabel* takenDate_;
    std::vector<Date> takenDates_;
    QLabel* lastUpdate_;
    QLabel* lastBoxTitle_;
    DrawBoxes boxes_;
    QLabel* newestDraws_;
    AddressTip* website_;
};
