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

bool CanBeWritten(const QString& text) { return ToQString(FromQString(text)) == text; }

// Every blank is the plain one, and what only directs the writing is left out.
QString Plain(const QString& text) {
    QString plain;
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Format) continue;
        plain += character.isSpace() ? QLatin1Char(' ') : character;
    }
    return plain;
}

// Points belong to numbers; a symbol that the files cannot hold gives way to the ISO code.
QString SymbolOf(const QLocale& locale) {
    QString symbol = Plain(locale.currencySymbol());
    if (!CanBeWritten(symbol)) symbol = locale.currencySymbol(QLocale::CurrencyIsoCode);
    symbol.removeIf([](QChar character) {
        return character == QLatin1Char('.') || character == QLatin1Char(',') ||
               character.isDigit();
    });
    return symbol;
}

char SeparatorOf(const QString& separator, char otherwise) {
    const QString plain = Plain(separator);
    return plain.size() == 1 && CanBeWritten(plain) ? FromQString(plain).front() : otherwise;
}

CurrencyForm CurrencyOf(const QLocale& locale) {
    CurrencyForm form;
    form.decimalPoint = SeparatorOf(locale.decimalPoint(), '.');
    form.groupSeparator =
        SeparatorOf(locale.groupSeparator(), form.decimalPoint == ',' ? '.' : ',');
    const QString symbol = SymbolOf(locale);
    const QString text = Plain(locale.toCurrencyString(0.0, symbol, 2));
    const qsizetype at = symbol.isEmpty() ? -1 : text.indexOf(symbol);
    const qsizetype behind = at + symbol.size();
    const auto blank = [&text](qsizetype place) {
        const bool is = place >= 0 && place < text.size() && text[place] == QLatin1Char(' ');
        return is ? QStringLiteral(" ") : QString();
    };
    const bool inFront = at < 0 || at < text.size() - behind;
    form.before = inFront ? FromQString(symbol + blank(behind)) : std::string();
    form.behind = inFront ? std::string() : FromQString(blank(at - 1) + symbol);
    return form;
}

}  // namespace

Region RegionOf(const QLocale& locale) {
    Region region;
    region.order = OrderOf(locale);
    region.currency = CurrencyOf(locale);
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
