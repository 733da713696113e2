// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/BarInput.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "tests/support/form_test.h"

namespace {

constexpr const char* bar = "HScroll2";
constexpr const char* value = "Label6";
constexpr const char* lowest = "HScroll2 lowest";
constexpr const char* highest = "HScroll2 highest";

struct ABarInput : testing::Test {
    void Open(const BarRange& range) {
        input = new BarInput(QString::fromLatin1(bar), QString::fromLatin1(value),
                             QStringLiteral("Highest number"), range, &window);
        (new QVBoxLayout(&window))->addWidget(input);
        QObject::connect(input, &BarInput::changed, &window, [this](int now) {
            EXPECT_EQ(Text(value), QString::number(now)) << "the label comes first";
            changes.push_back(now);
        });
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        Bar().clearFocus();
    }

    QScrollBar& Bar() { return *Find<QScrollBar>(window, bar); }
    QString Text(const char* label) { return Find<QLabel>(window, label)->text(); }

    /// A digit typed so many milliseconds after the start.
    void TypeAt(quint64 milliseconds, char digit) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_0 + (digit - '0'), Qt::NoModifier,
                        QString(QLatin1Char(digit)));
        press.setTimestamp(milliseconds);
        QApplication::sendEvent(&Bar(), &press);
    }

    void Turn(const char* name, int angle) {
        auto* widget = Find<QWidget>(window, name);
        const QPointF place(widget->rect().center());
        QWheelEvent turn(place, widget->mapToGlobal(place), QPoint(), QPoint(0, angle),
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &turn);
    }

    QWidget window;
    BarInput* input = nullptr;
    std::vector<int> changes;
};

TEST_F(ABarInput, ShowsItsValueAndTheEndsOfItsRange) {
    Open({.lowest = 10, .highest = 60, .value = 49});
    EXPECT_EQ(Text(value), QStringLiteral("49"));
    EXPECT_TRUE(Find<QLabel>(window, value)->font().bold());
    EXPECT_EQ(Text(lowest), QStringLiteral("10"));
    EXPECT_EQ(Text(highest), QStringLiteral("60"));
    EXPECT_LT(Find<QLabel>(window, lowest)->font().pointSizeF(), window.font().pointSizeF());
    EXPECT_EQ(Bar().accessibleName(), QStringLiteral("Highest number"));
    EXPECT_TRUE(changes.empty());
}

TEST_F(ABarInput, TellsOfAChangeByDraggingOrCodeOnce) {
    Open({.lowest = 10, .highest = 60, .value = 49});
    Bar().setSliderPosition(34);
    input->SetValue(35);
    input->SetValue(35);
    EXPECT_EQ(changes, (std::vector<int>{34, 35}));
}

TEST_F(ABarInput, PullsTheValueDownWithItsUpperEnd) {
    Open({.lowest = 3, .highest = 50, .value = 50});
    input->SetHighest(10);
    EXPECT_EQ(Text(highest), QStringLiteral("10"));
    EXPECT_EQ(changes, std::vector<int>{10});
}

TEST_F(ABarInput, MovesByItsLargeChangeBesideTheHandle) {
    Open({.lowest = 1, .highest = 30, .value = 5, .largeChange = 1});
    Bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(input->Value(), 6);
}

TEST_F(ABarInput, TakesTwoDigitsWithinASecondAsOneNumber) {
    Open({.lowest = 1, .highest = 30, .value = 5});
    TypeAt(5000, '1');
    EXPECT_EQ(input->Value(), 1);
    TypeAt(6000, '2');
    EXPECT_EQ(input->Value(), 12);
    TypeAt(7001, '3');
    EXPECT_EQ(input->Value(), 3) << "a second is over";
    EXPECT_EQ(changes, (std::vector<int>{1, 12, 3}));
}

TEST_F(ABarInput, BeginsANumberAnewWhereItWouldLeaveTheRange) {
    Open({.lowest = 1, .highest = 30, .value = 5});
    TypeAt(0, '4');
    TypeAt(100, '8');
    EXPECT_EQ(input->Value(), 8);
    TypeAt(200, '0');
    EXPECT_EQ(input->Value(), 8) << "0 is below the range";
}

TEST_F(ABarInput, WaitsForTheNextDigitBelowItsRange) {
    Open({.lowest = 10, .highest = 60, .value = 49});
    TypeAt(0, '3');
    EXPECT_EQ(input->Value(), 49);
    TypeAt(100, '5');
    EXPECT_EQ(input->Value(), 35);
    EXPECT_EQ(changes, std::vector<int>{35});
}

TEST_F(ABarInput, TakesDigitsOfTheNumberPadButNoShortcuts) {
    Open({.lowest = 1, .highest = 30, .value = 5});
    QTest::keyClick(&Bar(), Qt::Key_7, Qt::KeypadModifier);
    EXPECT_EQ(input->Value(), 7);
    QTest::keyClick(&Bar(), Qt::Key_9, Qt::AltModifier);
    EXPECT_EQ(input->Value(), 7);
}

TEST_F(ABarInput, ForgetsADigitOnAnArrowKey) {
    Open({.lowest = 1, .highest = 30, .value = 5});
    QTest::keyClick(&Bar(), Qt::Key_1);
    QTest::keyClick(&Bar(), Qt::Key_Up);
    EXPECT_EQ(input->Value(), 2) << "upward is more";
    QTest::keyClick(&Bar(), Qt::Key_3);
    EXPECT_EQ(input->Value(), 3);
}

TEST_F(ABarInput, TakesTheWheelOnEveryPart) {
    Open({.lowest = 1, .highest = 30, .value = 5});
    for (const char* part : {bar, value, lowest, highest}) Turn(part, 120);
    EXPECT_EQ(input->Value(), 9);
    Turn(bar, -240);
    EXPECT_EQ(input->Value(), 7);
}

TEST_F(ABarInput, AddsUpAFineWheel) {
    Open({.lowest = 1, .highest = 30, .value = 5});
    for (int time = 0; time < 3; ++time) Turn(bar, 40);
    EXPECT_EQ(input->Value(), 6);
    EXPECT_EQ(changes, std::vector<int>{6});
}

TEST_F(ABarInput, TakesTheFocusOnAClickOnItsValueAndShowsARing) {
    Open({.lowest = 1, .highest = 30, .value = 5});
    const QImage before = Bar().grab().toImage();
    Click(window, value);
    EXPECT_TRUE(Bar().hasFocus());
    EXPECT_NE(Bar().grab().toImage(), before);
    EXPECT_EQ(Bar().grab().toImage().pixelColor(Bar().width() / 2, 0),
              Bar().palette().color(QPalette::Highlight));
}

TEST_F(ABarInput, HidesEachPart) {
    Open({.lowest = 1, .highest = 30, .value = 5});
    input->hide();
    for (const char* part : {bar, value, lowest, highest}) {
        EXPECT_TRUE(Find<QWidget>(window, part)->isHidden()) << part;
    }
    input->show();
    EXPECT_TRUE(Bar().isVisible());
}

}  // namespace
