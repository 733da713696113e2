// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analysis/AnalysisForm.h"
#include "platform/forms/EntryBoxes.h"

class Grid;
class QPlainTextEdit;
class QPushButton;

/// What if...?: a set of entries, typed in or saved before, is compared with all draws of a
/// lottery.
class WhatIf final : public AnalysisForm {
    Q_OBJECT
  public:
    WhatIf(Program& program, QWidget* parent);

    void Load() override;

  protected:
    void ChooseLottery() override;
    void LotteryChosen() override;

  private:
    void SetUpGrid();
    QLayout* BuildEntries();
    QLayout* BuildTitles();
    QLayout* BuildCheck();

    void InitGrid();
    void ShowEntriesInUse();
    /// Makes the row current and marks it, but for its number.
    void GoToRow(int row);
    int FirstFreeRow() const;

    void OfferSavedEntries();
    void LoadSavedEntries();

    void Add();
    NumberBox* FirstWrongBox() const;
    void DeleteEntry();

    void Check();
    void CheckEntries();
    void CopyEntriesToLines();
    void ShowResult(const QString& report, const QString& byChance);

    EntryBoxes boxes_;
    QLabel* extraBallTitle_;
    Grid* grid_;
    QPlainTextEdit* result_;
};
