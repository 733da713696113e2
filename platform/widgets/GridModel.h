// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QTimer>
#include <algorithm>
#include <string>
#include <vector>

#include "core/failure.h"
#include "platform/widgets/Grid.h"

/// The texts and colours of a grid, headings included. Changes are told to the view together, once
/// the handler that makes them is done, so that filling thousands of rows costs one repaint.
class GridModel final : public QAbstractTableModel {
  public:
    GridModel(int rowCount, int columnCount, QObject* parent)
        : QAbstractTableModel(parent), rows_(rowCount), columns_(columnCount) {
        cells_.resize(Count());
        alignments_.resize(static_cast<std::size_t>(columnCount), Qt::AlignCenter);
    }

    int GridRows() const { return rows_; }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : std::max(rows_ - 1, 0);
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : columns_;
    }
    QVariant data(const QModelIndex& index, int role) const override {
        return index.isValid() ? Answer(index.row() + 1, index.column(), role) : QVariant();
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal || section < 0 || section >= columns_) return {};
        return Answer(0, section, role);
    }

    const QString& Text(int row, int column) const { return At(row, column).text; }
    QColor TextColour(int row, int column) const { return AsColour(At(row, column).colour); }
    QColor Background(int row, int column) const { return AsColour(At(row, column).background); }

    void SetText(int row, int column, const QString& text) {
        Cell& cell = At(row, column);
        if (cell.text == text) return;
        cell.text = text;
        Changed(row, column, row, column);
    }
    void SetColour(int row, int column, const QColor& colour) {
        SetShade(&Cell::colour, row, column, colour);
    }
    void SetBackground(int row, int column, const QColor& colour) {
        SetShade(&Cell::background, row, column, colour);
    }
    Match MatchOf(int row, int column) const { return At(row, column).match; }
    void SetMatch(int row, int column, Match match) {
        Cell& cell = At(row, column);
        if (cell.match == match) return;
        cell.match = match;
        Changed(row, column, row, column);
    }
    void SetAlignment(int column, Qt::Alignment alignment) {
        static_cast<void>(At(0, column));  // a column outside the grid is a failure
        alignments_[static_cast<std::size_t>(column)] = alignment | Qt::AlignVCenter;
        Changed(0, column, rows_ - 1, column);
    }
    void Clear() {
        const auto body = cells_.begin() + std::min<std::ptrdiff_t>(columns_, std::ssize(cells_));
        std::fill(body, cells_.end(), Cell());
        if (rows_ > 1) Changed(1, 0, rows_ - 1, columns_ - 1);
    }
    void SetRows(int rowCount) {
        beginResetModel();
        rows_ = rowCount;
        cells_.resize(Count());
        endResetModel();
    }

  private:
    struct Cell {
        QString text;
        QRgb colour = 0;  // 0: the grid's own colour, here and below
        QRgb background = 0;
        Match match = Match::None;
    };

    static QColor AsColour(QRgb value) { return value == 0 ? QColor() : QColor::fromRgb(value); }
    static QVariant AsRole(QRgb value) { return value == 0 ? QVariant() : AsColour(value); }

    void SetShade(QRgb Cell::*shade, int row, int column, const QColor& colour) {
        Cell& cell = At(row, column);
        const QRgb value = colour.isValid() ? (colour.rgb() | 0xff000000U) : 0;
        if (cell.*shade == value) return;
        cell.*shade = value;
        Changed(row, column, row, column);
    }

    std::size_t Count() const {
        return static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns_);
    }
    std::size_t Place(int row, int column) const {
        if (row < 0 || column < 0 || row >= rows_ || column >= columns_) {
            throw Failure("grid: row " + std::to_string(row) + ", column " +
                          std::to_string(column) + " was asked for, but the grid has " +
                          std::to_string(rows_) + " rows and " + std::to_string(columns_) +
                          " columns, counted from 0");
        }
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }
    Cell& At(int row, int column) { return cells_[Place(row, column)]; }
    const Cell& At(int row, int column) const { return cells_[Place(row, column)]; }

    QVariant Answer(int row, int column, int role) const {
        const Cell& cell = At(row, column);
        switch (role) {
            case Qt::DisplayRole:
                return cell.text;
            case Qt::ForegroundRole:
                return AsRole(cell.colour);
            case Qt::BackgroundRole:
                return AsRole(cell.background);
            case Qt::AccessibleTextRole:
                return SpokenText(cell);
            case Qt::TextAlignmentRole:
                return QVariant::fromValue(alignments_[static_cast<std::size_t>(column)]);
            default:
                return {};
        }
    }

    static QString SpokenText(const Cell& cell) {
        if (cell.match == Match::Main) return tr("%1, matched").arg(cell.text);
        if (cell.match == Match::Extra)
            return tr("%1, matched the bonus or extra ball").arg(cell.text);
        return cell.text;
    }

    void Changed(int top, int left, int bottom, int right) {
        const QRect area(QPoint(left, top), QPoint(right, bottom));
        if (changed_.isNull()) QTimer::singleShot(0, this, [this] { TellChanges(); });
        changed_ = changed_.united(area);
    }
    void TellChanges() {
        const QRect area = changed_.intersected(QRect(0, 0, columns_, rows_));
        changed_ = QRect();
        if (area.isEmpty()) return;
        if (area.top() == 0) Q_EMIT headerDataChanged(Qt::Horizontal, area.left(), area.right());
        if (area.bottom() == 0) return;
        Q_EMIT dataChanged(index(std::max(area.top(), 1) - 1, area.left()),
                           index(area.bottom() - 1, area.right()));
    }

    int rows_;
    int columns_;
    std::vector<Cell> cells_;
    std::vector<Qt::Alignment> alignments_;  // by column
    QRect changed_;                          // x is the column, y the row
};
