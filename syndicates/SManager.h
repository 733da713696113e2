// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "platform/forms/ChangedOutside.h"
#include "platform/forms/Dirty.h"
#include "platform/forms/Form.h"
#include "syndicates/diary.h"

class DatePicker;
class FilteredBox;
class Grid;
class GridEditor;
class QLayout;
class QPushButton;
class QStackedLayout;
class TakeBack;
class SyndicateBoxes;
class TotalBox;

/// Edits the details of the syndicate and the manager's diary.
///
/// The diary is worked on as a table, of which the grid shows what has changed. Nothing reaches a
/// file before it is saved, and nothing of the details reaches the members.
class SManager final : public Form {
    Q_OBJECT
  public:
    SManager(Program& program, QWidget* parent);

    void Load() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    using Action = void (SManager::*)();

    QPushButton* Connect(QPushButton* button, Action action);
    void MakeGrid();
    QLayout* BuildBody();
    QLayout* BuildEditors();
    QLayout* BuildActions();

    const CurrencyForm& Currency() const;

    void ShowDiary();
    void ReadDiaryAnew();
    void ShowRows(int first, int last);
    /// Keeps the diary as it is, to be taken back to; `command` is what happens to it now.
    void RememberDiary(const QString& command);
    void FollowCell(int row, int column);
    void EditDate(int row);
    void EditText(int row, int column);
    void FocusEditor();

    void Enter();
    bool EnterInto(int row, int column);
    void AddUp();
    void DeleteRow();
    void MoveUp();
    void MoveDown();
    void Save();
    void Print();
    void Close();

    std::string DiaryFile() const;

    ShownFile shown_;
    Dirty dirty_;
    bool detailsTyped_ = false;  // which taking back a command of the diary does not undo
    std::unique_ptr<DiaryTable> diary_ = std::make_unique<DiaryTable>("diary");

    SyndicateBoxes* boxes_;
    Grid* grid_;
    FilteredBox* text_;
    DatePicker* date_;
    QStackedLayout* editors_ = nullptr;
    GridEditor* editor_ = nullptr;
    TakeBack* takeBack_ = nullptr;
    TotalBox* total_;
};
