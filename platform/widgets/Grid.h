// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <QTableView>
#include <limits>
#include <vector>

class GridModel;
class WindowShade;

/// What a cell's number matched in a check.
enum class Match { None, Main, Extra };

/// The table of texts that the forms share.
///
/// Row 0 is the headings; grid row r is row r - 1 of the model, columns are those of the model.
/// A cell outside the grid is a `Failure`. Cells are centred, and the grid is as wide as its
/// columns plus a scroll bar and 90 twips. Colours are those told for a light desktop and stay so
/// in the model; in a dark window their dark counterparts are painted. Marked rows are framed. The
/// context menu copies and selects.
class Grid final : public QTableView {
    Q_OBJECT
  public:
    /// A grid of `rowCount` rows, the headings' row included, all cells empty.
    Grid(int rowCount, int columnCount, QWidget* parent = nullptr);

    int RowCount() const;
    int ColumnCount() const;
    void SetRowCount(int rowCount);

    QString Cell(int row, int column) const;
    void SetCell(int row, int column, const QString& text);

    /// Text colour of a cell; an invalid colour takes it back.
    void SetCellColour(int row, int column, const QColor& colour);
    QColor CellColour(int row, int column) const;

    /// Colour behind the text of a cell; an invalid colour takes it back. A marked cell shows it a
    /// little darker.
    void SetCellBackground(int row, int column, const QColor& colour);
    QColor CellBackground(int row, int column) const;

    /// Whether the cell's number matched, which is told without colours: bold, of a bonus or extra
    /// ball with a ring, and in the cell's accessible text.
    void SetCellMatch(int row, int column, Match match);
    Match CellMatch(int row, int column) const;

    /// Empties every cell below the headings.
    void ClearCells();

    /// Paints the rows behind the first `rows` below the headings, and these columns, in the colour
    /// of the window, as the form has nothing to show there; with the rows goes the room behind the
    /// last one. What the cells hold stays.
    void SetRowsInUse(int rows);
    void SetColumnsOutOfUse(const std::vector<int>& columns);
    bool InUse(int row, int column) const;
    bool ColumnInUse(int column) const;

    /// Shows which cell is current, for a grid whose cells are edited: a frame, and the heading of
    /// its column in bold.
    void ShowEditedCell();
    bool ShowsEditedCell() const { return showsEditedCell_; }

    /// Whether the grid stands in a dark window, and the colour of what is not in use there.
    bool IsDark() const;
    QColor UnusedColour() const;

    /// Where the texts of a column stand, its heading's too; centred where nothing is told.
    void SetColumnAlignment(int column, Qt::Alignment alignment);

    /// Every column as wide as the text "00000000", the grid as wide as told above.
    void SizeColumns();

    /// Widths by column in place of equal ones; the grid's own width follows.
    void SetColumnWidths(const std::vector<int>& widths);

    /// The row that is current while none is; 0 where the grid has no parking place.
    void SetParkingRow(int row);

    /// The current row: the parking row where no cell is current.
    int CurrentRow() const;

    /// Makes a cell current without marking anything; the parking row takes the choice away.
    void SetCurrentCell(int row, int column);

    /// Makes the row current, in the last column that is shown, and marks the whole row.
    void MarkRow(int row);

    void ScrollToTop();

    /// Scrolls so that the row is the first in view, as far as the rows below it allow.
    void SetTopRow(int row);

    /// Scrolls as little as brings the row into view.
    void ScrollToRow(int row);

  Q_SIGNALS:
    /// A click on a cell, or a move of the current cell by the keyboard, by dragging or by another
    /// mouse button. Rows as in the grid.
    void cellClicked(int row, int column);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QModelIndex IndexOf(int row, int column) const;
    bool RowIsEmpty(int row) const;
    void SetUpView();
    void BuildMenu();
    void TellOfMove();
    int LastShownColumn() const;
    void FitWidth();
    void TellOfCell(const QModelIndex& index);
    void CopySelection() const;

    GridModel* model_;
    WindowShade* shade_;
    int parkingRow_ = 0;
    int rowsInUse_ = std::numeric_limits<int>::max();
    std::vector<int> columnsOutOfUse_;
    bool showsEditedCell_ = false;
    QPersistentModelIndex currentBeforePress_;
    bool told_ = false;  // whether the press that is on its way was told as a click
};
