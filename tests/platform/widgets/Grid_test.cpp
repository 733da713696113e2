// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Grid.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>
#include <QStyle>

#include "platform/widgets/Contrast.h"
#include "tests/core/failures.h"
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

TEST_F(AGrid, AlignsAColumnWithItsHeading) {
    grid.SetColumnAlignment(2, Qt::AlignRight);
    const auto alignment = [this](int column) {
        return grid.model()->index(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    };
    EXPECT_EQ(alignment(1), Qt::Alignment(Qt::AlignCenter));
    EXPECT_EQ(alignment(2), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(
        grid.model()->headerData(2, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>(),
        Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_THROW(grid.SetColumnAlignment(3, Qt::AlignRight), Failure);
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
    EXPECT_EQ(FailureOf([&] { grid.SetCell(6, 1, QString()); }),
              "grid: row 6, column 1 was asked for, but the grid has 6 rows and 3 columns, "
              "counted from 0");
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
        EXPECT_EQ(grid.columnWidth(column), zeros);
        EXPECT_EQ(grid.horizontalHeader()->sectionResizeMode(column), QHeaderView::Fixed);
    }
}

TEST_F(AGrid, IsAsWideAsItsColumnsTheScrollBarAndNinetyTwips) {
    const int scrollBar = grid.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &grid);
    const int expected = 3 * grid.columnWidth(0) + scrollBar + 6;
    EXPECT_EQ(grid.minimumWidth(), expected);
    EXPECT_EQ(grid.maximumWidth(), expected);
    EXPECT_LE(2 * grid.frameWidth(), 6) << "the frame takes no room of columns and bar";
}

TEST_F(AGrid, FollowsTheWidthsToldByColumnAndHidesColumnsOfNone) {
    grid.SetColumnWidths({50, 70, 0});
    EXPECT_EQ(grid.columnWidth(1), 70);
    EXPECT_TRUE(grid.isColumnHidden(2));
    EXPECT_EQ(grid.model()->columnCount(), 3);
    const int scrollBar = grid.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &grid);
    EXPECT_EQ(grid.width(), 120 + scrollBar + 6);
}

struct AGridInAWindow : testing::Test {
    void Show(const QColor& background) {
        window.setPalette(QPalette(background));
        window.resize(400, 300);
        grid.resize(grid.width(), 200);
        window.show();
    }

    QColor Pixel(int row, int column, QPoint from) {
        const QImage picture = grid.viewport()->grab().toImage();
        return picture.pixelColor(grid.visualRect(grid.model()->index(row - 1, column)).topLeft() +
                                  from);
    }

    /// The colour furthest from the background in a cell: that of its text.
    QColor Ink(int row, int column) {
        const QImage picture = grid.viewport()->grab().toImage();
        const QRect cell = grid.visualRect(grid.model()->index(row - 1, column));
        const QColor background = picture.pixelColor(cell.topLeft() + QPoint(3, 3));
        QColor ink = background;
        for (int x = cell.left() + 3; x < cell.right() - 3; ++x) {
            for (int y = cell.top() + 3; y < cell.bottom() - 3; ++y) {
                const QColor pixel = picture.pixelColor(x, y);
                if (Contrast(pixel, background) > Contrast(ink, background)) ink = pixel;
            }
        }
        return ink;
    }

    QWidget window;
    Grid grid{6, 3, &window};
};

TEST_F(AGridInAWindow, IsLightInALightOne) {
    Show(QColor(0xf0, 0xf0, 0xf0));
    EXPECT_FALSE(grid.IsDark());
    EXPECT_EQ(grid.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_LT(grid.horizontalHeader()->palette().color(QPalette::ButtonText).lightness(), 60);
}

TEST_F(AGridInAWindow, IsDarkInADarkOneAndFollowsIt) {
    Show(QColor(0x20, 0x20, 0x20));
    EXPECT_TRUE(grid.IsDark());
    EXPECT_LT(grid.palette().color(QPalette::Base).lightness(), 60);
    EXPECT_GT(grid.horizontalHeader()->palette().color(QPalette::ButtonText).lightness(), 200);
    window.setPalette(QPalette(QColor(0xf0, 0xf0, 0xf0)));
    EXPECT_FALSE(grid.IsDark());
}

TEST_F(AGridInAWindow, PaintsDarkCounterpartsOfColoursThatStayInTheModel) {
    grid.SetCell(1, 2, QStringLiteral("WWW"));
    grid.SetCellColour(1, 2, QColor(0xa0, 0, 0));
    Show(QColor(0x20, 0x20, 0x20));
    EXPECT_EQ(grid.CellColour(1, 2), QColor(0xa0, 0, 0));
    const QColor ink = Ink(1, 2);
    EXPECT_GT(ink.red(), ink.blue() + 40);
    EXPECT_GE(Contrast(ink, Pixel(1, 2, {3, 3})), 4.5);
}

TEST_F(AGridInAWindow, PaintsColoursOfTheChosenRowToBeReadInEveryWindow) {
    grid.SetCell(1, 2, QStringLiteral("WWW"));
    grid.SetCellColour(1, 2, QColor(0xa0, 0, 0));
    grid.selectRow(0);
    for (const QColor& around : {QColor(0x20, 0x20, 0x20), QColor(0xf0, 0xf0, 0xf0)}) {
        Show(around);
        const QColor ink = Ink(1, 2);
        EXPECT_GT(ink.red(), ink.blue());
        EXPECT_GE(Contrast(ink, Pixel(1, 2, {3, 3})), 4.5) << ink.name().toStdString();
    }
}

TEST_F(AGridInAWindow, PaintsDarkTextOnTheColoursOfMatches) {
    grid.SetCell(1, 1, QStringLiteral("WWW"));
    grid.SetCellBackground(1, 1, QColor(255, 255, 0));
    Show(QColor(0x20, 0x20, 0x20));
    EXPECT_EQ(Pixel(1, 1, {3, 3}), QColor(255, 255, 0));
    EXPECT_GE(Contrast(Ink(1, 1), QColor(255, 255, 0)), 4.5);
}

TEST_F(AGridInAWindow, PaintsNoWhiteCellInADarkOne) {
    grid.SetCellBackground(1, 1, Qt::white);
    Show(QColor(0x20, 0x20, 0x20));
    EXPECT_LT(Pixel(1, 1, {3, 3}).lightness(), 60);
    EXPECT_EQ(grid.CellBackground(1, 1), QColor(Qt::white));
}

TEST_F(AGridInAWindow, PaintsWhatIsNotInUseInTheColourOfTheWindow) {
    const QColor behind(0xe0, 0xf0, 0xe0);
    grid.SetColumnsOutOfUse({1});
    grid.SetRowsInUse(2);
    Show(behind);
    EXPECT_EQ(Pixel(2, 0, {3, 3}), QColor(Qt::white));
    EXPECT_EQ(Pixel(2, 1, {3, 3}), behind);
    EXPECT_EQ(Pixel(3, 0, {3, 3}), behind);
    EXPECT_FALSE(grid.model()->index(2, 0).data(Qt::BackgroundRole).isValid());
}

TEST_F(AGridInAWindow, PaintsTheRoomBehindItsCellsTooWhereRowsAreNotInUse) {
    const QColor behind(0xe0, 0xf0, 0xe0);
    const auto corner = [this] {
        const QImage picture = grid.viewport()->grab().toImage();
        return picture.pixelColor(picture.width() - 2, picture.height() - 2);
    };
    Show(behind);
    EXPECT_EQ(corner(), QColor(Qt::white));
    grid.SetRowsInUse(2);
    EXPECT_EQ(corner(), behind);
}

TEST_F(AGridInAWindow, DimsTheHeadingOfAColumnOutOfUse) {
    for (int column = 0; column < 2; ++column) grid.SetCell(0, column, QStringLiteral("WWW"));
    grid.SetColumnsOutOfUse({1});
    Show(QColor(0xf0, 0xf0, 0xf0));
    const QImage header = grid.horizontalHeader()->grab().toImage();
    const auto darkest = [&](int column) {
        int shade = 255;
        const int left = grid.columnViewportPosition(column);
        for (int x = left + 4; x < left + grid.columnWidth(column) - 4; ++x) {
            for (int y = 3; y < header.height() - 3; ++y) {
                shade = std::min(shade, qGray(header.pixel(x, y)));
            }
        }
        return shade;
    };
    EXPECT_LT(darkest(0), 70);
    EXPECT_GT(darkest(1), 100);
    EXPECT_LT(darkest(1), 200);
}

TEST_F(AGridInAWindow, FramesTheCellBeingEditedWhereAsked) {
    grid.SetCurrentCell(2, 1);
    Show(QColor(0xf0, 0xf0, 0xf0));
    EXPECT_EQ(Pixel(2, 1, {1, 9}), QColor(Qt::white));
    grid.ShowEditedCell();
    EXPECT_EQ(Pixel(2, 1, {0, 9}), grid.palette().color(QPalette::Text));
    EXPECT_EQ(Pixel(2, 1, {1, 9}), grid.palette().color(QPalette::Text));
    EXPECT_EQ(Pixel(2, 0, {1, 9}), QColor(Qt::white));
}

TEST_F(AGridInAWindow, FramesAMarkedRowAsOne) {
    grid.MarkRow(2);
    Show(QColor(0xf0, 0xf0, 0xf0));
    const QColor line = grid.palette().color(QPalette::Text);
    EXPECT_EQ(Pixel(2, 0, {1, 9}), line);
    EXPECT_EQ(Pixel(2, 1, {9, 1}), line);
    EXPECT_NE(Pixel(2, 1, {1, 9}), line) << "between two cells of the row";
    EXPECT_GE(Contrast(line, QColor(Qt::white)), 4.5);
}

TEST_F(AGrid, TellsAMatchWithoutColours) {
    grid.SetCell(2, 1, QStringLiteral("7"));
    grid.SetCell(2, 2, QStringLiteral("9"));
    grid.SetCellMatch(2, 1, Match::Main);
    grid.SetCellMatch(2, 2, Match::Extra);
    const auto spoken = [this](int column) {
        return grid.model()->index(1, column).data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(spoken(1), QStringLiteral("7, matched"));
    EXPECT_EQ(spoken(2), QStringLiteral("9, matched the bonus or extra ball"));
    EXPECT_EQ(grid.Cell(2, 1), QStringLiteral("7"));
    grid.SetCellMatch(2, 1, Match::None);
    EXPECT_EQ(spoken(1), QStringLiteral("7"));
}

TEST_F(AGrid, PaintsAMatchBoldAndThatOfTheExtraBallWithARing) {
    const auto inked = [this] {
        const QImage picture = grid.viewport()->grab().toImage();
        const QRect cell = grid.visualRect(grid.model()->index(1, 1));
        int dark = 0;
        for (int x = cell.left(); x <= cell.right(); ++x) {
            for (int y = cell.top(); y <= cell.bottom(); ++y) {
                if (qGray(picture.pixel(x, y)) < 128) ++dark;
            }
        }
        return dark;
    };
    grid.SetCell(2, 1, QStringLiteral("48"));
    const int plain = inked();
    grid.SetCellMatch(2, 1, Match::Main);
    const int bold = inked();
    grid.SetCellMatch(2, 1, Match::Extra);
    EXPECT_GT(bold, plain);
    EXPECT_GT(inked(), bold + 10);
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

TEST_F(AGrid, TellsOfACellBeforeAMenuOpensOnIt) {
    grid.SetCurrentCell(1, 0);
    QTest::mousePress(grid.viewport(), Qt::RightButton, Qt::NoModifier, Place(3, 1));
    EXPECT_EQ(clicks.count(), 1);
    QTest::mouseRelease(grid.viewport(), Qt::RightButton, Qt::NoModifier, Place(3, 1));
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AGrid, HasAMenuThatCopiesAndSelects) {
    grid.SetCell(0, 0, QStringLiteral("Date"));
    grid.SetCell(5, 0, QStringLiteral("a"));
    ASSERT_EQ(grid.contextMenuPolicy(), Qt::ActionsContextMenu);
    const QList<QAction*> actions = grid.actions();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions[0]->text(), QStringLiteral("Copy"));
    EXPECT_EQ(actions[1]->text(), QStringLiteral("Select all"));
    for (const QAction* action : actions) EXPECT_FALSE(action->shortcut().isEmpty());
    actions[1]->trigger();
    actions[0]->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("Date\t\t\n")));
    EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith(QStringLiteral("a\t\t\n")));
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
