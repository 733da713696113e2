// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/GridEditor.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"
#include "tests/support/form_test.h"

namespace {

const QColor paleYellow(0xFF, 0xFF, 0xC0);

class AGridWithAnEditBox : public testing::Test {
  protected:
    AGridWithAnEditBox() {
        auto* layout = new QVBoxLayout(&window_);
        layout->addWidget(grid_);
        layout->addWidget(box_);
        layout->addWidget(enter_);
        for (int row = 1; row < grid_->RowCount(); ++row) {
            for (int column = 0; column < 3; ++column) {
                grid_->SetCell(row, column, QString::number(10 * row + column));
            }
        }
        window_.show();
        QApplication::processEvents();
    }

    void ClickCell(int row, int column) {
        const QModelIndex index = grid_->model()->index(row - 1, column);
        QTest::mouseClick(grid_->viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid_->visualRect(index).center());
    }

    QWidget window_;
    Grid* grid_ = new Grid(5, 3);
    FilteredBox* box_ = new FilteredBox;
    QPushButton* enter_ = new QPushButton;
    GridEditor editor_{*grid_, *box_, *enter_};
    QSignalSpy changes_{&editor_, &GridEditor::cellChanged};
    QSignalSpy requests_{&editor_, &GridEditor::editRequested};
};

TEST_F(AGridWithAnEditBox, TellsOfAClickOnAnotherCellOnly) {
    ClickCell(2, 1);
    ASSERT_EQ(changes_.size(), 1);
    EXPECT_EQ(changes_[0], (QVariantList{2, 1}));
    EXPECT_EQ(editor_.Row(), 2);
    EXPECT_EQ(editor_.Column(), 1);
    ClickCell(2, 1);
    EXPECT_EQ(changes_.size(), 1);
    EXPECT_EQ(requests_.size(), 2);
}

TEST_F(AGridWithAnEditBox, TellsOfAMoveByTheKeyboardWithoutAskingForTheBox) {
    editor_.GoTo(1, 1);
    grid_->setFocus();
    QTest::keyClick(grid_, Qt::Key_Down);
    EXPECT_EQ(changes_.back(), (QVariantList{2, 1}));
    EXPECT_EQ(requests_.size(), 0);
    QTest::keyClick(grid_, Qt::Key_Return);
    EXPECT_EQ(requests_.size(), 1);
    EXPECT_EQ(changes_.size(), 2);
}

TEST_F(AGridWithAnEditBox, TellsOfEveryGoTo) {
    editor_.GoTo(3, 2);
    editor_.GoTo(3, 2);
    EXPECT_EQ(changes_.size(), 2);
    EXPECT_EQ(grid_->currentIndex(), grid_->model()->index(2, 2));
}

TEST_F(AGridWithAnEditBox, MarksTheCurrentCellAndTakesTheMarkBack) {
    editor_.GoTo(1, 0);
    editor_.MarkCell();
    EXPECT_EQ(grid_->CellBackground(1, 0), paleYellow);
    editor_.GoTo(2, 2);
    editor_.MarkCell();
    EXPECT_EQ(grid_->CellBackground(1, 0), QColor(Qt::white));
    EXPECT_EQ(grid_->CellBackground(2, 2), paleYellow);
    editor_.MarkCell();
    EXPECT_EQ(grid_->CellBackground(2, 2), paleYellow);
}

TEST_F(AGridWithAnEditBox, ShowsTheCellsTextWhollyMarked) {
    editor_.GoTo(2, 1);
    editor_.ShowCell();
    EXPECT_EQ(box_->selectedText(), QStringLiteral("21"));
    EXPECT_FALSE(box_->hasFocus());
    editor_.EditCell();
    EXPECT_TRUE(box_->hasFocus());
    EXPECT_TRUE(grid_->ShowsEditedCell());
}

TEST_F(AGridWithAnEditBox, EnterInTheBoxClicksItsButton) {
    const QSignalSpy clicks(enter_, &QPushButton::clicked);
    QTest::keyClick(box_, Qt::Key_Return);
    EXPECT_EQ(clicks.size(), 1);
}

}  // namespace
