// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/play/retrying_forms.h"

#include <QCheckBox>
#include <QPushButton>

#include "core/settings.h"
#include "platform/widgets/Lists.h"
#include "tests/support/sample_lotteries.h"

TryingFormTest::TryingFormTest() {
    AddUkLotto(test_.folder);
    AddThunderball(test_.folder);
    AddDailyPlay(test_.folder);
    test_.state.Settings(setting::OddEvenStrength) = "1 Odd/Even filter";
    test_.state.Settings(setting::HighLowStrength) = "1 High/Low filter";
    test_.state.Settings(setting::HistoryStrength) = "1 History  filter";
    test_.state.Settings(setting::LongRunStrength) = "3 Long Run filter";
}

void TryingFormTest::AddFirstLottery(const std::string& name, const std::string& rules,
                                     const std::vector<std::string>& draws) {
    AddLottery(test_.folder, "dbase.txt", name, rules, draws);
}

void TryingFormTest::LeaveOnlyLotto(const std::vector<std::string>& draws) {
    for (const std::string& file : test_.folder.Find("dbase*.txt")) test_.folder.Delete(file);
    AddLottery(test_.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1", draws);
}

void TryingFormTest::ClickLottery(int index) {
    auto* list = Find<ListBox>(*form_, lotteryList);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(index)).center());
    EXPECT_EQ(list->Index(), index);
}

bool TryingFormTest::SaysLinesFail() {
    return Status().endsWith(QStringLiteral(" sec (Some lines do not comply with conditions)"));
}

void TryingFormTest::SetCondition(const char* box, bool set) {
    Find<QCheckBox>(*form_, box)->setChecked(set);
}

bool TryingFormTest::IsSet(const char* box) { return Find<QCheckBox>(*form_, box)->isChecked(); }

void TryingFormTest::AskTheImpossible(const char* box) {
    for (const int strength :
         {setting::OddEvenStrength, setting::HighLowStrength, setting::HistoryStrength}) {
        test_.state.Settings(strength) = "7";
    }
    SetCondition(box, true);
    test_.tick = 2;
}

std::vector<int> TryingFormTest::Column(int column) {
    std::vector<int> numbers;
    for (const std::vector<int>& line : Rows(column)) numbers.push_back(line.back());
    return numbers;
}

std::vector<int> TryingFormTest::AllNumbers() {
    std::vector<int> numbers;
    for (const std::vector<int>& line : Rows(test_.state.Picks)) {
        numbers.insert(numbers.end(), line.begin(), line.end());
    }
    return numbers;
}

void TryingFormTest::ExpectTryingWords(const FilterNames& filters) {
    ExpectFrameWords(filters, helpButton);
    ExpectLabels({{"Label6", "Do not pick lottery entries with..."}, {"Label6(1)", "Filters"}});
    ExpectCaptions({{oddEvenBox, "Too many odd or even numbers"},
                    {highLowBox, "Too many low or high numbers"},
                    {previousDrawsBox, "Same numbers as a previous draw"},
                    {explainButton, "?"}});
    for (const char* box : {oddEvenBox, highLowBox, previousDrawsBox}) {
        EXPECT_FALSE(IsSet(box)) << box;
    }
}

void TryingFormTest::ExpectTipAndHelp() {
    test_.messages.Expect(
        {.title = QStringLiteral("Did you know..."),
         .text = QStringLiteral(" It is rare for a lottery draw to have     \r\n"
                                " numbers that are all odd or all even. Most     \r\n"
                                " draws have a mixture of odd and even     \r\n"
                                " numbers. Setting this option ensures your     \r\n"
                                " lottery entries have the right mix.     \r\n"),
         .sign = Sign::Information});
    Click(*form_, explainButton);
    EXPECT_EQ(test_.messages.Shown(), 1);
    Click(*form_, helpButton);
    QTest::keyClick(form_.get(), Qt::Key_F1);
    EXPECT_EQ(test_.pages,
              (std::vector<QString>{QStringLiteral("helpplay.html"),
                                    QStringLiteral("helpplay.html#") % form_->objectName()}));
}

void TryingFormTest::ExpectNoActionWhileBusy(const FilterNames& filters) {
    int prints = 0;
    test_.services.printLines = [&](QWidget*, Grid&) { ++prints; };
    Find<QPushButton>(*form_, printButton)->setEnabled(true);
    const QStringList before = Texts();
    const QString status = Status();
    const std::string lottery = test_.state.LotteryName;
    test_.state.Busy = -1;
    ++test_.seed;
    for (const char* name : {generateButton, filters.oddEven, filters.highLow, filters.longRuns,
                             filters.previousDraws, printButton, saveButton}) {
        Click(*form_, name);
    }
    ChooseLottery(2);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(Status(), status);
    EXPECT_EQ(saves_ + prints, 0);
    EXPECT_EQ(test_.state.LotteryName, lottery);
    test_.state.Busy = 0;
    Click(*form_, printButton);
    EXPECT_EQ(prints, 1);
}

void TryingFormTest::ExpectEnterGenerates(const std::vector<const char*>& controls) {
    for (const char* name : controls) {
        auto* control = Find<QWidget>(*form_, name);
        const QStringList before = Texts();
        ++test_.seed;
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Return);
        EXPECT_NE(Texts(), before) << name;
    }
}

void TryingFormTest::ExpectBusyOverEmptyGridWhileGenerating() {
    int generations = 0;
    test_.services.random = Random([&] {
        ++generations;
        EXPECT_EQ(test_.state.Busy, -1);
        const QCursor* cursor = QGuiApplication::overrideCursor();
        EXPECT_TRUE(cursor != nullptr && cursor->shape() == Qt::WaitCursor);
        EXPECT_EQ(ShownLines(), 0);
        return std::uint64_t{1};
    });
    EXPECT_GT(ShownLines(), 0);
    Click(*form_, generateButton);
    EXPECT_EQ(generations, 1);
    EXPECT_GT(ShownLines(), 0);
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

void TryingFormTest::ExpectSaveAndClose() {
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
    Click(*form_, saveButton);
    EXPECT_EQ(saves_, 1);
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
    form_->show();
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
}
