// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "analysis/AnalysisForm.h"
#include "analysis/number_stats.h"

class Grid;
class QLabel;
class QLayout;

/// Number statistics: when each number was last drawn, how often, and its average gap, in a table
/// that can be sorted.
class ANumberStats final : public AnalysisForm {
    Q_OBJECT
  public:
    ANumberStats(Program& program, QWidget* parent);

  protected:
    void LotteryChosen() override;
    void Print() override;
    bool CanPrint() const override;

  private:
    /// One of the sorts and its words.
    struct Sort {
        const char* button;
        QString prompt;
        QString toolTip;
        QString heading;
        int column;
        number_stats::Order order;
    };

    static std::vector<Sort> Sorts();

    void SetUpGrid();
    QLayout* BuildSorts();
    void ShowTable();
    void SortBy(const Sort& sort);
    void ToggleButtons();

    QLabel* report_;
    Grid* grid_;
    std::vector<number_stats::TableRow> rows_;  // as they are shown
};
