// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>
#include <QRadioButton>
#include <set>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "play/short_wheel.h"
#include "tests/support/lines_form.h"
#include "tests/support/sample_lotteries.h"

constexpr const char* wheelPrompt = "Label9";
constexpr const char* luckyNumbers = "Label4";
constexpr const char* wheelType1 = "Option1";
constexpr const char* wheelType2 = "Option2";
constexpr const char* wheelType3 = "Option3";

/// A form with a short wheel. UK Lotto is the first lottery, UK Thunderball, of 34 numbers with an
/// extra ball, the second, UK Daily Play, of 7 picks, the third.
class ShortWheelFormTest : public LinesFormTest {
  protected:
    ShortWheelFormTest() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        AddDailyPlay(test_.folder);
    }

    void Generate() { Click(*form_, generateButton); }

    void ExpectShortWheelWords(const char* note) {
        ExpectLabels({{lotteryPrompt, "Select a lottery:"},
                      {wheelPrompt, "Pick a wheel:     "},
                      {luckyNumbers, " Your lucky numbers:"},
                      {note,
                       "Any of your lucky numbers that are not in this lottery (eg. out of range) "
                       "will be ignored."}});
        ExpectCaptions({{wheelType1, "Wheel type 1"},
                        {wheelType2, "Wheel type 2"},
                        {wheelType3, "Wheel type 3"}});
        const auto tip = [this](const char* button) {
            return Find<QPushButton>(*form_, button)->toolTip();
        };
        EXPECT_EQ(tip(generateButton), QStringLiteral(" Generate lottery entries "));
        EXPECT_EQ(tip(printButton), QStringLiteral("Print out the lottery entries"));
        EXPECT_EQ(tip(saveButton), QStringLiteral("Save these lottery entries to disk"));
        EXPECT_EQ(tip(closeButton), QStringLiteral(" Close "));
    }

    /// Neither filters nor conditions, no bar, no "?" and no help button.
    void ExpectNothingOfTheTryingForms() {
        for (const char* name :
             {"Command13", "Command14", "Command15", "Command9", "Command8", "Command10",
              "Command11", "Command3", "Command4", "Check1", "HScroll1", "Label5"}) {
            EXPECT_EQ(form_->findChild<QObject*>(QString::fromLatin1(name)), nullptr) << name;
        }
    }

    /// The fifteen numbers behind the words of their label.
    QStringList ShownNumbers() {
        const QString words = QStringLiteral(" Your lucky numbers:");
        EXPECT_TRUE(Text(luckyNumbers).startsWith(words));
        return Text(luckyNumbers).mid(words.size()).split(QStringLiteral(","));
    }

    /// The same of a seed value, worked out without a form.
    static QStringList NumbersOf(std::int64_t seed) {
        State state;
        Random random([] { return std::uint64_t{0}; });
        return ToQString(ShuffleLuckyNumbers(state, random, seed)).split(QStringLiteral(","));
    }

    /// With the second wheel each lottery of the list gets five lines of distinct numbers that it
    /// has.
    void ExpectProperLinesOfEveryLottery() {
        auto* lotteries = Find<ListBox>(*form_, lotteryList);
        for (int index = 0; index < lotteries->count(); ++index) {
            ChooseLottery(index);
            Generate();
            ASSERT_EQ(ShownLines(), 5) << index;
            for (const std::vector<int>& line : Rows(test_.state.Picks)) {
                const std::set<int> numbers(line.begin(), line.end());
                EXPECT_EQ(numbers.size(), line.size());
                EXPECT_GE(*numbers.begin(), 1);
                EXPECT_LE(*numbers.rbegin(), test_.state.MaxNum);
            }
        }
    }
};
