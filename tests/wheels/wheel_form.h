// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "core/settings.h"
#include "platform/widgets/Lists.h"
#include "tests/support/lines_form.h"
#include "tests/support/sample_lotteries.h"

inline const QColor white(255, 255, 255);
inline const QColor grey(192, 192, 192);

constexpr const char* promptLabel = "Label8";
constexpr const char* randomSelectionButton = "Command12";
constexpr const char* randomOrderButton = "Command8";

/// A wheel form with number boxes, over lotteries that differ in their picks.
class WheelFormTest : public LinesFormTest {
  protected:
    /// Places in the list of lotteries.
    enum { Lotto, Five, Four, Seven, FivePlain, Six40 };

    WheelFormTest() {
        AddLottery(test_.folder, "dbase1.txt", "Lotto", "6,49,0,0,1",
                   {"28 May 05,3,17,22,34,41,48,0,9"});
        AddLottery(test_.folder, "dbase2.txt", "Five", "5,34,1,14,0");
        AddLottery(test_.folder, "dbase3.txt", "Four", "4,35,0,0,0");
        AddLottery(test_.folder, "dbase4.txt", "Seven", "7,47,1,9,0");
        AddLottery(test_.folder, "dbase5.txt", "Five plain", "5,34,0,0,0");
        AddLottery(test_.folder, "dbase6.txt", "Six of 40", "6,40,0,0,0");
        for (int slot = setting::OddEvenStrength; slot <= setting::LongRunStrength; ++slot)
            test_.state.Settings(slot) = "2";
    }

    static std::string BoxName(int index) { return "Text1(" + std::to_string(index) + ")"; }

    QLineEdit& Box(int index) { return *Find<QLineEdit>(*form_, BoxName(index).c_str()); }

    QColor Background(int index) { return Box(index).palette().color(QPalette::Base); }

    void ChooseSize(int option) {
        Click(*form_, ("Option1(" + std::to_string(option) + ")").c_str());
    }

    void TypeBox(int index, const QString& text) { Type(*form_, BoxName(index).c_str(), text); }

    /// What the forms of lettered groups say alike, and the controls that they do not have.
    void ExpectGroupWords(int groups) {
        ExpectLabels({{"Label6", "Filters"}});
        ExpectLetters(groups);
        ExpectCaptions({{"Command12", "Random selection"}, {"Command8", "Random order"}});
        ExpectFrameWords(usualFilters, "Command3");
        for (const char* name : {"HScroll1", "Check1", "Check2", "Check3", "Label5"}) {
            EXPECT_EQ(form_->findChild<QObject*>(QString::fromLatin1(name)), nullptr) << name;
        }
    }

    /// The letters beside the groups, "A" to that of the last.
    void ExpectLetters(int groups) {
        for (int group = 0; group <= groups; ++group) {
            const QString name = QStringLiteral("Label1(%1)").arg(group + 1);
            const auto* letter = form_->findChild<QLabel*>(name);
            ASSERT_EQ(letter != nullptr, group < groups) << name.toStdString();
            if (letter == nullptr) continue;
            EXPECT_EQ(letter->text(), QString(QChar('A' + group)));
        }
    }

    /// As the form opens: the first lottery and size, the first boxes white, nothing in any of the
    /// `count` boxes and no lines.
    void ExpectEmptyForm(int inUse, int count) {
        EXPECT_EQ(test_.state.LotteryName, "Lotto");
        EXPECT_TRUE(Find<QRadioButton>(*form_, "Option1(0)")->isChecked());
        for (int index = 0; index < count; ++index) {
            EXPECT_EQ(Background(index), index < inUse ? white : grey) << index;
            EXPECT_TRUE(Box(index).isEnabled());
            EXPECT_TRUE(Box(index).text().isEmpty());
        }
        EXPECT_EQ(form_->findChild<QObject*>(QStringLiteral("Text1(%1)").arg(count)), nullptr);
        EXPECT_EQ(ShownLines(), 0);
        EXPECT_EQ(test_.state.Lines(1, 1), 0);
    }

    /// So many lines are shown, of different numbers, with an extra ball where the lottery has one.
    void ExpectWholeLines(int count) {
        EXPECT_EQ(ShownLines(), count) << test_.state.LotteryName;
        for (const auto& row : Rows(8)) {
            const std::set<int> numbers(row.begin(), row.begin() + test_.state.Picks);
            EXPECT_EQ(static_cast<int>(numbers.size()), test_.state.Picks);
            EXPECT_EQ(row[7] > 0, test_.state.MaxPball > 0);
        }
    }

    /// Random selections of the sixth size for every real lottery make this many whole lines.
    void ExpectWheelsOfRealLotteries(const std::function<int()>& lineCount) {
        ChooseSize(5);
        for (int index = 0; index < Find<ListBox>(*form_, lotteryList)->count(); ++index) {
            ChooseLottery(index);
            Click(*form_, randomSelectionButton);
            Click(*form_, generateButton);
            ExpectWholeLines(lineCount());
        }
    }

    ComboList& Combo(const char* name) { return *Find<ComboList>(*form_, name); }

    /// Chooses from the opened list, so that the entry chosen already counts too.
    void ChooseFromPopup(const char* name, int index) {
        ComboList& list = Combo(name);
        list.showPopup();
        list.view()->setCurrentIndex(list.model()->index(index, 0));
        QTest::keyClick(list.view(), Qt::Key_Return);
    }

    QStringList Items(const char* name) {
        QStringList items;
        for (int index = 0; index < Combo(name).count(); ++index) {
            items << Combo(name).itemText(index);
        }
        return items;
    }

    /// Types 1 to `count` into the first boxes.
    void TypeCounting(int count) {
        for (int index = 0; index < count; ++index) TypeBox(index, QString::number(index + 1));
    }

    QStringList BoxTexts(int count) {
        QStringList texts;
        for (int index = 0; index < count; ++index) texts << Box(index).text();
        return texts;
    }

    /// Random selection and random order change the `inUse` boxes whatever `Busy` is.
    void ExpectRandomButtonsWorkWhileBusy(int inUse) {
        test_.state.Busy = -1;
        Click(*form_, randomSelectionButton);
        const QStringList selected = BoxTexts(inUse);
        EXPECT_FALSE(selected.contains(QString()));
        Click(*form_, randomOrderButton);
        EXPECT_NE(BoxTexts(inUse), selected);
        EXPECT_EQ(test_.state.Busy, -1);
    }

    void ExpectInputTip() {
        test_.messages.Expect({.title = QStringLiteral("Error"),
                               .text = QStringLiteral(" There was a problem with the input.  \r\n "
                                                      "Please check it and try again.  \r\n"),
                               .sign = Sign::Information});
    }
};
