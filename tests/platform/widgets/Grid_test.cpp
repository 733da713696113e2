// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Grid.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>
#include <QStyle>

#include "core/failure.h"
#include "tests/support/form_test.h"

namespace {

struct AGrid : testing::Test {
    AGrid() {
        grid.resize(grid.width(), 300);
        grid.show();
    }

    QPoint Place(int row, int column) {
        return grid.visualRect(grid.model()->index(row - 1, column)).center();
    }

    Grid grid{6, 3};
    QSignalSpy clicks{&grid, &Grid::cellClicked};
};

TEST_F(AGrid, CountsItsHeadingsAsRowZero) {
    EXPECT_EQ(grid.RowCount(), 6);
    EXPECT_EQ(grid.ColumnCount(), 3);
    EXPECT_EQ(grid.model()->rowCount(), 5);
    EXPECT_EQ(grid.model()->columnCount(), 3);
}

TEST_F(AGrid, ShowsRowZeroInTheHeaderAndTheOthersInTheModel) {
    grid.SetCell(0, 2, QStringLiteral("Pball"));
    grid.SetCell(1, 2, QStringLiteral("9"));
    EXPECT_EQ(grid.model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Pball"));
    EXPECT_EQ(grid.model()->index(0, 2).data().toString(), QStringLiteral("9"));
    EXPECT_EQ(grid.Cell(1, 2), QStringLiteral("9"));
}

TEST_F(AGrid, TellsColoursAndAlignmentThroughTheStandardRoles) {
    grid.SetCellColour(1, 2, QColor(0xa0, 0, 0));
    grid.SetCellColour(0, 2, QColor(0xa0, 0, 0));
    const QModelIndex index = grid.model()->index(0, 2);
    EXPECT_EQ(index.data(Qt::ForegroundRole).value<QColor>().name(), QStringLiteral("#a00000"));
    EXPECT_EQ(
        grid.model()->headerData(2, Qt::Horizontal, Qt::ForegroundRole).value<QColor>().name(),
        QStringLiteral("#a00000"));
    EXPECT_EQ(index.data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignCenter));
}

TEST_F(AGrid, TakesAColourBack) {
    grid.SetCellColour(1, 1, Qt::black);
    EXPECT_EQ(grid.CellColour(1, 1), QColor(Qt::black));
    grid.SetCellColour(1, 1, QColor());
    EXPECT_FALSE(grid.CellColour(1, 1).isValid());
    EXPECT_FALSE(grid.model()->index(0, 1).data(Qt::ForegroundRole).isValid());
}

TEST_F(AGrid, RefusesCellsOutsideItself) {
    EXPECT_THROW(grid.Cell(6, 0), Failure);
    EXPECT_THROW(grid.SetCell(0, 3, QString()), Failure);
    EXPECT_THROW(grid.SetCellColour(-1, 0, Qt::red), Failure);
    EXPECT_THROW(grid.MarkRow(6), Failure);
    EXPECT_THROW(grid.SetCurrentCell(1, 3), Failure);
    EXPECT_THROW(grid.ScrollToRow(99), Failure);
}

TEST_F(AGrid, NamesTheCellItDoesNotHave) {
    try {
        grid.SetCell(6, 1, QString());
        FAIL() << "there is no row 6";
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(),
                     "grid: row 6, column 1 was asked for, but the grid has 6 rows and 3 columns, "
                     "counted from 0");
    }
}

TEST_F(AGrid, ClearsAllButItsHeadings) {
    grid.SetCell(0, 0, QStringLiteral("Line"));
    grid.SetCell(5, 2, QStringLiteral("49"));
    grid.SetCellColour(5, 2, Qt::red);
    grid.ClearCells();
    EXPECT_EQ(grid.Cell(0, 0), QStringLiteral("Line"));
    EXPECT_EQ(grid.Cell(5, 2), QString());
    EXPECT_FALSE(grid.CellColour(5, 2).isValid());
}

TEST_F(AGrid, KeepsItsCellsWhenRowsAreAdded) {
    grid.SetCell(5, 2, QStringLiteral("49"));
    grid.SetRowCount(8);
    EXPECT_EQ(grid.Cell(5, 2), QStringLiteral("49"));
    EXPECT_EQ(grid.Cell(7, 0), QString());
    EXPECT_EQ(grid.model()->rowCount(), 7);
}

TEST_F(AGrid, HasColumnsOfEqualWidthThatHoldEightZeros) {
    const int zeros = grid.fontMetrics().horizontalAdvance(QStringLiteral("00000000"));
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(grid.columnWidth(column), grid.columnWidth(0));
        EXPECT_GE(grid.columnWidth(column), zeros);
        EXPECT_LE(grid.columnWidth(column), zeros + 12);
        EXPECT_EQ(grid.horizontalHeader()->sectionResizeMode(column), QHeaderView::Fixed);
    }
}

TEST_F(AGrid, IsAsWideAsItsColumnsTheScrollBarAndNinetyTwips) {
    const int scrollBar = grid.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &grid);
    const int expected = 3 * grid.columnWidth(0) + scrollBar + 6 + 2 * grid.frameWidth();
    EXPECT_EQ(grid.minimumWidth(), expected);
    EXPECT_EQ(grid.maximumWidth(), expected);
}

TEST_F(AGrid, FollowsTheWidthsToldByColumnAndHidesColumnsOfNone) {
    grid.SetColumnWidths({50, 70, 0});
    EXPECT_EQ(grid.columnWidth(1), 70);
    EXPECT_TRUE(grid.isColumnHidden(2));
    EXPECT_EQ(grid.model()->columnCount(), 3);
    const int scrollBar = grid.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &grid);
    EXPECT_EQ(grid.width(), 120 + scrollBar + 6 + 2 * grid.frameWidth());
}

TEST_F(AGrid, StaysLightOnADarkDesktop) {
    QWidget desktop;
    desktop.setPalette(QPalette(Qt::black));
    Grid child(3, 2, &desktop);
    EXPECT_EQ(child.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_LT(child.palette().color(QPalette::Text).lightness(), 60);
    EXPECT_LT(child.horizontalHeader()->palette().color(QPalette::ButtonText).lightness(), 60);
    EXPECT_GT(child.horizontalHeader()->palette().color(QPalette::Button).lightness(), 200);
}

TEST_F(AGrid, CannotBeTypedInto) {
    grid.SetCurrentCell(1, 1);
    QTest::keyClicks(&grid, QStringLiteral("7"));
    EXPECT_EQ(grid.Cell(1, 1), QString());
    EXPECT_FALSE(grid.model()->flags(grid.model()->index(0, 1)).testFlag(Qt::ItemIsEditable));
}

TEST_F(AGrid, MarksAWholeRowWithItsLastColumnCurrent) {
    grid.MarkRow(3);
    EXPECT_EQ(grid.CurrentRow(), 3);
    EXPECT_EQ(grid.currentIndex().column(), 2);
    EXPECT_EQ(grid.selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(grid.selectionModel()->selectedRows().first().row(), 2);
}

TEST_F(AGrid, MarksARowSoThatTheArrowKeysGoOnWhereTheLastColumnIsHidden) {
    grid.SetColumnWidths({50, 70, 0});
    grid.MarkRow(3);
    EXPECT_EQ(grid.currentIndex().column(), 1);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.CurrentRow(), 4);
    grid.MarkRow(3);
    EXPECT_EQ(grid.selectionModel()->selectedRows().size(), 1);
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(grid.CurrentRow(), 2);
}

TEST_F(AGrid, MarksOneRowAtATime) {
    grid.MarkRow(3);
    grid.MarkRow(2);
    EXPECT_EQ(grid.selectionModel()->selectedIndexes().size(), 3);
    EXPECT_EQ(grid.CurrentRow(), 2);
}

TEST_F(AGrid, HasNoCurrentCellWhileParked) {
    grid.SetParkingRow(5);
    EXPECT_EQ(grid.CurrentRow(), 5);
    grid.MarkRow(2);
    grid.MarkRow(5);
    EXPECT_EQ(grid.CurrentRow(), 5);
    EXPECT_FALSE(grid.currentIndex().isValid());
    EXPECT_FALSE(grid.selectionModel()->hasSelection());
}

TEST_F(AGrid, StaysParkedWhenItGetsTheFocus) {
    grid.SetParkingRow(5);
    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&grid, &focus);
    EXPECT_EQ(grid.CurrentRow(), 5);
}

TEST_F(AGrid, HasTheCurrentRowZeroWithoutAParkingPlace) { EXPECT_EQ(grid.CurrentRow(), 0); }

TEST_F(AGrid, MakesACellCurrentWithoutMarkingAnything) {
    grid.MarkRow(3);
    grid.SetCurrentCell(2, 1);
    EXPECT_EQ(grid.CurrentRow(), 2);
    EXPECT_EQ(grid.currentIndex().column(), 1);
    EXPECT_FALSE(grid.selectionModel()->hasSelection());
}

TEST_F(AGrid, TellsOfAClickOnACell) {
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, Place(4, 1));
    ASSERT_EQ(clicks.count(), 1);
    EXPECT_EQ(clicks[0][0].toInt(), 4);
    EXPECT_EQ(clicks[0][1].toInt(), 1);
}

TEST_F(AGrid, TellsOfAMoveByKeyboard) {
    grid.SetCurrentCell(1, 0);
    QTest::keyClick(&grid, Qt::Key_Down);
    ASSERT_EQ(clicks.count(), 1);
    EXPECT_EQ(clicks[0][0].toInt(), 2);
    QTest::keyClick(&grid, Qt::Key_Left);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AGrid, TellsOfTheCellOnWhichADragEnds) {
    QTest::mousePress(grid.viewport(), Qt::LeftButton, Qt::NoModifier, Place(1, 1));
    QMouseEvent move(QEvent::MouseMove, Place(4, 2), grid.viewport()->mapToGlobal(Place(4, 2)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(grid.viewport(), &move);
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, Qt::NoModifier, Place(4, 2));
    ASSERT_EQ(clicks.count(), 1);
    EXPECT_EQ(clicks[0][0].toInt(), 4);
    EXPECT_EQ(grid.CurrentRow(), 4);
}

TEST_F(AGrid, TellsOfACellThatAnotherButtonMakesCurrent) {
    grid.SetCurrentCell(1, 0);
    QTest::mouseClick(grid.viewport(), Qt::RightButton, Qt::NoModifier, Place(3, 1));
    ASSERT_EQ(clicks.count(), 1);
    EXPECT_EQ(clicks[0][0].toInt(), grid.CurrentRow());
    EXPECT_EQ(grid.CurrentRow(), 3);
}

TEST_F(AGrid, TellsNothingOfAnotherButtonOnTheCurrentCell) {
    grid.SetCurrentCell(3, 1);
    QTest::mouseClick(grid.viewport(), Qt::RightButton, Qt::NoModifier, Place(3, 1));
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AGrid, TellsOnceOfAClickThatMarksTheRow) {
    QObject::connect(&grid, &Grid::cellClicked, &grid, [this](int row) { grid.MarkRow(row); });
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, Place(3, 0));
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, Place(3, 0));
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(AGrid, CopiesWhatIsMarkedWithItsHeadings) {
    for (int column = 0; column < 3; ++column) {
        grid.SetCell(0, column, QStringLiteral("Num%1").arg(column));
        grid.SetCell(2, column, QString::number(10 + column));
    }
    grid.MarkRow(2);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("Num0\tNum1\tNum2\n10\t11\t12\n"));
}

TEST_F(AGrid, CopiesEverythingButTheEmptyRowsBehindTheLastText) {
    grid.SetCell(0, 0, QStringLiteral("Date"));
    grid.SetCell(1, 0, QStringLiteral("a"));
    grid.SetCell(3, 1, QStringLiteral("b"));
    grid.SetCurrentCell(1, 0);
    QTest::keyClick(&grid, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("Date\t\t\na\t\t\n\t\t\n\tb\t\n"));
}

TEST_F(AGrid, CopiesTheHeadingsWhereNothingElseIsThere) {
    grid.SetCurrentCell(1, 0);
    QTest::keyClick(&grid, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("\t\t\n"));
}

TEST_F(AGrid, CopiesNoRowForATextThatIsNotShown) {
    grid.SetColumnWidths({50, 70, 0});
    grid.SetCell(1, 0, QStringLiteral("a"));
    grid.SetCell(2, 2, QStringLiteral("hidden"));
    grid.SetCurrentCell(1, 0);
    QTest::keyClick(&grid, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("\t\na\t\n"));
}

TEST_F(AGrid, CopiesAnEmptyCellOfARowThatIsNotEmpty) {
    grid.SetCell(0, 2, QStringLiteral("Bonus"));
    grid.SetCell(1, 2, QStringLiteral("9"));
    grid.SetCell(2, 0, QStringLiteral("a"));
    grid.selectionModel()->select(
        QItemSelection(grid.model()->index(0, 2), grid.model()->index(4, 2)),
        QItemSelectionModel::ClearAndSelect);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Bonus\n9\n\n"));
}

TEST_F(AGrid, ScrollsToItsTopAndToARow) {
    grid.SetRowCount(200);
    grid.ScrollToRow(199);
    EXPECT_TRUE(grid.viewport()->rect().intersects(grid.visualRect(grid.model()->index(198, 0))));
    EXPECT_GT(grid.rowAt(0), 0);
    grid.ScrollToTop();
    EXPECT_EQ(grid.rowAt(0), 0);
}

TEST_F(AGrid, BringsARowToItsTop) {
    grid.SetRowCount(200);
    grid.SetTopRow(94);
    EXPECT_EQ(grid.rowAt(0) + 1, 94);
    EXPECT_THROW(grid.SetTopRow(200), Failure);
}

TEST_F(AGrid, PaintsTheBackgroundOfACell) {
    const QColor yellow(255, 255, 0);
    EXPECT_FALSE(grid.CellBackground(2, 1).isValid());
    grid.SetCellBackground(2, 1, yellow);
    EXPECT_EQ(grid.CellBackground(2, 1), yellow);
    EXPECT_EQ(grid.model()->index(1, 1).data(Qt::BackgroundRole).value<QColor>(), yellow);
    const QImage picture = grid.viewport()->grab().toImage();
    EXPECT_EQ(
        picture.pixelColor(grid.visualRect(grid.model()->index(1, 1)).topLeft() + QPoint(3, 3)),
        yellow);
    grid.SetCellBackground(2, 1, QColor());
    EXPECT_FALSE(grid.CellBackground(2, 1).isValid());
}

TEST_F(AGrid, ShowsTheBackgroundOfAMarkedCellDarker) {
    grid.SetCellBackground(2, 1, QColor(255, 255, 0));
    grid.MarkRow(2);
    const QImage picture = grid.viewport()->grab().toImage();
    const QColor shown =
        picture.pixelColor(grid.visualRect(grid.model()->index(1, 1)).topLeft() + QPoint(3, 3));
    EXPECT_EQ(shown.blue(), 0);
    EXPECT_LT(shown.red(), 255);
    EXPECT_GT(shown.red(), 200);
}

TEST_F(AGrid, TellsTheViewOfManyChangesAtOnce) {
    grid.SetRowCount(3000);
    QSignalSpy changes(grid.model(), &QAbstractItemModel::dataChanged);
    for (int row = 1; row < 3000; ++row) {
        for (int column = 0; column < 3; ++column) grid.SetCell(row, column, QString::number(row));
    }
    QApplication::processEvents();
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 2998);
}

TEST_F(AGrid, ForgetsChangesInRowsThatAreGone) {
    grid.SetCell(5, 1, QStringLiteral("x"));
    grid.SetRowCount(2);
    QSignalSpy changes(grid.model(), &QAbstractItemModel::dataChanged);
    QApplication::processEvents();
    EXPECT_EQ(changes.count(), 0);
}

}  // namespace
