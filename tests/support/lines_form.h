// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "platform/Grid.h"
#include "platform/Lists.h"
#include "tests/support/form_test.h"

/// A form that makes lines, on a folder in memory. A test fills the folder, then shows its form.
class LinesFormTest : public testing::Test {
  protected:
    LinesFormTest() {
        test_.services.saveLines = [this](QWidget*, Grid&) { ++saves_; };
    }

    void ShowForm(std::unique_ptr<Form> form) {
        form_ = std::move(form);
        form_->Load();
        form_->show();
    }

    Grid& Lines() { return *Find<Grid>(*form_, "MSFlexGrid1"); }

    int ShownLines() {
        int count = 0;
        while (!Lines().Cell(count + 1, 1).isEmpty()) ++count;
        return count;
    }

    /// Every text below the headings, to see whether lines are others.
    QStringList Texts() {
        QStringList texts;
        for (int row = 1; row < Lines().RowCount(); ++row) {
            for (int column = 0; column < 9; ++column) texts << Lines().Cell(row, column);
        }
        return texts;
    }

    /// Columns 1 to `columns` of the lines shown; 0 where a cell is empty.
    std::vector<std::vector<int>> Rows(int columns) {
        std::vector<std::vector<int>> rows;
        for (int row = 1; row <= ShownLines(); ++row) {
            std::vector<int>& line = rows.emplace_back();
            for (int column = 1; column <= columns; ++column) {
                line.push_back(Lines().Cell(row, column).toInt());
            }
        }
        return rows;
    }

    void ChooseLottery(int index) { Find<ListBox>(*form_, "List1")->SetIndex(index); }

    TestProgram test_;
    std::unique_ptr<Form> form_;
    int saves_ = 0;
};
