// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "entries/check_entries.h"
#include "entries/entry_table.h"
#include "platform/forms/ChangedOutside.h"
#include "platform/forms/Dirty.h"
#include "platform/forms/Form.h"

enum class Command;
class DatePicker;
class FilteredBox;
class Grid;
class GridEditor;
class QLabel;
class QLayout;
class QPlainTextEdit;
class QPushButton;
class TakeBack;

/// Shows the saved entries, lets them be edited, sorted and deleted, and checks them against the
/// draws of their dates.
///
/// Edits, sorts and deletions wait in the form until they are saved; deleting all entries does not.
/// The check looks at what the grid shows, saved or not. While a sort or the check runs, the
/// commands rest.
class ShowMyDrawsW final : public Form {
    Q_OBJECT
  public:
    ShowMyDrawsW(Program& program, QWidget* parent);

    void Load() override;

  private:
    using Action = void (ShowMyDrawsW::*)();

    QWidget* MakeGrid(const QLabel& title);
    QPushButton* MakeCommand(const QString& name, const QString& caption, const QString& toolTip,
                             Action action);
    QPushButton* MakeIconCommand(const QString& name, Command command, const QString& toolTip,
                                 Action action);
    QPushButton* AddCommand(QPushButton* button, Action action);
    QLayout* MakeCommands();
    std::vector<QWidget*> MakeItemRow();
    std::vector<QWidget*> MakeDateRow();
    std::vector<QWidget*> MakeSortRow();
    QLayout* MakeDeletingButtons();
    QLayout* MakeCheck();
    QWidget* MakeColourKey();
    QLayout* MakeReport();
    QWidget* MakeBelow();
    QLayout* MakeActions();

    void ToggleButtons();
    /// Says how many entries of the file do not stand in the table; hidden where there are none.
    void TellUnread(int entries);

    void DisplayMyDraws();
    void ShowRowsInUse();
    void GoToFirstCell();
    /// Keeps the table as it is, to be taken back to; `command` is what happens to it now.
    void RememberEntries(const QString& command);
    void MarkChanged();

    void ChangeItem();
    void ChangeDateOfRow();
    void ChangeAllDates();
    bool ChangeDateOf(int row);

    template <typename Sort>
    void SortEntries(Sort sort);
    void SortRowsByDate();
    void SortRowsByName();
    void SortRowsByLottery();

    bool Confirmed(const QString& text);
    void DeleteThisRow();
    void DeleteOldRows();
    void DeleteAllRows();
    void SayDeleted(int deleted);

    void Check();
    void CheckEntries(EntryCheck& check);
    void Paint(int row, const EntryMatch& match);
    void TellCheck(const QString& text);
    void LetMessagesRun(int row);

    void ReadEntries();
    void Save();
    void Print();
    void Close();

    EntryTable entryTable_{"saved entries"};
    ShownFile shown_;
    Dirty entriesChanged_;
    double nextMessages_ = 0;

    Grid* grid_;
    FilteredBox* item_;
    GridEditor* editor_;
    TakeBack* takeBack_;
    DatePicker* date_;
    QPlainTextEdit* report_;
    QWidget* colourKey_;
    QLabel* checkSummary_;
    QLabel* unread_;
    std::vector<QPushButton*> commands_;
};
