// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QObject>

/// Counts events of one type that reach a control, and how many of them the hourglass saw.
class HourglassWatch final : public QObject {
  public:
    HourglassWatch(QObject& control, QEvent::Type type) : type_(type) {
        control.installEventFilter(this);
    }

    int Events() const { return events_; }
    int UnderHourglass() const { return underHourglass_; }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != type_) return false;
        ++events_;
        const QCursor* cursor = QGuiApplication::overrideCursor();
        if (cursor != nullptr && cursor->shape() == Qt::WaitCursor) ++underHourglass_;
        return false;
    }

  private:
    QEvent::Type type_;
    int events_ = 0;
    int underHourglass_ = 0;
};
