// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/LinkLabel.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>

namespace {

class AccessibleLink final : public QAccessibleWidget {
  public:
    explicit AccessibleLink(LinkLabel& label)
        : QAccessibleWidget(&label, QAccessible::Link), label_(label) {}

    QString text(QAccessible::Text kind) const override {
        const QString told = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && told.isEmpty() ? label_.text() : told;
    }

    QStringList actionNames() const override { return {pressAction()}; }

    void doAction(const QString& action) override {
        if (action == pressAction()) Q_EMIT label_.clicked();
    }

  private:
    LinkLabel& label_;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    auto* label = qobject_cast<LinkLabel*>(object);
    return label == nullptr ? nullptr : new AccessibleLink(*label);
}

}  // namespace

LinkLabel::LinkLabel(const QString& name, const QString& address) {
    static const bool spoken = [] {
        QAccessible::installFactory(MakeAccessible);
        return true;
    }();
    Q_UNUSED(spoken)
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setText(address);
    setForegroundRole(QPalette::Link);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            Q_EMIT clicked();
            break;
        default:
            ClickableLabel::keyPressEvent(event);
    }
}

void LinkLabel::focusInEvent(QFocusEvent* event) {
    ClickableLabel::focusInEvent(event);
    update();
}

void LinkLabel::focusOutEvent(QFocusEvent* event) {
    ClickableLabel::focusOutEvent(event);
    update();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    ClickableLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
