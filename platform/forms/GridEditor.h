// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class FilteredBox;
class Grid;
class QPushButton;

/// What the grids share whose cells are edited in a box below them.
///
/// The current cell is the one that is edited. A form connects `cellChanged` to what happens on a
/// move (its cell rule), and does in it what it needs of `MarkCell`, `ShowCell` and `EditCell`.
class GridEditor final : public QObject {
    Q_OBJECT
  public:
    /// `enter` is the button that puts the box's text into the cell; Enter in the box clicks it.
    GridEditor(Grid& grid, FilteredBox& box, QPushButton& enter);

    /// Makes a cell current and tells of it, also where it was current before.
    void GoTo(int row, int column);

    /// Where the current cell is; 0 before there was one.
    int Row() const { return row_; }
    int Column() const { return column_; }

    /// Gives the current cell a pale yellow background and the one marked before a white one.
    void MarkCell();

    /// Shows the current cell's text in the box, all of it marked; with `EditCell` the box gets the
    /// focus too.
    void ShowCell();
    void EditCell();

    /// The same with a text that is not quite the cell's.
    void Show(const QString& text);

  Q_SIGNALS:
    /// Another cell has become current, by a click, the keyboard or `GoTo`.
    void cellChanged(int row, int column);

    /// The current cell was clicked, or Enter pressed on it; `cellChanged` was told before.
    void editRequested();

  private:
    void Tell(int row, int column);

    Grid& grid_;
    FilteredBox& box_;
    int row_ = 0;
    int column_ = 0;
    int markedRow_ = 0;
    int markedColumn_ = 0;
};
