// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/RowTableModel.h"

#include <algorithm>
#include <utility>

void RowTableModel::Show(const QStringList& headings, std::vector<ShownRow> rows) {
    beginResetModel();
    headings_ = headings;
    rows_ = std::move(rows);
    endResetModel();
}

void RowTableModel::SetFaintColumns(const std::vector<bool>& columns) { faintColumns_ = columns; }

void RowTableModel::SetColours(const QColor& faint, const QColor& extra) {
    faint_ = faint;
    extra_ = extra;
}

int RowTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RowTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant RowTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ShownRow& row = Row(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return row.cells.value(index.column());
        case Qt::CheckStateRole:
            if (index.column() != 0 || !row.ticked) return {};
            return *row.ticked ? Qt::Checked : Qt::Unchecked;
        case Qt::ForegroundRole:
            return ColourOf(index);
        case Qt::FontRole: {
            // Colour alone would not tell every eye what stays out.
            QFont font;
            font.setStrikeOut(row.ticked && !*row.ticked);
            return font.strikeOut() ? QVariant(font) : QVariant();
        }
        case Qt::TextAlignmentRole:
            return AlignmentOf(index.column());
        case Qt::ToolTipRole:
            return row.tip.isEmpty() ? row.cells.value(index.column()) : row.tip;
        default:
            return {};
    }
}

bool RowTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !index.isValid()) return false;
    Q_EMIT ticked({index.row()}, value.toInt() == Qt::Checked);
    return true;
}

QVariant RowTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        if (section >= rowCount()) return {};
        return role == Qt::DisplayRole ? QVariant(Row(section).number) : QVariant();
    }
    if (role == Qt::DisplayRole) return headings_.value(section);
    if (role == Qt::ToolTipRole) return headings_.value(section);
    return {};
}

Qt::ItemFlags RowTableModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool hasBox = index.isValid() && index.column() == 0 && Row(index.row()).ticked;
    if (hasBox) flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool RowTableModel::IsFaint(const QModelIndex& index) const {
    const ShownRow& row = Row(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    return row.faint || (row.ticked && !*row.ticked) ||
           (column < faintColumns_.size() && faintColumns_[column]);
}

QVariant RowTableModel::ColourOf(const QModelIndex& index) const {
    if (IsFaint(index)) return faint_;
    return index.column() == extraColumn_ ? QVariant(extra_) : QVariant();
}

QVariant RowTableModel::AlignmentOf(int column) const {
    const bool left = std::ranges::find(leftAligned_, column) != leftAligned_.end();
    return QVariant::fromValue((left ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
}
