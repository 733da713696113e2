// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/RoleHeader.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <algorithm>

#include "platform/widgets/Widgets.h"

namespace {

constexpr int margin = 3;
constexpr int narrowest = 8;  // characters of a choice

}  // namespace

RoleHeader::RoleHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setDefaultAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setSectionResizeMode(Fixed);
    setHighlightSections(false);
    connect(this, &QHeaderView::sectionResized, this, [this] { PlaceChoosers(); });
    connect(this, &QHeaderView::geometriesChanged, this, [this] { PlaceChoosers(); });
}

void RoleHeader::SetRoles(const QStringList& choices, const std::vector<int>& chosen) {
    const bool sameColumns = chosen.size() == choosers_.size() && !choosers_.empty() &&
                             choosers_.front()->count() == choices.size();
    if (!sameColumns) {
        for (QComboBox* chooser : choosers_) chooser->deleteLater();
        choosers_.clear();
    }
    for (std::size_t column = 0; column < chosen.size(); ++column) {
        if (!sameColumns) AddChooser(choices, chosen[column]);
        choosers_[column]->setCurrentIndex(chosen[column]);
    }
    updateGeometry();
    PlaceChoosers();
}

void RoleHeader::AddChooser(const QStringList& choices, int choice) {
    const int column = ChooserCount();
    auto* chooser = Named(new QComboBox(viewport()), Member(QStringLiteral("Role"), column));
    chooser->addItems(choices);
    chooser->setCurrentIndex(choice);
    chooser->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chooser->setMinimumContentsLength(narrowest);
    chooser->setFocusPolicy(Qt::StrongFocus);
    chooser->view()->setMinimumWidth(chooser->view()->sizeHintForColumn(0) + 2 * narrowest);
    chooser->setAccessibleName(tr("What column %1 is").arg(column + 1));
    chooser->setToolTip(tr("What stands in this column"));
    chooser->installEventFilter(this);
    QWidget* before = choosers_.empty() ? parentWidget() : choosers_.back();
    QWidget::setTabOrder(before, chooser);
    choosers_.push_back(chooser);
    connect(chooser, &QComboBox::activated, this,
            [this, column](int chosenNow) { Q_EMIT chosen(column, chosenNow); });
    chooser->show();
}

QSize RoleHeader::sizeHint() const {
    QSize size = QHeaderView::sizeHint();
    if (!choosers_.empty()) {
        size.rheight() += choosers_.front()->sizeHint().height() + 2 * margin;
    }
    return size;
}

void RoleHeader::PlaceChoosers() {
    for (int column = 0; column < std::min(ChooserCount(), count()); ++column) {
        QComboBox* chooser = Chooser(column);
        const int chooserHeight = chooser->sizeHint().height();
        chooser->setGeometry(sectionViewportPosition(column) + margin,
                             height() - chooserHeight - margin, sectionSize(column) - 2 * margin,
                             chooserHeight);
    }
}

void RoleHeader::resizeEvent(QResizeEvent* event) {
    QHeaderView::resizeEvent(event);
    PlaceChoosers();
}

// The wheel scrolls the table: it must not choose what a column is on its way.
bool RoleHeader::eventFilter(QObject* watched, QEvent* event) {
    const auto place = std::ranges::find(choosers_, watched);
    if (place == choosers_.end()) return QHeaderView::eventFilter(watched, event);
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::FocusIn) {
        BringIntoSight(static_cast<int>(place - choosers_.begin()));
    }
    return false;
}

void RoleHeader::BringIntoSight(int column) {
    auto* table = qobject_cast<QAbstractItemView*>(parentWidget());
    if (table == nullptr || table->model() == nullptr || table->model()->rowCount() == 0) return;
    const int row = std::max(0, table->indexAt({1, 1}).row());
    table->scrollTo(table->model()->index(row, column));
}
