// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/LocaleRegion.h"

#include <QDate>

#include "platform/system/TextConversion.h"

namespace {

// The first of day, month and year in a date format; texts in single quotes do not count.
QChar FirstPart(const QString& format) {
    bool literal = false;
    for (const QChar character : format) {
        if (character == QLatin1Char('\'')) literal = !literal;
        if (!literal && QStringLiteral("dMy").contains(character)) return character;
    }
    return QLatin1Char('d');
}

Region::Order OrderOf(const QLocale& locale) {
    const QChar first = FirstPart(locale.dateFormat(QLocale::ShortFormat));
    if (first == QLatin1Char('y')) return Region::Order::YearMonthDay;
    if (first == QLatin1Char('M')) return Region::Order::MonthDayYear;
    return Region::Order::DayMonthYear;
}

}  // namespace

Region RegionOf(const QLocale& locale) {
    Region region;
    region.order = OrderOf(locale);
    for (int month = 1; month <= 12; ++month) {
        const auto index = static_cast<std::size_t>(month - 1);
        region.monthNames.at(index) = FromQString(locale.monthName(month, QLocale::LongFormat));
        region.shortMonthNames.at(index) =
            FromQString(locale.monthName(month, QLocale::ShortFormat));
    }
    return region;
}

QDate ToQDate(Date date) {
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

Date FromQDate(const QDate& date) {
    return {std::chrono::year(date.year()), std::chrono::month(static_cast<unsigned>(date.month())),
            std::chrono::day(static_cast<unsigned>(date.day()))};
}
