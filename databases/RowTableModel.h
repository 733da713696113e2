// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QFont>
#include <vector>

#include "databases/RowTable.h"

/// The rows of an `RowTable`.
class RowTableModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    using QAbstractTableModel::QAbstractTableModel;

    void Show(const QStringList& headings, std::vector<ShownRow> rows);
    const ShownRow& Row(int row) const { return rows_.at(static_cast<std::size_t>(row)); }
    const QStringList& Headings() const { return headings_; }

    void SetExtraColumn(int column) { extraColumn_ = column; }
    void SetLeftAligned(const std::vector<int>& columns) { leftAligned_ = columns; }
    void SetFaintColumns(const std::vector<bool>& columns);
    void SetColours(const QColor& faint, const QColor& extra);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  Q_SIGNALS:
    void ticked(const std::vector<int>& rows, bool on);

  private:
    bool IsFaint(const QModelIndex& index) const;
    QVariant ColourOf(const QModelIndex& index) const;
    QVariant AlignmentOf(int column) const;

    QStringList headings_;
    std::vector<ShownRow> rows_;
    std::vector<int> leftAligned_;
    std::vector<bool> faintColumns_;
    int extraColumn_ = -1;
    QColor faint_;
    QColor extra_;
};
