// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/SaidLine.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>

namespace {

/// Keys that lead to a control or wait for another key, but do nothing yet.
bool OnlyLeads(int key) {
    switch (key) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
            return true;
        default:
            return false;
    }
}

/// Whether the widget is only told of a key because the one with the focus had no use for it. That
/// one may have acted all the same, as a text box does on Enter.
bool IsPassedOn(const QWidget& widget) {
    const QWidget* focus = widget.window()->focusWidget();
    return &widget != focus && widget.isAncestorOf(focus);
}

/// Whether the event is the start of an action: a press of a mouse button on a control, or of a
/// key, be it the key of a control or of a shortcut.
bool Acts(const QWidget& widget, const QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            return widget.focusPolicy() != Qt::NoFocus || widget.focusProxy() != nullptr;
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
            return !OnlyLeads(static_cast<const QKeyEvent&>(event).key()) && !IsPassedOn(widget);
        default:
            return false;
    }
}

}  // namespace

SaidLine::SaidLine(QWidget* parent) : ElidingLabel(parent) {
    setObjectName(QStringLiteral("Said"));
}

void SaidLine::Say(const QString& text) {
    setText(text);
    if (text.isEmpty()) return;
    QCoreApplication::instance()->installEventFilter(this);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool SaidLine::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr && widget->window() == window() && Acts(*widget, *event)) {
        QCoreApplication::instance()->removeEventFilter(this);
        clear();
    }
    return false;
}
