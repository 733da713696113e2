// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/RowTable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "databases/RowTableModel.h"
#include "platform/widgets/Contrast.h"
#include "platform/widgets/GridLooks.h"
#include "platform/widgets/NumberColours.h"
#include "platform/widgets/TableCopy.h"
#include "platform/widgets/WindowShade.h"

namespace {

constexpr int rowAir = 8;
constexpr int cellAir = 16;
constexpr double readable = 4.6;

void AddRow(QString& text, const QStringList& cells, const QString& number) {
    text += number;
    text += QLatin1Char('\t');
    text += cells.join(QLatin1Char('\t'));
    text += QLatin1Char('\n');
}

}  // namespace

RowTable::RowTable(QWidget* parent)
    : QTableView(parent),
      model_(new RowTableModel(this)),
      shade_(new WindowShade(*this, [this] { TakeColours(); })) {
    setModel(model_);
    TakeColours();
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowAir);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    horizontalHeader()->setHighlightSections(false);
    AddCopyMenu(*this, [this] { CopySelection(); });
    connect(model_, &RowTableModel::ticked, this, &RowTable::ticked);
}

// The colours of grids, and of those what can be read on their ground.
void RowTable::TakeColours() {
    setPalette(GridPalette(shade_->IsDark()));
    // The shade may have looked again at that.
    const QColor ground = palette().color(QPalette::AlternateBase);
    model_->SetColours(StandingOut(QColor(Qt::gray), ground, readable),
                       StandingOut(ExtraBallColour(), ground, readable));
}

// Rows that are shown anew after a small change stay where they were.
void RowTable::ShowRows(const QStringList& headings, std::vector<ShownRow> rows) {
    const int scrolled = verticalScrollBar()->value();
    const int across = horizontalScrollBar()->value();
    QModelIndexList marked = selectionModel()->selectedRows();
    std::sort(marked.begin(), marked.end());
    const QModelIndex current = currentIndex();
    const bool similar = headings == model_->Headings();
    model_->Show(headings, std::move(rows));
    if (!similar) return;
    MarkRows(marked, current);
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(scrolled);
    horizontalScrollBar()->setValue(across);
}

void RowTable::MarkRows(const QModelIndexList& rows, const QModelIndex& current) {
    QItemSelection selection;
    for (const QModelIndex& index : rows) {
        const QModelIndex now = model_->index(index.row(), 0);
        if (now.isValid()) selection.select(now, now);
    }
    selectionModel()->setCurrentIndex(model_->index(current.row(), current.column()),
                                      QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

int RowTable::RowCount() const { return model_->rowCount(); }

const ShownRow& RowTable::Row(int row) const { return model_->Row(row); }

void RowTable::SetExtraColumn(int column) { model_->SetExtraColumn(column); }

void RowTable::SetLeftAligned(const std::vector<int>& columns) { model_->SetLeftAligned(columns); }

void RowTable::SetFaintColumns(const std::vector<bool>& columns) {
    model_->SetFaintColumns(columns);
}

void RowTable::FitColumns(int fewest, int most) {
    constexpr int rowsLookedAt = 100;
    const QFontMetrics metrics = fontMetrics();
    const int widest = most * metrics.averageCharWidth();
    for (int column = 0; column < model_->columnCount(); ++column) {
        int width = std::max(fewest * metrics.averageCharWidth(),
                             metrics.horizontalAdvance(model_->Headings().value(column)));
        for (int row = 0; row < std::min(RowCount(), rowsLookedAt); ++row) {
            width = std::max(width, metrics.horizontalAdvance(Row(row).cells.value(column)));
        }
        const bool hasBoxes = column == 0 && RowCount() > 0 && Row(0).ticked;
        setColumnWidth(column, std::min(width, widest) + cellAir + (hasBoxes ? 2 * cellAir : 0));
    }
}

void RowTable::StretchColumnsFrom(int column) {
    for (int stretched = column; stretched < model_->columnCount(); ++stretched) {
        horizontalHeader()->setSectionResizeMode(stretched, QHeaderView::Stretch);
    }
}

QString RowTable::AllAsText() const {
    QString text;
    AddRow(text, model_->Headings(), tr("Row"));
    for (int row = 0; row < RowCount(); ++row) {
        AddRow(text, Row(row).cells, QString::number(Row(row).number));
    }
    return text;
}

void RowTable::CopySelection() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty()) return;
    std::sort(rows.begin(), rows.end());
    QString text;
    AddRow(text, model_->Headings(), tr("Row"));
    for (const QModelIndex& index : std::as_const(rows)) {
        const ShownRow& row = Row(index.row());
        AddRow(text, row.cells, QString::number(row.number));
    }
    QGuiApplication::clipboard()->setText(text);
}

void RowTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        CopySelection();
    } else if (event->key() == Qt::Key_Space) {
        TurnTicks();
    } else {
        QTableView::keyPressEvent(event);
    }
}

// All chosen rows get the same tick, the opposite of that of the first.
void RowTable::TurnTicks() {
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty() || !Row(rows.first().row()).ticked) return;
    const bool on = !*Row(rows.first().row()).ticked;
    std::vector<int> turned;
    for (const QModelIndex& index : rows) turned.push_back(index.row());
    Q_EMIT ticked(turned, on);
}
