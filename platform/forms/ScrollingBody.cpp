// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ScrollingBody.h"

#include <QApplication>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

/// A scroll area asks for the height that its content would like, which is too much here: lists,
/// grids and charts become as low as they can first.
class ShrinkingContent final : public QWidget {
  public:
    int heightForWidth(int width) const override { return layout()->minimumHeightForWidth(width); }
};

/// Takes the row in which the widget stands out of the layout; null where it stands in none.
QLayout* TakeRowOf(QLayout& layout, const QWidget& widget) {
    for (int i = 0; i < layout.count(); ++i) {
        QLayout* inner = layout.itemAt(i)->layout();
        if (inner == nullptr) continue;
        if (inner->indexOf(&widget) >= 0) {
            layout.takeAt(i);
            return inner;
        }
        if (QLayout* row = TakeRowOf(*inner, widget)) return row;
    }
    return nullptr;
}

}  // namespace

ScrollingBody::ScrollingBody(QWidget* parent) : QScrollArea(parent) {
    setWidget(new ShrinkingContent);
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    for (QWidget* layer : std::initializer_list<QWidget*>{this, viewport(), widget()}) {
        layer->setAutoFillBackground(false);
        layer->setMouseTracking(true);
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
        // What is clicked must not move away below the mouse.
        if (QApplication::mouseButtons() != Qt::NoButton) return;
        if (now != nullptr && widget()->isAncestorOf(now)) BringIntoSight(*now);
    });
}

QSize ScrollingBody::sizeHint() const {
    return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(), 0);
}

// Of what is larger than the body its beginning.
void ScrollingBody::BringIntoSight(const QWidget& control) {
    constexpr int air = 12;
    const QRect place(control.mapTo(widget(), QPoint()), control.size());
    ensureVisible(place.right(), place.bottom(), air, air);
    ensureVisible(place.left(), place.top(), air, air);
}

void LetScroll(QWidget& window, const QWidget* anchor) {
    QLayout* layout = window.layout();
    QWidget* focus = window.focusWidget();  // loses the focus when it moves
    QLayout* row = anchor == nullptr ? nullptr : TakeRowOf(*layout, *anchor);
    auto* body = new ScrollingBody(&window);
    body->Content().setLayout(layout);
    auto* outer = new QVBoxLayout(&window);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->addWidget(body, 1);
    if (focus != nullptr) focus->setFocus();
    if (row == nullptr) return;
    QMargins margins = layout->contentsMargins();
    row->setContentsMargins(margins.left(), layout->spacing(), margins.right(), margins.bottom());
    outer->addLayout(row);
    margins.setBottom(0);
    layout->setContentsMargins(margins);
}
