// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DatePicker.h"

#include <QScopedValueRollback>

#include "platform/Region.h"

DatePicker::DatePicker(const QString& format, Date today, QWidget* parent)
    : QDateEdit(parent),
      lastYear_(static_cast<int>(today.year()) + 20),
      twoDigits_(format.contains(QStringLiteral("yy")) &&
                 !format.contains(QStringLiteral("yyyy"))) {
    setCalendarPopup(true);
    setDisplayFormat(format);
    SetValue(today);
    // Qt completes two typed digits with the century of the date that was there before.
    connect(this, &QDateEdit::dateChanged, this, [this](const QDate& date) {
        if (typing_ && twoDigits_ && InWindow(date) != date) setDate(InWindow(date));
    });
}

Date DatePicker::Value() const { return FromQDate(date()); }

void DatePicker::SetValue(Date date) { setDate(ToQDate(date)); }

void DatePicker::stepBy(int steps) {
    const QScopedValueRollback<bool> stepping(typing_, false);
    const QDate before = date();
    QDateEdit::stepBy(steps);
    const bool leavesWindow = InWindow(before) == before && InWindow(date()) != date();
    if (twoDigits_ && leavesWindow) setDate(before);
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    const QScopedValueRollback<bool> typing(typing_, true);
    QDateEdit::keyPressEvent(event);
}

QDate DatePicker::InWindow(const QDate& date) const {
    int year = date.year();
    while (year > lastYear_) year -= 100;
    while (year <= lastYear_ - 100) year += 100;
    const QDate moved(year, date.month(), date.day());
    return moved.isValid() ? moved : QDate(year, date.month(), date.day() - 1);
}
