// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/EntryBoxes.h"
#include "platform/forms/Form.h"

enum class Command;
class DatePicker;
class Grid;
class ListBox;
class QLayout;
class QLineEdit;
class QPushButton;
class TakeBack;

/// Stores entries that the user types in: they gather in the grid until they are saved.
///
/// The grid may hold entries of several lotteries. Its rows can be deleted and moved.
class StoreMyDrawsW final : public Form {
    Q_OBJECT
  public:
    StoreMyDrawsW(Program& program, QWidget* parent);

    void Load() override;

  private:
    using Action = void (StoreMyDrawsW::*)();

    // The last row of the grid is the parking place of the current row: there, no row is chosen.
    static constexpr int parkingRow = 99;

    void MakeGrid();
    QLayout* MakeTop();
    QLayout* MakeNumbers();
    QLayout* MakeBoxes();
    QLayout* MakeHeadings();
    QPushButton* MakeCommand(const QString& name, Command command, const QString& toolTip,
                             Action action);
    QLayout* MakeRowCommands();
    QLayout* MakeActions();

    void ChooseLottery();

    void Add();
    bool NumbersAreValid() const;
    void WriteEntry(int row);

    /// Makes the row current and marks it; the row commands are offered where they do something.
    void GoToRow(int row);
    void OfferRowCommands();
    void Offer(QPushButton& command, bool possible);

    bool EntryIsChosen() const;
    bool RowCanMoveUp() const;
    bool RowCanMoveDown() const;
    /// Keeps the grid as it is, to be taken back to; `command` is what happens to it now.
    void RememberEntries(const QString& command);
    void DeleteRow();
    void MoveRowUp();
    void MoveRowDown();

    void Save();
    void Close();

    NumberBox* Box(int index) const { return boxes_[static_cast<std::size_t>(index - 1)]; }

    ListBox* lotteries_;
    DatePicker* date_;
    QLineEdit* player_;
    EntryBoxes boxes_;
    QLabel* extraBallTitle_;
    QPushButton* add_;
    Grid* grid_;
    TakeBack* takeBack_;
    QPushButton* deleteRow_;
    QPushButton* moveUp_;
    QPushButton* moveDown_;
};
