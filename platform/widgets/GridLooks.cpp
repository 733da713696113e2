// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/GridLooks.h"

#include <QPainter>

#include "platform/widgets/Contrast.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Readable.h"
#include "platform/widgets/WindowShade.h"

namespace {

constexpr int frameWidth = 2;
constexpr int markedShade = 112;
constexpr double readableContrast = 4.5;

bool IsLight(const QColor& colour) { return qGray(colour.rgb()) >= 128; }

QColor Mixed(const QColor& first, const QColor& second) {
    return QColor((first.red() + second.red()) / 2, (first.green() + second.green()) / 2,
                  (first.blue() + second.blue()) / 2);
}

}  // namespace

QPalette GridPalette(bool dark) {
    const QColor text = dark ? QColor(0xe8, 0xea, 0xed) : QColor(0x1f, 0x23, 0x28);
    const QColor heading = dark ? QColor(0x33, 0x36, 0x3a) : QColor(0xf3, 0xf4, 0xf6);
    QPalette palette(heading, heading);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::Base, dark ? QColor(0x1e, 0x20, 0x23) : QColor(Qt::white));
    palette.setColor(QPalette::AlternateBase,
                     dark ? QColor(0x24, 0x26, 0x2a) : QColor(0xf8, 0xf9, 0xfb));
    palette.setColor(QPalette::Highlight,
                     dark ? QColor(0x26, 0x4a, 0x70) : QColor(0xcf, 0xe3, 0xf7));
    palette.setColor(QPalette::HighlightedText, text);
    return palette;
}

void PaintMatchRing(QPainter& painter, const QRect& cell, const QString& text, const QColor& ink) {
    constexpr int air = 5;  // between the text and the ring
    const int height = cell.height() - 4;
    const int width = qMax(height, painter.fontMetrics().horizontalAdvance(text) + 2 * air);
    QRect ring(0, 0, qMin(width, cell.width() - 4), height);
    ring.moveCenter(cell.center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1.5));
    painter.drawRoundedRect(ring, height / 2.0, height / 2.0);
}

GridDelegate::GridDelegate(const Grid& grid, QObject* parent)
    : QStyledItemDelegate(parent), grid_(grid) {}

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = Readable(option->text);
    const int row = index.row() + 1;
    if (!grid_.InUse(row, index.column())) option->backgroundBrush = grid_.UnusedColour();
    const QColor background = grid_.CellBackground(row, index.column());
    if (background.isValid() && background != Qt::white) {
        option->palette.setColor(QPalette::Highlight, background.darker(markedShade));
    } else if (background.isValid() && grid_.IsDark()) {
        option->backgroundBrush = Qt::NoBrush;
    }
    ColourText(*option, index);
    if (grid_.CellMatch(row, index.column()) != Match::None) option->font.setBold(true);
}

void GridDelegate::ColourText(QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int row = index.row() + 1;
    QColor colour = grid_.CellColour(row, index.column());
    if (grid_.IsDark()) {
        const QColor background = grid_.CellBackground(row, index.column());
        const bool onColour = background.isValid() && background != Qt::white;
        if (onColour && IsLight(background)) {
            if (!colour.isValid()) colour = GridPalette(false).color(QPalette::Text);
        } else if (colour.isValid()) {
            colour = OnDark(colour);
        }
    }
    if (!colour.isValid()) return;
    option.palette.setColor(QPalette::Text, colour);
    option.palette.setColor(
        QPalette::HighlightedText,
        StandingOut(colour, option.palette.color(QPalette::Highlight), readableContrast));
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    painter->save();
    PaintFrames(*painter, option, index);
    painter->restore();
}

// Marked cells side by side share one frame.
void GridDelegate::PaintFrames(QPainter& painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QColor ink = cell.palette.color(QPalette::Text);
    const QRect area = option.rect;
    if (grid_.CellMatch(index.row() + 1, index.column()) == Match::Extra) {
        painter.setFont(cell.font);
        PaintMatchRing(painter, area, cell.text, ink);
    }
    const auto marked = [&](int rows, int columns) {
        return grid_.selectionModel()->isSelected(
            index.sibling(index.row() + rows, index.column() + columns));
    };
    const bool edited = grid_.ShowsEditedCell() && index == grid_.currentIndex();
    const bool here = marked(0, 0);
    if (!edited && !here) return;
    const QColor line = grid_.palette().color(QPalette::Text);
    const auto side = [&](bool drawn, int x, int y, int width, int height) {
        if (drawn)
            painter.fillRect(QRect(area.topLeft() + QPoint(x, y), QSize(width, height)), line);
    };
    const int right = area.width() - frameWidth;
    const int bottom = area.height() - frameWidth;
    side(edited || !marked(-1, 0), 0, 0, area.width(), frameWidth);
    side(edited || !marked(1, 0), 0, bottom, area.width(), frameWidth);
    side(edited || !marked(0, -1), 0, 0, frameWidth, area.height());
    side(edited || !marked(0, 1), right, 0, frameWidth, area.height());
}

GridHeader::GridHeader(Grid& grid) : QHeaderView(Qt::Horizontal, &grid), grid_(grid) {}

void GridHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int column) const {
    QHeaderView::initStyleOptionForIndex(option, column);
    const bool edited = grid_.ShowsEditedCell() && grid_.currentIndex().column() == column;
    option->state.setFlag(QStyle::State_On, edited);
    QColor colour = grid_.CellColour(0, column);
    if (!colour.isValid()) colour = palette().color(QPalette::ButtonText);
    if (grid_.IsDark()) colour = OnDark(colour);
    if (!grid_.ColumnInUse(column)) colour = Mixed(colour, palette().color(QPalette::Button));
    option->palette.setColor(QPalette::ButtonText, colour);
}
