// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/NumberLabel.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

const QColor paleRed(255, 192, 192);
const QColor edge(0x90, 0x90, 0x90);  // is seen around black on dark and around pale red on light
constexpr int ring = 2;
constexpr int radius = 4;
constexpr int air = 9;

/// A screen reader meets a box that can be ticked.
class AccessibleNumber final : public QAccessibleWidget {
  public:
    explicit AccessibleNumber(NumberLabel& label)
        : QAccessibleWidget(&label, QAccessible::CheckBox), label_(label) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = label_.IsSelected();
        return state;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? label_.text() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override { return {toggleAction()}; }

    void doAction(const QString& action) override {
        if (action == toggleAction()) label_.SetSelected(!label_.IsSelected());
    }

  private:
    NumberLabel& label_;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    auto* label = qobject_cast<NumberLabel*>(object);
    return label == nullptr ? nullptr : new AccessibleNumber(*label);
}

QPalette Colours(bool selected) {
    QPalette palette;
    palette.setColor(QPalette::Window, selected ? QColor(Qt::black) : paleRed);
    palette.setColor(QPalette::WindowText, selected ? Qt::white : Qt::black);
    return palette;
}

}  // namespace

NumberLabel::NumberLabel(int number, QWidget* parent)
    : QLabel(QString::number(number), parent), number_(number) {
    static const bool spoken = [] {
        QAccessible::installFactory(&MakeAccessible);
        return true;
    }();
    Q_UNUSED(spoken)
    setAlignment(Qt::AlignCenter);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::ClickFocus);
    setMinimumSize(fontMetrics().horizontalAdvance(QStringLiteral("00")) + 2 * air,
                   fontMetrics().height() + air);
    setPalette(Colours(false));
}

void NumberLabel::SetSelected(bool selected) {
    if (selected == selected_) return;
    selected_ = selected;
    setPalette(Colours(selected));
    QAccessible::State told;
    told.checked = true;
    QAccessibleStateChangeEvent event(this, told);
    QAccessible::updateAccessibility(&event);
    Q_EMIT changed();
}

void NumberLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) return QLabel::keyPressEvent(event);
    if (!event->isAutoRepeat()) SetSelected(!selected_);
}

void NumberLabel::mouseReleaseEvent(QMouseEvent* event) {
    const bool inside = rect().contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton && inside) SetSelected(!selected_);
}

void NumberLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(palette().color(QPalette::Window));
    const QRectF face = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(face, radius, radius);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (!hasFocus()) return;
    painter.setPen(QPen(palette().color(QPalette::WindowText), ring));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(face.adjusted(ring, ring, -ring, -ring), radius - 1, radius - 1);
}
