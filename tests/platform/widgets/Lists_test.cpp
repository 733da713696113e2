// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Lists.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>

#include "tests/core/failures.h"
#include "tests/support/form_test.h"

namespace {

struct AListBox : testing::Test {
    AListBox() {
        list.addItems({QStringLiteral("UK Lotto"), QStringLiteral("UK Thunderball"),
                       QStringLiteral("US Powerball")});
        list.resize(200, 200);
        list.show();
    }

    QPoint Place(int row) { return list.visualItemRect(list.item(row)).center(); }
    void ClickOn(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, keys, Place(row));
    }

    ~AListBox() override { QToolTip::hideText(); }

    QString TipOver(int row) {
        QHelpEvent help(QEvent::ToolTip, Place(row), list.viewport()->mapToGlobal(Place(row)));
        QApplication::sendEvent(list.viewport(), &help);
        return QToolTip::text();
    }

    ListBox list;
    QSignalSpy clicks{&list, &ListBox::clicked};
};

TEST_F(AListBox, HasNothingChosenAtFirst) {
    EXPECT_EQ(list.Index(), -1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AListBox, HasRowsWithSomeAir) {
    EXPECT_EQ(list.visualItemRect(list.item(0)).height(), list.fontMetrics().height() + 8);
}

TEST_F(AListBox, CutsALongNameAndTellsItInATip) {
    const QString longName = QStringLiteral("A lottery of a long name ").repeated(20);
    list.addItem(longName);
    QApplication::processEvents();
    EXPECT_FALSE(list.horizontalScrollBar()->isVisible());
    EXPECT_EQ(list.visualItemRect(list.item(3)).width(), list.viewport()->width());
    EXPECT_EQ(TipOver(0), QString());
    EXPECT_EQ(TipOver(3), longName);
}

TEST_F(AListBox, TellsTheTipsThatItWasGiven) {
    list.SetTips([](int row) { return QStringLiteral("row %1").arg(row); });
    EXPECT_EQ(TipOver(1), QStringLiteral("row 1"));
}

TEST_F(AListBox, RunsItsClickOnceWhenCodeChooses) {
    list.SetIndex(1);
    EXPECT_EQ(list.Index(), 1);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AListBox, RunsNoClickWhenCodeChoosesTheSameAgain) {
    list.SetIndex(1);
    list.SetIndex(1);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AListBox, RunsNoClickWhenTheChoiceIsTakenAway) {
    list.SetIndex(1);
    list.SetIndex(-1);
    EXPECT_EQ(list.Index(), -1);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AListBox, RunsItsClickOnceForTheMouse) {
    ClickOn(2);
    EXPECT_EQ(list.Index(), 2);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AListBox, RunsItsClickForTheEntryAlreadyChosen) {
    list.SetIndex(0);
    clicks.clear();
    ClickOn(0);
    EXPECT_EQ(clicks.count(), 1);
    ClickOn(0);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(AListBox, TakesADoubleClickAsOneClick) {
    QTest::mousePress(list.viewport(), Qt::LeftButton, Qt::NoModifier, Place(1));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, Qt::NoModifier, Place(1));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, Place(1));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, Qt::NoModifier, Place(1));
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AListBox, RunsItsClickOnceForEachMoveByKeyboard) {
    list.SetIndex(0);
    clicks.clear();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.Index(), 2);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(AListBox, RunsNoClickWhenTheKeyboardCannotMove) {
    list.SetIndex(2);
    clicks.clear();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AListBox, ChoosesTheFirstEntryWithTheFirstArrowKey) {
    list.activateWindow();
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.Index(), 0);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AListBox, ChoosesNothingByGettingTheFocus) {
    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&list, &focus);
    EXPECT_EQ(list.Index(), -1);
    EXPECT_EQ(list.currentRow(), -1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AListBox, KeepsItsChoiceUnderControlClick) {
    list.SetIndex(1);
    clicks.clear();
    ClickOn(1, Qt::ControlModifier);
    EXPECT_EQ(list.Index(), 1);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AListBox, IgnoresClicksBelowItsEntries) {
    list.SetIndex(1);
    clicks.clear();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 180));
    EXPECT_EQ(list.Index(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AListBox, IgnoresTheRightButtonOnTheChosenEntry) {
    list.SetIndex(1);
    clicks.clear();
    QTest::mouseClick(list.viewport(), Qt::RightButton, Qt::NoModifier, Place(1));
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AListBox, RunsNoClickWhenClearedAndOneWhenChosenAfresh) {
    list.SetIndex(0);
    list.clear();
    EXPECT_EQ(clicks.count(), 1);
    list.addItem(QStringLiteral("UK Lotto Extra"));
    EXPECT_EQ(list.Index(), -1);
    list.SetIndex(0);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(AListBox, KeepsItsChoiceWhenEntriesComeInFront) {
    list.SetIndex(1);
    clicks.clear();
    list.insertItem(0, QStringLiteral("new"));
    EXPECT_EQ(list.Index(), 2);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AListBox, HasNothingChosenOnceTheChosenEntryIsRemoved) {
    list.SetIndex(1);
    clicks.clear();
    delete list.takeItem(1);
    EXPECT_EQ(list.Index(), -1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AListBox, RefusesAnEntryItDoesNotHave) {
    list.setObjectName(QStringLiteral("List1"));
    list.clear();
    EXPECT_EQ(FailureOf([&] { list.SetIndex(0); }),
              "list List1: entry 0 was asked for, but the list has 0 entries, counted from 0");
    EXPECT_THROW(list.SetIndex(-2), Failure);
}

TEST_F(AListBox, TellsItsNameInWindows1252) {
    list.setObjectName(QStringLiteral("Caf\u00E9"));
    EXPECT_TRUE(FailureOf([&] { list.SetIndex(-2); }).starts_with("list Caf\xE9: entry -2 "));
}

TEST_F(AListBox, MayChooseAnotherEntryInItsClick) {
    QObject::connect(&list, &ListBox::clicked, &list, [this] {
        if (list.Index() == 0) list.SetIndex(2);
    });
    list.SetIndex(0);
    EXPECT_EQ(list.Index(), 2);
    EXPECT_EQ(clicks.count(), 2);
}

struct AComboList : testing::Test {
    AComboList() {
        box.addItems({QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Third")});
        box.show();
    }

    void ChooseFromPopup(int row) {
        box.showPopup();
        QAbstractItemView* view = box.view();
        const QModelIndex index = view->model()->index(row, 0);
        view->setCurrentIndex(index);
        QTest::keyClick(view, Qt::Key_Return);
    }

    ComboList box;
    QSignalSpy clicks{&box, &ComboList::clicked};
};

TEST_F(AComboList, HasNothingChosenAtFirst) {
    EXPECT_EQ(box.Index(), -1);
    EXPECT_FALSE(box.isEditable());
}

TEST_F(AComboList, RunsItsClickOnceWhenCodeChooses) {
    box.SetIndex(1);
    box.SetIndex(1);
    EXPECT_EQ(box.Index(), 1);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AComboList, RunsNoClickWhenTheChoiceIsTakenAway) {
    box.SetIndex(1);
    box.SetIndex(-1);
    EXPECT_EQ(box.Index(), -1);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AComboList, RunsItsClickOnceForAChoiceFromItsPopup) {
    ChooseFromPopup(2);
    EXPECT_EQ(box.Index(), 2);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AComboList, RunsItsClickForTheEntryAlreadyChosen) {
    box.SetIndex(1);
    clicks.clear();
    ChooseFromPopup(1);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AComboList, RunsItsClickOnceForEachMoveByKeyboard) {
    box.SetIndex(0);
    clicks.clear();
    QTest::keyClick(&box, Qt::Key_Down);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.Index(), 2);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(AComboList, RunsNoClickWhenTheKeyboardCannotMove) {
    box.SetIndex(2);
    clicks.clear();
    QTest::keyClick(&box, Qt::Key_Down);
    QTest::keyClick(&box, Qt::Key_T);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AComboList, KeepsItsChoiceWhenEntriesComeInFront) {
    box.SetIndex(1);
    clicks.clear();
    box.insertItem(0, QStringLiteral("new"));
    EXPECT_EQ(box.Index(), 2);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AComboList, HasNothingChosenOnceTheChosenEntryIsRemoved) {
    box.SetIndex(1);
    clicks.clear();
    box.removeItem(1);
    EXPECT_EQ(box.Index(), -1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AComboList, RunsNoClickWhenClearedAndOneWhenChosenAfresh) {
    box.SetIndex(0);
    box.clear();
    box.addItem(QStringLiteral("other"));
    EXPECT_EQ(box.Index(), -1);
    box.SetIndex(0);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(AComboList, RefusesAnEntryItDoesNotHave) {
    EXPECT_THROW(box.SetIndex(3), Failure);
    EXPECT_THROW(box.SetIndex(-2), Failure);
}

}  // namespace
