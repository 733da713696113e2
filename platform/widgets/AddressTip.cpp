// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/AddressTip.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

#include "platform/widgets/Readable.h"

namespace {

/// The address, where it is more than the beginning of one.
QString Shown(const QString& address) {
    const QString shown = address.trimmed();
    return shown == QLatin1String("http://") ? QString() : shown;
}

}  // namespace

QString TipWithAddress(const QString& words, const QString& address) {
    const QString shown = Shown(address);
    if (shown.isEmpty()) return words;
    const QString tip = words.isEmpty() ? shown : words % QLatin1Char('\n') % shown;
    return PlainTip(tip);
}

AddressTip::AddressTip(QWidget* opener) : QObject(opener), opener_(*opener) {
    opener_.installEventFilter(this);
}

void AddressTip::SetAddress(const QString& address) {
    address_ = address;
    const QString words = opener_.toolTip().trimmed() % QLatin1Char(' ') % Shown(address);
    opener_.setAccessibleDescription(words.trimmed());
}

bool AddressTip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QObject::eventFilter(watched, event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       TipWithAddress(opener_.toolTip(), address_), &opener_);
    return true;
}
