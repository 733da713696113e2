// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Clock.h"

#include <QDateTime>
#include <chrono>

#include "platform/system/LocaleRegion.h"

double MonotonicSeconds() {
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(sinceStart).count();
}

Date Today() { return FromQDate(QDate::currentDate()); }

Moment LocalNow() {
    const QDateTime now = QDateTime::currentDateTime();
    return std::chrono::local_days(FromQDate(now.date())) +
           std::chrono::seconds(now.time().msecsSinceStartOfDay() / 1000);
}

std::uint64_t SeedOfTheMoment() {
    // The clock of the day keeps two starts of the computer apart, the steady one two calls.
    const auto ofDay = std::chrono::system_clock::now().time_since_epoch().count();
    const auto steady = std::chrono::steady_clock::now().time_since_epoch().count();
    return static_cast<std::uint64_t>(ofDay) ^ (static_cast<std::uint64_t>(steady) << 20U);
}
