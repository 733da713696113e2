// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/money.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace {

const CurrencyForm british;
const CurrencyForm american{.before = "$"};
const CurrencyForm german{
    .before = "", .behind = " \x80", .decimalPoint = ',', .groupSeparator = '.'};
const CurrencyForm swedish{
    .before = "", .behind = " kr", .decimalPoint = ',', .groupSeparator = ' '};
const CurrencyForm swiss{.before = "CHF ", .groupSeparator = '\x92'};

std::string Shown(std::int64_t pennies, const CurrencyForm& form = british) {
    return CurrencyText(Money::OfPennies(pennies), form);
}

std::int64_t Pennies(std::optional<Money> amount) { return amount.value().Pennies(); }

}  // namespace

TEST(AmountOfMoney, IsShownInTheFormOfTheRegion) {
    EXPECT_EQ(Shown(1250),
              "\xA3"
              "12.50");
    EXPECT_EQ(Shown(1250, american), "$12.50");
    EXPECT_EQ(Shown(1250, german), "12,50 \x80");
    EXPECT_EQ(Shown(1250, swedish), "12,50 kr");
    EXPECT_EQ(Shown(1250, swiss), "CHF 12.50");
    EXPECT_EQ(Shown(0),
              "\xA3"
              "0.00");
    EXPECT_EQ(Shown(5),
              "\xA3"
              "0.05");
}

TEST(AmountOfMoney, HasTwoDecimalsWhateverTheyAre) {
    for (std::int64_t pennies = 0; pennies < 100; ++pennies) {
        const std::string text = Shown(pennies, american);
        EXPECT_EQ(text.size(), 5U) << text;
        EXPECT_EQ(Pennies(MoneyInCell(text, american)), pennies);
    }
}

TEST(AmountOfMoney, HasGroupsOfThreeDigits) {
    EXPECT_EQ(Shown(99999),
              "\xA3"
              "999.99");
    EXPECT_EQ(Shown(123450),
              "\xA3"
              "1,234.50");
    EXPECT_EQ(Shown(123456789, german), "1.234.567,89 \x80");
    EXPECT_EQ(Shown(-100000),
              "-\xA3"
              "1,000.00");
}

TEST(AmountOfMoney, ShowsAMinusInFrontOfThePositiveFormInEveryRegion) {
    EXPECT_EQ(Shown(-500),
              "-\xA3"
              "5.00");
    EXPECT_EQ(Shown(-500, american), "-$5.00");
    EXPECT_EQ(Shown(-500, german), "-5,00 \x80");
    EXPECT_EQ(Shown(-500, swedish), "-5,00 kr");
    EXPECT_EQ(Shown(-500, swiss), "-CHF 5.00");
    EXPECT_EQ(Shown(-5),
              "-\xA3"
              "0.05");
}

TEST(AmountOfMoney, ReadsBackBelowAThousandInEveryRegion) {
    for (const CurrencyForm& form : {british, american, german, swedish, swiss}) {
        for (const std::int64_t pennies : {0, 1, 99, 100, 1250, 99999, -1, -99999}) {
            EXPECT_EQ(Pennies(MoneyInCell(Shown(pennies, form), form)), pennies);
        }
    }
}

TEST(AmountOfMoney, EndsAtTheGroupSeparatorWhenReadFromACell) {
    EXPECT_EQ(Pennies(MoneyInCell("\xA3"
                                  "1,234.50",
                                  british)),
              100);
    EXPECT_EQ(Pennies(MoneyInCell("1.234,50 \x80", german)), 100);
    EXPECT_EQ(Pennies(MoneyInCell("1 234,50 kr", swedish)), 100);
    EXPECT_EQ(Pennies(MoneyInCell("CHF 1\x92"
                                  "234.50",
                                  swiss)),
              100);
    EXPECT_EQ(Pennies(MoneyInCell("-\xA3"
                                  "1,234.50",
                                  british)),
              -100);
}

TEST(AmountOfMoney, IsReadWithTheDecimalSeparatorOfTheRegion) {
    EXPECT_EQ(Pennies(MoneyInCell("12,50 \x80", german)), 1250);
    EXPECT_EQ(Pennies(MoneyInCell("12.50", german)), 1200);
    EXPECT_EQ(Pennies(MoneyInCell("12,50", british)), 1200);
}

TEST(AmountOfMoney, WithTheSymbolOfAnotherRegionIsNothing) {
    EXPECT_EQ(Pennies(MoneyInCell("\xA3"
                                  "12.50",
                                  american)),
              0);
    EXPECT_EQ(Pennies(MoneyInCell("12,50 \x80", american)), 1200);
}

TEST(AmountOfMoney, LosesEverySymbol) {
    EXPECT_EQ(Pennies(MoneyInCell("\xA3\xA3"
                                  "1\xA3"
                                  "2",
                                  british)),
              1200);
    EXPECT_EQ(WithoutSymbol("-\xA3"
                            "5.00",
                            british),
              "-5.00");
    EXPECT_EQ(WithoutSymbol("12,50 \x80", german), "12,50");
    EXPECT_EQ(WithoutSymbol("12.50", {.before = "", .behind = ""}), "12.50");
}

TEST(AmountOfMoney, RoundsHalfPenniesAwayFromZeroByTheDigitsAsTyped) {
    EXPECT_EQ(Pennies(TypedMoney("0.125", british)), 13);
    EXPECT_EQ(Pennies(TypedMoney("-0.125", british)), -13);
    EXPECT_EQ(Pennies(TypedMoney("2.675", british)), 268);
    EXPECT_EQ(Pennies(TypedMoney("2.67499999", british)), 267);
    EXPECT_EQ(Pennies(TypedMoney("0.999", british)), 100);
}

TEST(AmountOfMoney, ThatRoundsToNothingHasNoMinus) {
    EXPECT_EQ(CurrencyText(*TypedMoney("-0.004", british), british),
              "\xA3"
              "0.00");
    EXPECT_FALSE(TypedMoney("-0.004", british)->IsNegative());
}

TEST(TypedAmount, TakesThePointInEveryRegion) {
    for (const CurrencyForm& form : {british, american, german, swedish, swiss}) {
        EXPECT_EQ(Pennies(TypedMoney("12.5", form)), 1250);
        EXPECT_EQ(Pennies(TypedMoney("1234.5", form)), 123450);
    }
}

TEST(TypedAmount, ThatHoldsADecimalCommaIsReadInTheFormOfTheRegion) {
    EXPECT_EQ(Pennies(TypedMoney("12,50", german)), 1250);
    EXPECT_EQ(Pennies(TypedMoney("-5,00", german)), -500);
    EXPECT_EQ(Pennies(TypedMoney("1.234,50", german)), 100);
    EXPECT_EQ(Pennies(TypedMoney("12,50", british)), 1200);
}

TEST(TypedAmount, IsReadAsANumberIs) {
    EXPECT_EQ(Pennies(TypedMoney("", british)), 0);
    EXPECT_EQ(Pennies(TypedMoney("x", british)), 0);
    EXPECT_EQ(Pennies(TypedMoney("  7", british)), 700);
    EXPECT_EQ(Pennies(TypedMoney("+7.", british)), 700);
    EXPECT_EQ(Pennies(TypedMoney(".5", british)), 50);
    EXPECT_EQ(Pennies(TypedMoney("--5", british)), 0);
    EXPECT_EQ(Pennies(TypedMoney("5-3", british)), 500);
    EXPECT_EQ(Pennies(TypedMoney("1.2.3", british)), 120);
    EXPECT_EQ(Pennies(TypedMoney("1e5", british)), 100);
    EXPECT_EQ(Pennies(TypedMoney("007.50", british)), 750);
}

TEST(TypedAmount, IsWholeOrNone) {
    EXPECT_EQ(Shown(Pennies(TypedMoney("9999999999999.99", british))),
              "\xA3"
              "9,999,999,999,999.99");
    EXPECT_EQ(TypedMoney("10000000000000", british), std::nullopt);
    EXPECT_EQ(Pennies(TypedMoney("00000000000000000005", british)), 500);
}

TEST(SumOfMoney, CarriesNoGhost) {
    Money sum;
    for (const char* const balance : {"0.30", "-0.10", "-0.20"}) {
        sum += *LeadingMoney(balance);
    }
    EXPECT_EQ(sum, Money());
    EXPECT_EQ(CurrencyText(sum, british),
              "\xA3"
              "0.00");
    EXPECT_EQ(*LeadingMoney("1") - *LeadingMoney("2.5"), Money::OfPennies(-150));
}
