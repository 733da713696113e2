// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/GridEditor.h"

#include <QPushButton>

#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"

namespace {

const QColor paleYellow(0xFF, 0xFF, 0xC0);

}  // namespace

GridEditor::GridEditor(Grid& grid, FilteredBox& box, QPushButton& enter)
    : QObject(&grid), grid_(grid), box_(box) {
    grid.ShowEditedCell();
    connect(&grid, &Grid::cellClicked, this, [this](int row, int column) {
        if (row != row_ || column != column_) Tell(row, column);
    });
    connect(&grid, &Grid::clicked, this, [this] { Q_EMIT editRequested(); });
    connect(&grid, &Grid::activated, this, [this] { Q_EMIT editRequested(); });
    connect(&box, &QLineEdit::returnPressed, &enter, &QPushButton::click);
}

void GridEditor::GoTo(int row, int column) {
    grid_.SetCurrentCell(row, column);
    Tell(row, column);
}

void GridEditor::Tell(int row, int column) {
    row_ = row;
    column_ = column;
    Q_EMIT cellChanged(row, column);
}

void GridEditor::MarkCell() {
    if (markedRow_ > 0) grid_.SetCellBackground(markedRow_, markedColumn_, Qt::white);
    grid_.SetCellBackground(row_, column_, paleYellow);
    markedRow_ = row_;
    markedColumn_ = column_;
}

void GridEditor::Show(const QString& text) {
    box_.Show(text);
    box_.selectAll();
}

void GridEditor::ShowCell() { Show(grid_.Cell(row_, column_)); }

void GridEditor::EditCell() {
    ShowCell();
    box_.setFocus();
}
