// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "databases/DrawBoxes.h"
#include "platform/forms/ChangedOutside.h"
#include "platform/forms/Form.h"

class DatePicker;
class Grid;
class ListBox;
class QGroupBox;
class QLayout;
class QRadioButton;
class QTimer;
class TakeBack;

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
    QLayout* MakeHistory();
    void MakeGrid();
    void MakeEditPanel();
    QLayout* MakeEditCommands();
    QLayout* MakeChoices();
    QLayout* MakeActions();

    void ChooseLottery();
    void ShowHeadings();
    void ShowDraws();
    void OfferBoxes();
    bool HasExtraColumn() const;

    void SelectRow(int row);
    void FollowRow();
    Date DateOfRow(int row) const;

    void ShowAscending();
    void ShowInDrawOrder();
    bool ReadAnewIfChanged();
    /// Keeps the database as it is, to be taken back to; `command` is what happens to the row now.
    void RememberDraws(const QString& command, int row);
    void UpdateChosenDraw();
    void DeleteChosenDraw();
    void Print();
    void CloseIfEmpty();

    NumberBox* Box(int column) const { return boxes_[static_cast<std::size_t>(column - 1)]; }

    ShownFile shown_;
    std::int16_t sortedView_ = 0;  // 0 in draw order, -1 in ascending order
    QLabel* lotteryName_;
    Grid* grid_;
    TakeBack* takeBack_;
    QGroupBox* editPanel_;
    DatePicker* date_;
    DrawBoxes boxes_;
    ListBox* lotteries_;
    QRadioButton* drawOrder_;
    QTimer* closing_;
};
