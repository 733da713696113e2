// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/InputDropper.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

void InputDropper::Run(const QWidget& spared) {
    InputDropper dropper(spared);
    QCoreApplication::instance()->installEventFilter(&dropper);
    QCoreApplication::processEvents();
}

bool InputDropper::eventFilter(QObject* watched, QEvent* event) {
    // Windows hand their events on to widgets; only there is it known what was meant.
    if (!watched->isWidgetType() || watched == &spared_) return false;
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Shortcut:
        case QEvent::Wheel:
            return true;
        default:
            return false;
    }
}
