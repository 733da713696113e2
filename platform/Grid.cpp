// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Grid.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTimer>
#include <algorithm>
#include <numeric>
#include <string>

#include "core/failure.h"

/// The texts and colours of a grid, headings included. Changes are told to the view together, once
/// the handler that makes them is done, so that filling thousands of rows costs one repaint.
class GridModel final : public QAbstractTableModel {
  public:
    GridModel(int rowCount, int columnCount, QObject* parent)
        : QAbstractTableModel(parent), rows_(rowCount), columns_(columnCount) {
        cells_.resize(Count());
    }

    int GridRows() const { return rows_; }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : std::max(rows_ - 1, 0);
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : columns_;
    }
    QVariant data(const QModelIndex& index, int role) const override {
        return index.isValid() ? Answer(At(index.row() + 1, index.column()), role) : QVariant();
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal || section < 0 || section >= columns_) return {};
        return Answer(At(0, section), role);
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

    static QVariant Answer(const Cell& cell, int role) {
        switch (role) {
            case Qt::DisplayRole:
                return cell.text;
            case Qt::ForegroundRole:
                return AsRole(cell.colour);
            case Qt::BackgroundRole:
                return AsRole(cell.background);
            case Qt::TextAlignmentRole:
                return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
            default:
                return {};
        }
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
    QRect changed_;  // x is the column, y the row
};

namespace {

constexpr int twips90 = 6;  // at 15 twips a pixel
constexpr int markedShade = 112;

/// Keeps a cell's own colours while the cell is marked.
class GridDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto colour = index.data(Qt::ForegroundRole).value<QColor>();
        if (colour.isValid()) option->palette.setColor(QPalette::HighlightedText, colour);
        const auto background = index.data(Qt::BackgroundRole).value<QColor>();
        if (background.isValid() && background != Qt::white) {
            option->palette.setColor(QPalette::Highlight, background.darker(markedShade));
        }
    }
};

/// The colours of the cells are made for white, whatever the desktop's theme.
QPalette LightPalette() {
    const QColor text(0x1f, 0x23, 0x28);
    QPalette palette(QColor(0xf3, 0xf4, 0xf6), QColor(0xf3, 0xf4, 0xf6));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf8, 0xf9, 0xfb));
    palette.setColor(QPalette::Highlight, QColor(0xcf, 0xe3, 0xf7));
    palette.setColor(QPalette::HighlightedText, text);
    return palette;
}

}  // namespace

Grid::Grid(int rowCount, int columnCount, QWidget* parent)
    : QTableView(parent), model_(new GridModel(rowCount, columnCount, this)) {
    setModel(model_);
    setItemDelegate(new GridDelegate(this));
    SetUpView();
    SizeColumns();
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        Q_EMIT cellClicked(index.row() + 1, index.column());
    });
}

void Grid::SetUpView() {
    setPalette(LightPalette());
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerItem);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
}

int Grid::RowCount() const { return model_->GridRows(); }

int Grid::ColumnCount() const { return model_->columnCount(); }

void Grid::SetRowCount(int rowCount) { model_->SetRows(rowCount); }

QString Grid::Cell(int row, int column) const { return model_->Text(row, column); }

void Grid::SetCell(int row, int column, const QString& text) { model_->SetText(row, column, text); }

void Grid::SetCellColour(int row, int column, const QColor& colour) {
    model_->SetColour(row, column, colour);
}

QColor Grid::CellColour(int row, int column) const { return model_->TextColour(row, column); }

void Grid::SetCellBackground(int row, int column, const QColor& colour) {
    model_->SetBackground(row, column, colour);
}

QColor Grid::CellBackground(int row, int column) const { return model_->Background(row, column); }

void Grid::ClearCells() { model_->Clear(); }

void Grid::SizeColumns() {
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("00000000")) + 2 * margin + 1;
    const std::vector<int> widths(static_cast<std::size_t>(ColumnCount()), width);
    SetColumnWidths(widths);
}

void Grid::SetColumnWidths(const std::vector<int>& widths) {
    for (int column = 0; column < ColumnCount() && column < std::ssize(widths); ++column) {
        const int width = widths[static_cast<std::size_t>(column)];
        setColumnHidden(column, width == 0);
        if (width > 0) setColumnWidth(column, width);
    }
    FitWidth();
}

void Grid::FitWidth() {
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    setFixedWidth(horizontalHeader()->length() + scrollBar + twips90 + 2 * frameWidth());
}

void Grid::SetParkingRow(int row) { parkingRow_ = row; }

int Grid::CurrentRow() const {
    return currentIndex().isValid() ? currentIndex().row() + 1 : parkingRow_;
}

QModelIndex Grid::IndexOf(int row, int column) const {
    static_cast<void>(model_->Text(row, column));  // a cell outside the grid is a failure
    return model_->index(row - 1, column);
}

void Grid::SetCurrentCell(int row, int column) {
    const QModelIndex index = row == parkingRow_ ? QModelIndex() : IndexOf(row, column);
    selectionModel()->clear();
    if (index.isValid()) selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void Grid::MarkRow(int row) {
    SetCurrentCell(row, ColumnCount() - 1);
    if (row == parkingRow_ || row == 0) return;
    selectionModel()->select(currentIndex(),
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void Grid::ScrollToTop() { scrollToTop(); }

void Grid::SetTopRow(int row) {
    static_cast<void>(IndexOf(row, 0));  // a row outside the grid is a failure
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(row - 1);
}

void Grid::ScrollToRow(int row) {
    const QModelIndex index = IndexOf(row, 0);
    executeDelayedItemsLayout();  // the rows may be new
    if (index.isValid()) scrollTo(index, EnsureVisible);
}

void Grid::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        CopySelection();
        return;
    }
    const QPersistentModelIndex before = currentIndex();
    QTableView::keyPressEvent(event);
    const QModelIndex now = currentIndex();
    if (now.isValid() && now != before) Q_EMIT cellClicked(now.row() + 1, now.column());
}

// Qt would make the first cell current, which takes a row out of its parking place.
void Grid::focusInEvent(QFocusEvent* event) {
    const bool nothingCurrent = !currentIndex().isValid();
    QTableView::focusInEvent(event);
    if (nothingCurrent) selectionModel()->clearCurrentIndex();
}

void Grid::CopySelection() const {
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty()) return;
    const QItemSelectionRange& range = selection.first();
    QString text;
    const auto addRow = [&](int row) {
        QStringList cells;
        for (int column = range.left(); column <= range.right(); ++column) {
            if (!isColumnHidden(column)) cells += Cell(row, column);
        }
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    };
    addRow(0);
    for (int row = range.top() + 1; row <= range.bottom() + 1; ++row) addRow(row);
    QGuiApplication::clipboard()->setText(text);
}
