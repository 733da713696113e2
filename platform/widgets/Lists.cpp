// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Lists.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <string>
#include <utility>

#include "core/failure.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Readable.h"

namespace {

void CheckEntry(const QObject& list, int index, int count) {
    if (index >= -1 && index < count) return;
    throw Failure("list " + FromQString(list.objectName()) + ": entry " + std::to_string(index) +
                  " was asked for, but the list has " + std::to_string(count) +
                  " entries, counted from 0");
}

/// Rows with some air, as wide as the list: no bar to move them sideways takes the last one's room.
class RowDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        constexpr int air = 8;
        return {0, option.fontMetrics.height() + air};
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text = Readable(option->text);
    }
};

}  // namespace

ListBox::ListBox(QWidget* parent) : QListWidget(parent) {
    setItemDelegate(new RowDelegate(this));
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ListBox::FollowSelection);
}

int ListBox::Index() const {
    const auto rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void ListBox::SetIndex(int index) {
    CheckEntry(*this, index, count());
    if (index >= 0) {
        setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
        return;
    }
    selectionModel()->clear();
}

void ListBox::FollowSelection() {
    const QModelIndex now = model()->index(Index(), 0);
    if (now == chosen_) return;
    chosen_ = now;
    if (!now.isValid()) return;
    changedByThisPress_ = true;
    Q_EMIT clicked();
}

bool ListBox::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QListWidget::viewportEvent(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QModelIndex index = indexAt(help.pos());
    const QString tip = index.isValid() ? TipOf(index) : QString();
    QToolTip::showText(help.globalPos(), PlainTip(tip), viewport(), visualRect(index));
    return true;
}

QString ListBox::TipOf(const QModelIndex& index) const {
    if (tips_) return tips_(index.row());
    const QString text = Readable(index.data().toString());
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    const bool cut = fontMetrics().horizontalAdvance(text) + margin > visualRect(index).width();
    return cut ? text : QString();
}

void ListBox::mousePressEvent(QMouseEvent* event) {
    changedByThisPress_ = false;
    pressed_ = indexAt(event->position().toPoint());
    QListWidget::mousePressEvent(event);
}

void ListBox::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    const QModelIndex released = indexAt(event->position().toPoint());
    const bool onChosen = released.isValid() && released == pressed_ && released == chosen_;
    const bool again = event->button() == Qt::LeftButton && onChosen && !changedByThisPress_;
    pressed_ = QModelIndex();
    if (again) Q_EMIT clicked();
}

// The second press of a double click belongs to the click that was already told.
void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    changedByThisPress_ = true;
    QListWidget::mouseDoubleClickEvent(event);
}

// Qt makes the first entry current when an untouched list gets the focus; the arrow keys would then
// start at the second.
void ListBox::focusInEvent(QFocusEvent* event) {
    const bool nothingCurrent = !currentIndex().isValid();
    QListWidget::focusInEvent(event);
    if (nothingCurrent) selectionModel()->clearCurrentIndex();
}

// Without this the neighbour of a removed entry would be chosen.
void ListBox::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
    if (Index() >= first && Index() <= last) SetIndex(-1);
    QListWidget::rowsAboutToBeRemoved(parent, first, last);
}

// Ctrl neither takes a choice away nor moves without choosing.
QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index,
                                                              const QEvent*) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

ComboList::ComboList(QWidget* parent) : QComboBox(parent) {
    // With a text for "nothing chosen", even a blank one, the first entry added is not chosen.
    setPlaceholderText(QStringLiteral(" "));
    connect(this, &QComboBox::currentIndexChanged, this, &ComboList::FollowIndex);
    connect(this, &QComboBox::activated, this, [this](int index) {
        const bool again = index == indexAtPopup_;
        indexAtPopup_ = -1;
        if (again) Q_EMIT clicked();
    });
    connect(model(), &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex&, int first, int last) {
                removingChosen_ = Index() >= first && Index() <= last;
            });
    connect(model(), &QAbstractItemModel::rowsRemoved, this, [this] {
        if (std::exchange(removingChosen_, false)) SetIndex(-1);
    });
}

void ComboList::SetIndex(int index) {
    CheckEntry(*this, index, count());
    setCurrentIndex(index);
}

void ComboList::showPopup() {
    indexAtPopup_ = Index();
    QComboBox::showPopup();
}

void ComboList::FollowIndex(int index) {
    const QModelIndex now = model()->index(index, modelColumn());
    // Qt moves on to the neighbour of an entry that is removed.
    if (now == chosen_ || removingChosen_) return;
    chosen_ = now;
    indexAtPopup_ = -1;
    if (now.isValid()) Q_EMIT clicked();
}
