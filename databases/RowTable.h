// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTableView>
#include <optional>
#include <vector>

class RowTableModel;
class WindowShade;

/// A row of a table of the import.
struct ShownRow {
    QStringList cells;
    int number = 0;              ///< Its place in the source, from 1.
    std::size_t key = 0;         ///< By which its owner knows it.
    bool faint = false;          ///< Whether it takes no part.
    std::optional<bool> ticked;  ///< The tick in front of its first cell; none: there is no box.
    QString tip;                 ///< More about the row, such as why it takes no part.
};

/// A table of texts, its rows numbered as they stand in the source. Chosen rows are copied with
/// their headings by Ctrl+C or the context menu; the space bar turns the ticks of the chosen rows.
class RowTable final : public QTableView {
    Q_OBJECT
  public:
    explicit RowTable(QWidget* parent = nullptr);

    void ShowRows(const QStringList& headings, std::vector<ShownRow> rows);

    int RowCount() const;
    const ShownRow& Row(int row) const;

    /// Sets the colours of a bonus or extra ball on a column; -1: on none.
    void SetExtraColumn(int column);

    /// Columns whose texts begin at the left, as their lengths differ; the others are centred.
    void SetLeftAligned(const std::vector<int>& columns);

    /// Columns that take no part and are dimmed.
    void SetFaintColumns(const std::vector<bool>& columns);

    /// Makes each column as wide as its texts need, within bounds told in characters.
    void FitColumns(int fewest, int most);

    /// Lets the columns from this one on share the room that is left.
    void StretchColumnsFrom(int column);

    /// All rows with their headings, parted by tabs, as they are copied.
    QString AllAsText() const;

  Q_SIGNALS:
    /// Somebody has set or taken away the ticks of these rows.
    void ticked(const std::vector<int>& rows, bool on);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void TakeColours();
    void CopySelection() const;
    void TurnTicks();
    void MarkRows(const QModelIndexList& rows, const QModelIndex& current);

    RowTableModel* model_;
    WindowShade* shade_;
};
