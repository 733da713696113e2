// SPDX-License-Identifier: GPL-3.0-or-later
// What the wheel forms with number boxes have in common.
#include "wheels/WheelFrame.h"

#include <QPushButton>

#include "core/failure.h"
#include "tests/wheels/wheel_form.h"
#include "wheels/PWheel2.h"
#include "wheels/PWheel3.h"

namespace {

constexpr const char* helpButton = "Command3";

struct BoxForm {
    const char* name;
    int boxCount;
    int firstSize;
    int boxesInGroup;
    std::unique_ptr<Form> (*make)(Program&);
};

void PrintTo(const BoxForm& form, std::ostream* out) { *out << form.name; }

class EachWheelForm : public WheelFormTest, public testing::WithParamInterface<BoxForm> {
  protected:
    void Open() { ShowForm(GetParam().make(test_.program)); }

    int Size() const { return GetParam().firstSize; }

    void ExpectRefusal() {
        ExpectInputTip();
        const int before = test_.messages.Shown();
        Click(*form_, generateButton);
        EXPECT_EQ(test_.messages.Shown(), before + 1);
    }
};

TEST_P(EachWheelForm, TakesThreeDigitsInTheMiddleOfABoxAndNothingElse) {
    Open();
    for (const int index : {0, Size() - 1, Size()}) {
        TypeBox(index, QStringLiteral("-1a .2x3e4"));
        EXPECT_EQ(Box(index).text(), QStringLiteral("123")) << "grey boxes take keys too";
        QTest::keyClick(&Box(index), Qt::Key_Backspace);
        EXPECT_EQ(Box(index).text(), QStringLiteral("12"));
        EXPECT_EQ(Box(index).maxLength(), 3);
        EXPECT_EQ(Box(index).alignment(), Qt::AlignCenter);
    }
}

TEST_P(EachWheelForm, DealsPastedNumbersToTheBoxes) {
    Open();
    Paste(Box(0), QStringLiteral("7 14 21"));
    for (const int index : {0, 1, 2}) {
        EXPECT_EQ(Box(index).text(), QString::number(7 * (index + 1))) << index;
    }
}

TEST_P(EachWheelForm, AsksForNoWiderWindowThanItsControlsNeed) {
    Open();
    EXPECT_LE(form_->sizeHint().width(), form_->minimumSizeHint().width() + 40);
}

TEST_P(EachWheelForm, KeepsItsListAndFiltersNarrowInAWideWindow) {
    Open();
    form_->resize(1600, 700);
    QApplication::processEvents();
    const auto edge = [this](const char* name) {
        const auto* widget = Find<QWidget>(*form_, name);
        return widget->mapTo(form_.get(), widget->rect().topRight()).x();
    };
    const int left = Find<QWidget>(*form_, lotteryList)->x();
    for (const char* name : {lotteryList, usualFilters.highLow, usualFilters.previousDraws}) {
        EXPECT_LE(edge(name) - left, 320) << name;
    }
}

TEST_P(EachWheelForm, HasALetterBesideEachGroupAndSpeaksItWithEachBox) {
    Open();
    QApplication::processEvents();
    const int boxesInGroup = GetParam().boxesInGroup;
    for (int index = 0; index < GetParam().boxCount; ++index) {
        const int group = index / boxesInGroup;
        const std::string name = "Label1(" + std::to_string(group + 1) + ")";
        const QRect letter = Find<QLabel>(*form_, name.c_str())->geometry();
        const QRect box = Box(index).geometry();
        EXPECT_LT(letter.right(), box.left()) << index;
        EXPECT_NEAR(letter.center().y(), box.center().y(), 1) << index;
        EXPECT_EQ(Box(index).accessibleName(),
                  QStringLiteral("%1 %2").arg(QChar('A' + group)).arg(index % boxesInGroup + 1));
    }
}

TEST_P(EachWheelForm, TakesASizeFromTheArrowKeysToo) {
    Open();
    form_->activateWindow();
    QApplication::processEvents();
    auto* first = Find<QRadioButton>(*form_, "Option1(0)");
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Down);
    EXPECT_TRUE(Find<QRadioButton>(*form_, "Option1(1)")->isChecked());
    const int count = Size() + GetParam().boxesInGroup;
    EXPECT_EQ(Background(count - 1), white);
    EXPECT_EQ(Background(count), grey);
    EXPECT_TRUE(Text(promptLabel).startsWith(QStringLiteral("   Enter %1 different").arg(count)));
}

TEST_P(EachWheelForm, MakesNothingOnEnterInABoxAndStaysThere) {
    Open();
    TypeCounting(Size());
    form_->activateWindow();
    Box(2).setFocus();
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(&Box(2), key);
        EXPECT_EQ(ShownLines(), 0);
        EXPECT_EQ(form_->focusWidget(), &Box(2));
        EXPECT_EQ(Box(2).text(), QStringLiteral("3"));
    }
    QTest::keyClick(form_.get(), Qt::Key_Return);
    EXPECT_GT(ShownLines(), 0) << "elsewhere Enter generates";
}

TEST_P(EachWheelForm, LeadsTheTabKeyPastTheGreyBoxesWhichTakeTheFocusByClick) {
    Open();
    for (int index = 0; index < GetParam().boxCount; ++index) {
        const auto policy = index < Size() ? Qt::StrongFocus : Qt::ClickFocus;
        EXPECT_EQ(Box(index).focusPolicy(), policy) << index;
    }
}

TEST_P(EachWheelForm, RefusesABoxThatIsEmptyZeroOrTooHigh) {
    Open();
    TypeCounting(Size());
    Click(*form_, generateButton);
    const QStringList before = Texts();
    for (const char* wrong : {"", "0", "000", "50", "999"}) {
        TypeBox(3, QString::fromLatin1(wrong));
        test_.state.Lines(1, 1) = 7;
        ExpectRefusal();
        EXPECT_EQ(Texts(), before) << "the grid keeps what it showed";
        EXPECT_EQ(test_.state.Lines(1, 1), 0) << "the lines are gone";
        EXPECT_EQ(test_.state.Busy, 0);
        EXPECT_EQ(form_->focusWidget(), &Box(3)) << "where the input has to be mended";
        EXPECT_EQ(Box(3).text(), QString::fromLatin1(wrong)) << "as typed";
    }
    Click(*form_, usualFilters.oddEven);
    EXPECT_EQ(ShownLines(), 0) << "a filter shows that there are none";
}

TEST_P(EachWheelForm, TakesTheHighestNumberOfTheLottery) {
    Open();
    TypeCounting(Size());
    TypeBox(0, QStringLiteral("49"));
    Click(*form_, generateButton);
    EXPECT_GT(ShownLines(), 0);
}

TEST_P(EachWheelForm, EmptiesGreyBoxesAndNeverRefusesThem) {
    Open();
    TypeCounting(Size());
    TypeBox(Size(), QStringLiteral("99"));
    TypeBox(Size() + 1, QStringLiteral("0"));
    Click(*form_, generateButton);
    EXPECT_GT(ShownLines(), 0);
    EXPECT_EQ(Box(Size()).text(), QString());
    EXPECT_EQ(Box(Size() + 1).text(), QString());
}

TEST_P(EachWheelForm, EmptiesGreyBoxesInARefusalToo) {
    Open();
    TypeBox(Size(), QStringLiteral("9"));
    ExpectRefusal();
    EXPECT_EQ(Box(Size()).text(), QString());
}

TEST_P(EachWheelForm, EmptiesTheBoxesThatTheNextLotteryHasNoNumberFor) {
    Open();
    const QStringList typed = {QStringLiteral("05"), QStringLiteral("40"), QStringLiteral("41"),
                               QStringLiteral("0"),  QStringLiteral("49"), QStringLiteral("007")};
    for (int index = 0; index < typed.size(); ++index) TypeBox(index, typed[index]);
    TypeBox(GetParam().boxCount - 1, QStringLiteral("45"));
    const QString prompt = Text(promptLabel);
    ChooseLottery(Six40);
    EXPECT_EQ(BoxTexts(6), (QStringList{QStringLiteral("05"), QStringLiteral("40"), QString(),
                                        QString(), QString(), QStringLiteral("007")}));
    EXPECT_EQ(Box(GetParam().boxCount - 1).text(), QString()) << "grey boxes too";
    EXPECT_EQ(Text(promptLabel), prompt);
}

TEST_P(EachWheelForm, ClearsTheGridButNotTheLinesOnAChangeOfLottery) {
    Open();
    TypeCounting(Size());
    Click(*form_, generateButton);
    test_.state.Pool(100) = 33;
    ChooseLottery(Four);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(Lines().Cell(0, 1), QStringLiteral("Num1"));
    EXPECT_EQ(test_.state.Lines(1, 1), 1);
    EXPECT_EQ(test_.state.Pool(100), 33);
}

TEST_P(EachWheelForm, FillsTheBoxesInUseWithDifferentNumbersOfTheLottery) {
    Open();
    for (int time = 0; time < 10; ++time) {
        TypeBox(Size(), QStringLiteral("9"));
        Click(*form_, randomSelectionButton);
        QStringList texts = BoxTexts(Size());
        EXPECT_EQ(QSet<QString>(texts.begin(), texts.end()).size(), Size());
        for (const QString& text : texts) EXPECT_TRUE(text.toInt() >= 1 && text.toInt() <= 49);
        EXPECT_EQ(Box(Size()).text(), QStringLiteral("9")) << "grey boxes stay";
    }
}

TEST_P(EachWheelForm, DrawsEachSelectionFromWhereTheLastOneStopped) {
    Open();
    Click(*form_, randomSelectionButton);
    const QStringList first = BoxTexts(Size());
    Click(*form_, randomSelectionButton);
    EXPECT_NE(BoxTexts(Size()), first) << "the clock would give the same seed again";
}

TEST_P(EachWheelForm, MixesTheNumbersAndWritesThemPlain) {
    Open();
    TypeCounting(Size());
    TypeBox(4, QStringLiteral("005"));
    QStringList before = BoxTexts(Size());
    Click(*form_, randomOrderButton);
    QStringList after = BoxTexts(Size());
    EXPECT_NE(after, before);
    before[4] = QStringLiteral("5");
    std::ranges::sort(before);
    std::ranges::sort(after);
    EXPECT_EQ(after, before);
}

TEST_P(EachWheelForm, MixesNoughtsIntoEmptyBoxes) {
    Open();
    TypeBox(0, QStringLiteral("0"));
    TypeBox(5, QStringLiteral("8"));
    Click(*form_, randomOrderButton);
    QStringList texts = BoxTexts(GetParam().boxCount);
    EXPECT_EQ(texts.count(QStringLiteral("8")), 1);
    EXPECT_EQ(texts.count(QString()), GetParam().boxCount - 1);
}

TEST_P(EachWheelForm, LeavesFiltersPrintSaveAndTheListAloneWhileBusy) {
    int prints = 0;
    test_.services.printLines = [&prints](QWidget*, Grid&) { ++prints; };
    Open();
    TypeCounting(Size());
    Click(*form_, generateButton);
    const QStringList before = Texts();
    for (int row = 1; row <= 3; ++row) test_.state.Lines(row, 1) = 2;
    test_.state.Busy = -1;
    for (const char* name : {usualFilters.oddEven, usualFilters.highLow, usualFilters.longRuns,
                             usualFilters.previousDraws, printButton, saveButton}) {
        Click(*form_, name);
    }
    ChooseLottery(Four);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(prints, 0);
    EXPECT_EQ(saves_, 0);
    EXPECT_EQ(test_.state.LotteryName, "Lotto");
    test_.state.Busy = 0;
    Click(*form_, printButton);
    Click(*form_, saveButton);
    EXPECT_EQ(prints, 1);
    EXPECT_EQ(saves_, 1);
}

/// What `Busy` and the mouse pointer are when a box loses its text.
struct Work {
    int busy = 0;
    bool hourglass = false;
    bool operator==(const Work&) const = default;
};

TEST_P(EachWheelForm, IsBusyUnderTheHourglassWhileItGeneratesAndLoads) {
    Open();
    std::vector<Work> seen;
    QObject::connect(&Box(Size()), &QLineEdit::textChanged, form_.get(), [&](const QString& text) {
        const QCursor* pointer = QGuiApplication::overrideCursor();
        const bool hourglass = pointer != nullptr && pointer->shape() == Qt::WaitCursor;
        if (text.isEmpty()) seen.push_back({test_.state.Busy, hourglass});
    });
    const Work working{.busy = -1, .hourglass = true};

    TypeCounting(Size());
    Box(Size()).setText(QStringLiteral("9"));
    Click(*form_, generateButton);
    EXPECT_EQ(seen, std::vector<Work>{working}) << "generate empties a grey box";

    Box(Size()).setText(QStringLiteral("49"));
    ChooseLottery(Six40);
    EXPECT_EQ(seen, (std::vector<Work>{working, working})) << "and so does another lottery";
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_P(EachWheelForm, GeneratesSelectsAndMixesEvenWhileBusy) {
    Open();
    test_.state.Busy = -1;
    Click(*form_, randomSelectionButton);
    EXPECT_NE(Box(0).text(), QString());
    TypeCounting(Size());
    Click(*form_, randomOrderButton);
    EXPECT_NE(BoxTexts(Size()).first(3),
              (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}));
    Click(*form_, generateButton);
    EXPECT_GT(ShownLines(), 0);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_P(EachWheelForm, WaitsWithItsCloseUntilBusyFalls) {
    Open();
    TypeCounting(Size());
    test_.state.Busy = -1;
    Click(*form_, closeButton);
    EXPECT_TRUE(form_->isVisible());
    Click(*form_, generateButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_P(EachWheelForm, RemovesLinesByTheFiltersAndMakesNoOthers) {
    Open();
    TypeCounting(Size());
    Click(*form_, generateButton);
    ExpectFiltersTakeLinesOut(usualFilters);
}

TEST_P(EachWheelForm, OpensTheHelpPageAndCloses) {
    Open();
    Click(*form_, helpButton);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpplay.html")});
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_P(EachWheelForm, EndsInTheReportWithoutALottery) {
    test_.folder = MemoryFolder();
    EXPECT_THROW(Open(), Failure);
}

const std::vector<BoxForm> boxForms = {
    {"PWheel2", 18, 8, 2,
     [](Program& program) -> std::unique_ptr<Form> {
         return std::make_unique<PWheel2>(program, nullptr);
     }},
    {"PWheel3", 24, 9, 3, [](Program& program) -> std::unique_ptr<Form> {
         return std::make_unique<PWheel3>(program, nullptr);
     }}};

INSTANTIATE_TEST_SUITE_P(Forms, EachWheelForm, testing::ValuesIn(boxForms),
                         [](const auto& form) { return std::string(form.param.name); });

}  // namespace
