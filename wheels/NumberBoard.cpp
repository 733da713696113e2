// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/NumberBoard.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <algorithm>

#include "platform/forms/FormLayout.h"
#include "platform/widgets/Widgets.h"
#include "wheels/NumberLabel.h"

namespace {

constexpr int columns = 10;

}  // namespace

NumberBoard::NumberBoard(const QString& array, int count, QWidget* parent) : QWidget(parent) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(3);
    for (int number = 1; number <= count; ++number) {
        auto* label = Named(new NumberLabel(number), Member(array, number));
        KeepPlaceWhenHidden(label);
        label->installEventFilter(this);
        connect(label, &NumberLabel::changed, this, &NumberBoard::changed);
        grid->addWidget(label, (number - 1) / columns, (number - 1) % columns);
        labels_.push_back(label);
    }
    MakeCurrent(1);
}

NumberLabel& NumberBoard::At(int number) const {
    return *labels_.at(static_cast<std::size_t>(number) - 1);
}

bool NumberBoard::IsSelected(int number) const { return At(number).IsSelected(); }

void NumberBoard::Select(int number, bool selected) { At(number).SetSelected(selected); }

int NumberBoard::SelectedCount() const {
    return static_cast<int>(std::ranges::count_if(labels_, &NumberLabel::IsSelected));
}

void NumberBoard::ShowUpTo(int highest) {
    for (NumberLabel* label : labels_) {
        const bool shown = label->Number() <= highest;
        label->setVisible(shown);
        if (!shown) label->SetSelected(false);
    }
    if (current_ > HighestShown()) MakeCurrent(1);
}

int NumberBoard::HighestShown() const {
    const auto last = std::ranges::find_if(labels_, &NumberLabel::isHidden);
    return static_cast<int>(last - labels_.begin());
}

// Where a key leads from a number; the number itself where nothing lies in that direction.
int NumberBoard::Target(int from, int key) const {
    const int highest = HighestShown();
    const auto step = [&](int by) {
        const int to = from + by;
        return to >= 1 && to <= highest ? to : from;
    };
    switch (key) {
        case Qt::Key_Left:
            return step(-1);
        case Qt::Key_Right:
            return step(1);
        case Qt::Key_Up:
            return step(-columns);
        case Qt::Key_Down:
            return step(columns);
        case Qt::Key_Home:
            return 1;
        case Qt::Key_End:
            return highest;
        default:
            return 0;
    }
}

void NumberBoard::MoveTo(int number) { At(number).setFocus(Qt::OtherFocusReason); }

// One stop for the Tab key, at the number where the user was last.
void NumberBoard::MakeCurrent(int number) {
    At(current_).setFocusPolicy(Qt::ClickFocus);
    current_ = number;
    At(current_).setFocusPolicy(Qt::StrongFocus);
}

bool NumberBoard::eventFilter(QObject* watched, QEvent* event) {
    auto* label = qobject_cast<NumberLabel*>(watched);
    if (label != nullptr && event->type() == QEvent::FocusIn) MakeCurrent(label->Number());
    if (label != nullptr && event->type() == QEvent::KeyPress) {
        const int to = Target(label->Number(), static_cast<QKeyEvent*>(event)->key());
        if (to != 0) MoveTo(to);
        return to != 0;
    }
    return QWidget::eventFilter(watched, event);
}
