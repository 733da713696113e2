// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/NumberBoard.h"

#include <QAccessible>
#include <QVBoxLayout>

#include "platform/widgets/Contrast.h"
#include "tests/support/form_test.h"
#include "wheels/NumberLabel.h"

namespace {

class ABoardOfSixty : public testing::Test {
  protected:
    ABoardOfSixty() {
        window_.setLayout(new QVBoxLayout);
        window_.layout()->addWidget(board_);
        window_.show();
        window_.activateWindow();
        QApplication::processEvents();
    }

    QLabel& Number(int number) {
        return *Find<QLabel>(window_, ("Number(" + std::to_string(number) + ")").c_str());
    }

    void Press(Qt::Key key) { QTest::keyClick(window_.focusWidget(), key); }

    /// The number that has the focus.
    int Focused() const {
        const auto* label = qobject_cast<QLabel*>(window_.focusWidget());
        return label == nullptr ? 0 : label->text().toInt();
    }

    QAccessibleInterface& Spoken(int number) {
        return *QAccessible::queryAccessibleInterface(&Number(number));
    }

    QDialog window_;
    NumberBoard* board_ = new NumberBoard(QStringLiteral("Number"), 60);
};

TEST_F(ABoardOfSixty, HasALabelForEachNumberAndNoneSelected) {
    for (int number = 1; number <= 60; ++number) {
        EXPECT_EQ(Number(number).text(), QString::number(number));
        EXPECT_FALSE(board_->IsSelected(number));
    }
    EXPECT_EQ(board_->SelectedCount(), 0);
    EXPECT_EQ(window_.findChild<QLabel*>(QStringLiteral("Number(61)")), nullptr);
}

TEST_F(ABoardOfSixty, SelectsByAClickAndTakesBackByTheNext) {
    int changes = 0;
    QObject::connect(board_, &NumberBoard::changed, board_, [&changes] { ++changes; });
    QTest::mouseClick(&Number(17), Qt::LeftButton);
    EXPECT_TRUE(board_->IsSelected(17));
    EXPECT_EQ(board_->SelectedCount(), 1);
    QTest::mouseClick(&Number(17), Qt::LeftButton);
    EXPECT_FALSE(board_->IsSelected(17));
    EXPECT_EQ(changes, 2);
    QTest::mouseClick(&Number(17), Qt::RightButton);
    QTest::mousePress(&Number(17), Qt::LeftButton);
    QTest::mouseRelease(&Number(17), Qt::LeftButton, Qt::NoModifier, QPoint(-5, -5));
    EXPECT_EQ(changes, 2) << "neither another button nor a release beside it";
}

TEST_F(ABoardOfSixty, IsWhiteOnBlackWhereSelectedAndBlackOnPaleRedElsewhere) {
    board_->Select(5, true);
    const QPalette selected = Number(5).palette();
    const QPalette other = Number(6).palette();
    EXPECT_EQ(selected.color(QPalette::Window), QColor(0, 0, 0));
    EXPECT_EQ(selected.color(QPalette::WindowText), QColor(255, 255, 255));
    EXPECT_EQ(other.color(QPalette::Window), QColor(255, 192, 192));
    EXPECT_EQ(other.color(QPalette::WindowText), QColor(0, 0, 0));
    board_->Select(5, false);
    EXPECT_EQ(Number(5).palette().color(QPalette::Window), QColor(255, 192, 192));
}

TEST_F(ABoardOfSixty, KeepsItsColoursInADarkWindow) {
    QPalette dark;
    for (const auto role : {QPalette::Window, QPalette::Base}) dark.setColor(role, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    window_.setPalette(dark);
    board_->Select(1, true);
    for (const int number : {1, 2}) {
        const QPalette palette = Number(number).palette();
        EXPECT_GT(Contrast(palette.color(QPalette::Window), palette.color(QPalette::WindowText)),
                  7);
    }
    const QImage image = Number(1).grab().toImage();
    const QColor edge = image.pixelColor(image.width() / 2, 0);
    EXPECT_GT(Contrast(edge, Qt::black), 3) << "an edge sets a black label apart";
}

TEST_F(ABoardOfSixty, MovesWithTheArrowsAndSelectsWithTheSpaceBar) {
    Number(1).setFocus();
    Press(Qt::Key_Right);
    EXPECT_EQ(Focused(), 2);
    Press(Qt::Key_Down);
    EXPECT_EQ(Focused(), 12);
    Press(Qt::Key_Space);
    EXPECT_TRUE(board_->IsSelected(12));
    Press(Qt::Key_Left);
    EXPECT_EQ(Focused(), 11);
    Press(Qt::Key_Left);
    EXPECT_EQ(Focused(), 10) << "to the end of the row above";
    Press(Qt::Key_Up);
    EXPECT_EQ(Focused(), 10) << "there is no row above";
    Press(Qt::Key_End);
    EXPECT_EQ(Focused(), 60);
    Press(Qt::Key_Right);
    Press(Qt::Key_Down);
    EXPECT_EQ(Focused(), 60);
    Press(Qt::Key_Left);
    Press(Qt::Key_Right);
    EXPECT_EQ(Focused(), 60);
    Press(Qt::Key_Home);
    Press(Qt::Key_Left);
    EXPECT_EQ(Focused(), 1);
    Press(Qt::Key_Space);
    Press(Qt::Key_Space);
    EXPECT_EQ(board_->SelectedCount(), 1);
}

TEST_F(ABoardOfSixty, TakesASpaceBarHeldDownForOnePress) {
    Number(7).setFocus();
    Press(Qt::Key_Space);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QApplication::sendEvent(&Number(7), &repeated);
    EXPECT_TRUE(board_->IsSelected(7));
}

TEST_F(ABoardOfSixty, StaysAmongTheNumbersShown) {
    board_->ShowUpTo(45);
    Number(40).setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(Focused(), 40) << "50 is hidden";
    Press(Qt::Key_End);
    EXPECT_EQ(Focused(), 45);
    Press(Qt::Key_Right);
    EXPECT_EQ(Focused(), 45);
}

TEST_F(ABoardOfSixty, IsOneStopOfTheTabKeyWhereTheUserWasLast) {
    const auto stops = [this] {
        QStringList names;
        for (int number = 1; number <= 60; ++number) {
            if ((Number(number).focusPolicy() & Qt::TabFocus) != 0) names << Number(number).text();
        }
        return names;
    };
    EXPECT_EQ(stops(), QStringList{QStringLiteral("1")});
    QTest::mouseClick(&Number(33), Qt::LeftButton);
    EXPECT_EQ(Focused(), 33) << "a click takes the focus";
    EXPECT_EQ(stops(), QStringList{QStringLiteral("33")});
    board_->ShowUpTo(32);
    EXPECT_EQ(stops(), QStringList{QStringLiteral("1")});
}

TEST_F(ABoardOfSixty, HidesAndTakesBackWhatTheLotteryDoesNotHave) {
    for (const int number : {45, 46, 60}) board_->Select(number, true);
    const QRect place = Number(45).geometry();
    int changes = 0;
    QObject::connect(board_, &NumberBoard::changed, board_, [&changes] { ++changes; });
    board_->ShowUpTo(45);
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(board_->IsSelected(45));
    EXPECT_EQ(board_->SelectedCount(), 1);
    EXPECT_TRUE(Number(45).isVisible());
    EXPECT_FALSE(Number(46).isVisible());
    QApplication::processEvents();
    EXPECT_EQ(Number(45).geometry(), place) << "what is hidden keeps its place";
    board_->Select(46, true);
    EXPECT_TRUE(board_->IsSelected(46)) << "in code a hidden number can be selected";
    board_->ShowUpTo(90);
    EXPECT_TRUE(Number(60).isVisible());
    EXPECT_EQ(board_->SelectedCount(), 2);
    board_->ShowUpTo(0);
    EXPECT_EQ(board_->SelectedCount(), 0);
}

TEST_F(ABoardOfSixty, SpeaksAsBoxesThatCanBeTicked) {
    board_->Select(7, true);
    EXPECT_EQ(Spoken(7).role(), QAccessible::CheckBox);
    EXPECT_EQ(Spoken(7).text(QAccessible::Name), QStringLiteral("7"));
    EXPECT_TRUE(Spoken(7).state().checkable);
    EXPECT_TRUE(Spoken(7).state().checked);
    EXPECT_FALSE(Spoken(8).state().checked);
    Spoken(8).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(board_->IsSelected(8));
    Spoken(8).actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(board_->IsSelected(8));
}

TEST_F(ABoardOfSixty, ShowsWhereTheFocusIs) {
    const QImage without = Number(20).grab().toImage();
    Number(20).setFocus();
    QApplication::processEvents();
    EXPECT_NE(Number(20).grab().toImage(), without);
}

}  // namespace
