// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/DatePicker.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <utility>

#include "platform/system/LocaleRegion.h"

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

void DatePicker::SetValue(Date date) {
    typedDay_ = 0;
    setDate(ToQDate(date));
}

void DatePicker::stepBy(int steps) {
    const QScopedValueRollback<bool> stepping(typing_, false);
    const QDate before = date();
    typedDay_ = 0;
    QDateEdit::stepBy(steps);
    const bool leavesWindow = InWindow(before) == before && InWindow(date()) != date();
    if (twoDigits_ && leavesWindow) setDate(before);
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    const QString key = event->text();
    // The last digit or letter of a part already moves on to the next; the blank that people type
    // after it would move on once more.
    if (std::exchange(movedOn_, false) && !key.isEmpty() && !key[0].isLetterOrNumber() &&
        displayFormat().contains(key)) {
        return;
    }
    const Section before = currentSection();
    const QScopedValueRollback<bool> typing(typing_, true);
    QDateEdit::keyPressEvent(event);
    const bool typed = !key.isEmpty() && key[0].isLetterOrNumber();
    movedOn_ = typed && currentSection() != before;
    if (typed) KeepTypedDay(before);
}

// Of "29 Feb 04" Qt makes the 28th as long as the year before was no leap year.
void DatePicker::KeepTypedDay(Section typedInto) {
    if (typedInto == DaySection) {
        typedDay_ = date().day();
        return;
    }
    const QDate wanted(date().year(), date().month(), typedDay_);
    if (typedDay_ <= date().day() || !wanted.isValid()) return;
    setDate(wanted);
    setSelectedSection(currentSection());
}

QDate DatePicker::InWindow(const QDate& date) const {
    int year = date.year();
    while (year > lastYear_) year -= 100;
    while (year <= lastYear_ - 100) year += 100;
    const QDate moved(year, date.month(), date.day());
    return moved.isValid() ? moved : QDate(year, date.month(), date.day() - 1);
}
