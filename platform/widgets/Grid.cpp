// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Grid.h"

#include <QClipboard>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "platform/widgets/GridLooks.h"
#include "platform/widgets/GridModel.h"
#include "platform/widgets/TableCopy.h"
#include "platform/widgets/WindowShade.h"

namespace {

constexpr int twips90 = 6;  // at 15 twips a pixel; room for the frame

}  // namespace

Grid::Grid(int rowCount, int columnCount, QWidget* parent)
    : QTableView(parent),
      model_(new GridModel(rowCount, columnCount, this)),
      shade_(new WindowShade(*this, [this] { setPalette(GridPalette(IsDark())); })) {
    setHorizontalHeader(new GridHeader(*this));
    setModel(model_);
    setItemDelegate(new GridDelegate(*this, this));
    SetUpView();
    BuildMenu();
    SizeColumns();
    connect(this, &QAbstractItemView::clicked, this, &Grid::TellOfCell);
}

void Grid::SetUpView() {
    setPalette(GridPalette(false));
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

void Grid::BuildMenu() {
    AddCopyMenu(*this, [this] { CopySelection(); });
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

void Grid::SetCellMatch(int row, int column, Match match) { model_->SetMatch(row, column, match); }

Match Grid::CellMatch(int row, int column) const { return model_->MatchOf(row, column); }

void Grid::SetColumnAlignment(int column, Qt::Alignment alignment) {
    model_->SetAlignment(column, alignment);
}

void Grid::SetRowsInUse(int rows) {
    if (rowsInUse_ == rows) return;
    rowsInUse_ = rows;
    viewport()->update();
}

void Grid::SetColumnsOutOfUse(const std::vector<int>& columns) {
    if (columnsOutOfUse_ == columns) return;
    columnsOutOfUse_ = columns;
    viewport()->update();
    horizontalHeader()->viewport()->update();
}

bool Grid::InUse(int row, int column) const { return row <= rowsInUse_ && ColumnInUse(column); }

bool Grid::ColumnInUse(int column) const {
    return std::find(columnsOutOfUse_.begin(), columnsOutOfUse_.end(), column) ==
           columnsOutOfUse_.end();
}

void Grid::ShowEditedCell() {
    showsEditedCell_ = true;
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { horizontalHeader()->viewport()->update(); });
}

bool Grid::IsDark() const { return shade_->IsDark(); }

QColor Grid::UnusedColour() const {
    const QWidget* behind = parentWidget();
    return behind == nullptr ? palette().color(QPalette::Button)
                             : behind->palette().color(QPalette::Window);
}

void Grid::ClearCells() { model_->Clear(); }

void Grid::SizeColumns() {
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("00000000"));
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
    setFixedWidth(horizontalHeader()->length() + scrollBar + twips90);
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

int Grid::LastShownColumn() const {
    int column = ColumnCount() - 1;
    while (column > 0 && isColumnHidden(column)) --column;
    return column;
}

void Grid::MarkRow(int row) {
    SetCurrentCell(row, LastShownColumn());
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

void Grid::TellOfCell(const QModelIndex& index) {
    told_ = true;
    Q_EMIT cellClicked(index.row() + 1, index.column());
}

void Grid::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        CopySelection();
        return;
    }
    const QPersistentModelIndex before = currentIndex();
    QTableView::keyPressEvent(event);
    const QModelIndex now = currentIndex();
    if (now.isValid() && now != before) TellOfCell(now);
}

void Grid::mousePressEvent(QMouseEvent* event) {
    currentBeforePress_ = currentIndex();
    told_ = false;
    QTableView::mousePressEvent(event);
    if (event->button() == Qt::RightButton) TellOfMove();
}

// A drag and the other buttons make a cell current without a click on it; a menu that opens with
// the press takes the release away.
void Grid::TellOfMove() {
    const QModelIndex now = currentIndex();
    if (!told_ && now.isValid() && now != currentBeforePress_) TellOfCell(now);
}

void Grid::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    TellOfMove();
}

// Qt would make the first cell current, which takes a row out of its parking place.
void Grid::focusInEvent(QFocusEvent* event) {
    const bool nothingCurrent = !currentIndex().isValid();
    QTableView::focusInEvent(event);
    if (nothingCurrent) selectionModel()->clearCurrentIndex();
}

void Grid::paintEvent(QPaintEvent* event) {
    if (rowsInUse_ < RowCount()) {
        const QRect cells(-horizontalHeader()->offset(), -verticalHeader()->offset(),
                          horizontalHeader()->length(), verticalHeader()->length());
        QPainter painter(viewport());
        for (const QRect& room : QRegion(viewport()->rect()).subtracted(cells)) {
            painter.fillRect(room, UnusedColour());
        }
    }
    QTableView::paintEvent(event);
}

bool Grid::RowIsEmpty(int row) const {
    for (int column = 0; column < ColumnCount(); ++column) {
        if (!isColumnHidden(column) && !Cell(row, column).isEmpty()) return false;
    }
    return true;
}

void Grid::CopySelection() const {
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty()) return;
    const QItemSelectionRange& range = selection.first();
    int last = range.bottom() + 1;
    while (last > range.top() && RowIsEmpty(last)) --last;
    QString text;
    const auto addRow = [&](int row) {
        QStringList cells;
        for (int column = range.left(); column <= range.right(); ++column) {
            if (!isColumnHidden(column)) cells += Cell(row, column);
        }
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    };
    addRow(0);
    for (int row = range.top() + 1; row <= last; ++row) addRow(row);
    QGuiApplication::clipboard()->setText(text);
}
