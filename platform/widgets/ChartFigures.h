// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBrush>
#include <QColor>
#include <QString>
#include <QStringList>
#include <optional>
#include <utility>
#include <vector>

/// How a chart shows its series.
enum class ChartKind { Bars, Lines };

/// How bars look: a colour, and a pattern over it where colours alone would not tell them apart.
struct BarLook {
    QColor fill;
    QBrush pattern = {};
};

/// What a chart shows: its title, the labels and figures of its rows and columns, its looks.
///
/// A column is a series. With one row of several columns each column has its own place on the
/// horizontal axis; otherwise each row has.
class ChartFigures {
  public:
    ChartFigures(int rowCount, int columnCount);

    /// Rows that stay keep their figures; new ones have the figure 0 and no label.
    void SetRowCount(int rowCount);

    int Rows() const { return rows_; }
    int Columns() const { return static_cast<int>(columnLabels.size()); }

    double& Value(int row, int column) { return values_[Entry(row, column)]; }
    double Value(int row, int column) const { return values_[Entry(row, column)]; }
    QString& RowLabel(int row) { return rowLabels_[Index(row)]; }
    const QString& RowLabel(int row) const { return rowLabels_[Index(row)]; }

    /// What a row is called in words, where its label does not tell it.
    QString& RowName(int row) { return rowNames_[Index(row)]; }
    QString& ColumnLabel(int column) { return columnLabels[Index(column)]; }
    const QString& ColumnLabel(int column) const { return columnLabels[Index(column)]; }

    /// Whether each column has a place of its own.
    bool ColumnsAreApart() const { return rows_ == 1 && Columns() > 1; }
    int Places() const { return ColumnsAreApart() ? Columns() : rows_; }
    const QString& PlaceLabel(int place) const;

    /// The look of a bar: its row's own, else that of its series.
    const BarLook& Look(int row, int column) const;
    void SetRowLook(int row, const BarLook& look) { rowLooks_[Index(row)] = look; }

    /// Lowest and highest of all figures and of 0.
    std::pair<double, double> Extent() const;
    bool AllWhole() const;

    /// "17: 204", or "May: odd 7, even 3" where a place has several series; the row's name stands
    /// for its label where it has one.
    QString PlaceText(int place) const;

    /// All places, for screen readers.
    QString Description() const;

    /// Figures with their labels, a row a line, cells separated by tabs.
    QString Table() const;

    QString title;
    QString caption;                                 ///< Below the labels of the rows.
    std::optional<std::pair<double, double>> range;  ///< Of the vertical axis.
    ChartKind kind = ChartKind::Bars;
    std::vector<QString> columnLabels;
    std::vector<BarLook> looks;     ///< Of the series.
    std::optional<double> average;  ///< Where a line across the bars is drawn.
    std::vector<int> ranked;        ///< Rows whose bars bear their figure.

  private:
    static std::size_t Index(int count) { return static_cast<std::size_t>(count - 1); }
    std::size_t Entry(int row, int column) const {
        return Index(row) * columnLabels.size() + Index(column);
    }

    const QString& NameOf(int row) const;

    int rows_;
    std::vector<QString> rowLabels_;
    std::vector<QString> rowNames_;
    std::vector<std::optional<BarLook>> rowLooks_;
    std::vector<double> values_;
};
