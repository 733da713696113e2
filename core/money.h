// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/region.h"

/// An amount of money in whole pennies, or whatever a hundredth of the region's currency is called.
/// Adding is exact.
class Money {
  public:
    constexpr Money() = default;

    static constexpr Money OfPennies(std::int64_t pennies) {
        Money money;
        money.pennies_ = pennies;
        return money;
    }

    constexpr std::int64_t Pennies() const { return pennies_; }
    constexpr bool IsNegative() const { return pennies_ < 0; }

    constexpr Money& operator+=(Money other) {
        pennies_ += other.pennies_;
        return *this;
    }
    friend constexpr Money operator-(Money one, Money other) {
        return OfPennies(one.pennies_ - other.pennies_);
    }
    constexpr auto operator<=>(const Money&) const = default;

  private:
    std::int64_t pennies_ = 0;
};

/// The amount at the head of a text, read as `LeadingNumber` reads a number but with that decimal
/// point. A half penny goes away from zero by the digits as they stand: "2.675" is 2.68. An amount
/// from ten million millions on is none, so that a thousand of them can be added.
std::optional<Money> LeadingMoney(std::string_view text, char decimalPoint = '.');

/// The region's "Currency" form: two decimals, groups of three digits, and a "-" in front of all
/// where the amount is negative: "\xA31,234.50", "-\xA35.00".
std::string CurrencyText(Money amount, const CurrencyForm& form);

/// What is left of the "Currency" form of 0 without "0", "." and ",".
std::string CurrencySymbol(const CurrencyForm& form);

/// The text without any `CurrencySymbol`.
std::string WithoutSymbol(std::string_view text, const CurrencyForm& form);

/// The amount that a text in the "Currency" form tells: the symbol goes, the region's decimal
/// separator is the point. A group separator belongs to no number and ends it: "\xA31,234.50" is 1.
std::optional<Money> MoneyInCell(std::string_view text, const CurrencyForm& form);

/// The amount that was typed, with a "." for the decimals in every region; a text that holds the
/// region's own decimal separator is read in the region's form.
std::optional<Money> TypedMoney(std::string_view text, const CurrencyForm& form);
