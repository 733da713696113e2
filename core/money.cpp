// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/money.h"

#include <algorithm>

namespace {

constexpr std::size_t mostDigits = 13;  // before the point

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

std::string_view TakeDigits(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

// The decimals beyond the second one only say where a half penny goes.
std::int64_t PenniesOf(std::string_view decimals) {
    const auto digit = [decimals](std::size_t place) {
        return place < decimals.size() ? decimals[place] - '0' : 0;
    };
    return digit(0) * 10 + digit(1) + (digit(2) >= 5 ? 1 : 0);
}

}  // namespace

std::optional<Money> LeadingMoney(std::string_view text, char decimalPoint) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    std::string_view whole = TakeDigits(text);
    std::string_view decimals;
    if (text.starts_with(decimalPoint)) {
        text.remove_prefix(1);
        decimals = TakeDigits(text);
    }
    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    if (whole.size() > mostDigits) return std::nullopt;
    std::int64_t pennies = 0;
    for (const char digit : whole) pennies = pennies * 10 + (digit - '0');
    pennies = pennies * 100 + PenniesOf(decimals);
    return Money::OfPennies(negative ? -pennies : pennies);
}

std::string CurrencyText(Money amount, const CurrencyForm& form) {
    const std::int64_t pennies = amount.Pennies();
    const std::int64_t decimals = pennies % 100 < 0 ? -(pennies % 100) : pennies % 100;
    std::string digits = std::to_string(pennies / 100);
    if (digits.starts_with('-')) digits.erase(0, 1);
    for (std::size_t end = digits.size(); end > 3;) {
        end -= 3;
        digits.insert(end, 1, form.groupSeparator);
    }
    std::string text = amount.IsNegative() ? "-" : "";
    text += form.before + digits + form.decimalPoint;
    if (decimals < 10) text += '0';
    return text + std::to_string(decimals) + form.behind;
}

std::string CurrencySymbol(const CurrencyForm& form) {
    std::string text = CurrencyText(Money(), form);
    std::erase_if(text, [](char character) {
        return character == '0' || character == '.' || character == ',';
    });
    return text;
}

std::string WithoutSymbol(std::string_view text, const CurrencyForm& form) {
    const std::string symbol = CurrencySymbol(form);
    std::string rest(text);
    if (symbol.empty()) return rest;
    for (std::size_t at = rest.find(symbol); at != std::string::npos; at = rest.find(symbol, at)) {
        rest.erase(at, symbol.size());
    }
    return rest;
}

std::optional<Money> MoneyInCell(std::string_view text, const CurrencyForm& form) {
    return LeadingMoney(WithoutSymbol(text, form), form.decimalPoint);
}

std::optional<Money> TypedMoney(std::string_view text, const CurrencyForm& form) {
    const bool inRegionsForm = text.find(form.decimalPoint) != std::string_view::npos;
    return LeadingMoney(text, inRegionsForm ? form.decimalPoint : '.');
}
