// SPDX-License-Identifier: GPL-3.0-or-later
// How a grid is painted: what its cells and headings look like beyond their texts.
#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>

class Grid;

/// Paints the ring around a matched bonus or extra ball into its cell, as wide as its text needs.
void PaintMatchRing(QPainter& painter, const QRect& cell, const QString& text, const QColor& ink);

/// The colours of a grid's own texts, backgrounds and lines, light or dark as its window is.
QPalette GridPalette(bool dark);

/// Paints the cells: own colours also while marked, what the form does not use in the window's
/// colour, a frame around the marked rows and around the cell that is edited, matches in bold and
/// those of the bonus or extra ball with a ring.
class GridDelegate final : public QStyledItemDelegate {
  public:
    explicit GridDelegate(const Grid& grid, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    void ColourText(QStyleOptionViewItem& option, const QModelIndex& index) const;
    void PaintFrames(QPainter& painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const;

    const Grid& grid_;
};

/// Paints the headings: that of the column being edited bold, those of unused columns dimmed.
class GridHeader final : public QHeaderView {
  public:
    explicit GridHeader(Grid& grid);

  protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int column) const override;

  private:
    const Grid& grid_;
};
