// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PlayFrame.h"

#include <QPushButton>

#include "core/settings.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "tests/support/lines_form.h"
#include "tests/support/sample_lotteries.h"

namespace {

/// What a form sees of the run at one of its steps.
struct Sight {
    std::string lottery;
    int busy = 0;
    bool hourglass = false;
    bool gridCleared = false;
};

/// A form on the frame that shows one line, and notes down what it sees while it works.
class WatchingForm final : public PlayFrame {
  public:
    explicit WatchingForm(Program& program)
        : PlayFrame(program, {QStringLiteral("Watching"), {}, {}, {}}, {}, 5, nullptr) {}

    using PlayFrame::EmptyGrid;
    std::vector<Sight> reset;
    std::vector<Sight> loaded;
    std::vector<Sight> generated;

  protected:
    void ResetInputs() override { reset.push_back(Look()); }

    void DatabaseLoaded() override { loaded.push_back(Look()); }

    void MakeLines() override {
        generated.push_back(Look());
        state().Lines(1, 1) = 7;
        state().Lines(2, 1) = 0;
        ShowResult();
    }

  private:
    Sight Look() const {
        const Grid& grid = *Find<Grid>(*this, linesGrid);
        const QCursor* cursor = QGuiApplication::overrideCursor();
        return {.lottery = state().LotteryName,
                .busy = state().Busy,
                .hourglass = cursor != nullptr && cursor->shape() == Qt::WaitCursor,
                .gridCleared = grid.Cell(1, 0).isEmpty() && !grid.Cell(0, 0).isEmpty()};
    }
};

struct ThePlayFrame : testing::Test {
    ThePlayFrame() {
        AddUkLotto(test.folder);
        AddThunderball(test.folder);
        form = std::make_unique<WatchingForm>(test.program);
        form->Load();
        form->reset.clear();
        form->loaded.clear();
        form->generated.clear();
    }

    void ChooseSecondLottery() { Find<ListBox>(*form, lotteryList)->SetIndex(1); }

    TestProgram test;
    std::unique_ptr<WatchingForm> form;
};

TEST_F(ThePlayFrame, LoadsALotteryBusyUnderTheHourglassWithTheGridCleared) {
    ChooseSecondLottery();
    ASSERT_EQ(form->loaded.size(), 1U);
    EXPECT_EQ(form->loaded[0].lottery, "UK Thunderball");
    EXPECT_EQ(form->loaded[0].busy, -1);
    EXPECT_TRUE(form->loaded[0].hourglass);
    EXPECT_TRUE(form->loaded[0].gridCleared);
}

TEST_F(ThePlayFrame, ResetsInputsBeforeItClearsTheGridAndLoads) {
    ChooseSecondLottery();
    ASSERT_EQ(form->reset.size(), 1U);
    EXPECT_EQ(form->reset[0].lottery, "UK Lotto");
    EXPECT_EQ(form->reset[0].busy, -1);
    EXPECT_TRUE(form->reset[0].hourglass);
    EXPECT_FALSE(form->reset[0].gridCleared);
}

TEST_F(ThePlayFrame, GrowsItsGridForTheLinesOfAnotherForm) {
    test.state.Settings(setting::LongRunStrength) = "3";
    test.state.Lines.Fill(0);
    for (int row = 1; row <= 179; ++row) {
        for (int column = 1; column <= 6; ++column) {
            test.state.Lines(row, column) = static_cast<std::int16_t>(row + 7 * column);
        }
    }
    form->show();
    Click(*form, usualFilters.longRuns);
    EXPECT_EQ(Find<Grid>(*form, linesGrid)->Cell(179, 1), QStringLiteral("186"));
}

TEST_F(ThePlayFrame, GeneratesAfterTheLoadBusyUnderTheHourglass) {
    ChooseSecondLottery();
    ASSERT_EQ(form->generated.size(), 1U);
    EXPECT_EQ(form->generated[0].lottery, "UK Thunderball");
    EXPECT_EQ(form->generated[0].busy, -1);
    EXPECT_TRUE(form->generated[0].hourglass);
    EXPECT_EQ(Find<Grid>(*form, linesGrid)->Cell(1, 1), QStringLiteral("7"));
}

TEST_F(ThePlayFrame, IsNeitherBusyNorUnderTheHourglassAfterwards) {
    ChooseSecondLottery();
    EXPECT_EQ(test.state.Busy, 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ThePlayFrame, ClearsTheGridBeforeALoadThatFails) {
    test.folder.Lock(test.state.DbaseFiles(1));
    EXPECT_THROW(ChooseSecondLottery(), std::runtime_error);
    EXPECT_EQ(Find<Grid>(*form, linesGrid)->Cell(1, 1), QString());
    EXPECT_TRUE(form->generated.empty());
}

TEST_F(ThePlayFrame, LeavesInUseWhatTheLotteryHas) {
    const Grid& grid = *Find<Grid>(*form, linesGrid);
    EXPECT_TRUE(grid.InUse(1, 6));
    EXPECT_FALSE(grid.ColumnInUse(8));
    EXPECT_FALSE(grid.InUse(2, 1)) << "behind the only line";
    ChooseSecondLottery();
    EXPECT_FALSE(grid.ColumnInUse(6));
    EXPECT_TRUE(grid.ColumnInUse(8));
}

TEST_F(ThePlayFrame, LeavesNoRowInUseWhereTheGridIsEmptied) {
    form->EmptyGrid();
    EXPECT_FALSE(Find<Grid>(*form, linesGrid)->InUse(1, 1));
}

TEST_F(ThePlayFrame, GivesTheRoomOfAWideWindowToTheSideOfTheGrid) {
    form->show();
    form->resize(1000, 700);
    QApplication::processEvents();
    const Grid& grid = *Find<Grid>(*form, linesGrid);
    const int left = grid.x();
    const int width = grid.width();
    form->resize(1600, 700);
    QApplication::processEvents();
    EXPECT_EQ(grid.x(), left);
    EXPECT_EQ(grid.width(), width) << "the columns keep their widths";
    const auto* list = Find<QWidget>(*form, lotteryList);
    EXPECT_LE(list->width(), 320);
    EXPECT_EQ(list->x(), Find<QWidget>(*form, lotteryPrompt)->x());
    const auto* filter = Find<QWidget>(*form, usualFilters.highLow);
    EXPECT_LE(filter->mapTo(form.get(), filter->rect().topRight()).x() - list->x(), 320);
}

TEST_F(ThePlayFrame, HasGenerateBelowTheInputsAndAboveTheFilters) {
    form->show();
    QApplication::processEvents();
    const auto top = [this](const char* name) {
        return Find<QWidget>(*form, name)->mapTo(form.get(), QPoint(0, 0)).y();
    };
    EXPECT_GT(top(generateButton), top(lotteryList));
    EXPECT_LT(top(generateButton), top(usualFilters.oddEven));
    EXPECT_TRUE(Find<QPushButton>(*form, generateButton)->isDefault());
}

TEST_F(ThePlayFrame, ShowsFourLotteriesAtLeastAndMoreWhereThereIsRoom) {
    form->show();
    form->resize(form->minimumSize());
    QApplication::processEvents();
    auto* list = Find<ListBox>(*form, lotteryList);
    EXPECT_GE(list->viewport()->height(), 4 * list->sizeHintForRow(0));
    const int height = list->height();
    form->resize(form->size() + QSize(0, 200));
    QApplication::processEvents();
    EXPECT_EQ(list->height(), height + 200) << "the spare height is the list's";
}

TEST_F(ThePlayFrame, SaysHowManyLinesAFilterTookOut) {
    form->show();
    test.state.Settings(setting::LongRunStrength) = "2";
    const auto filter = [this](const std::vector<int>& lines) {
        // A line of 1, 2, 3, ... has too long a run, one of 2, 4, 6, ... has none.
        int row = 1;
        for (const int step : lines) {
            for (int column = 1; column <= 6; ++column) {
                test.state.Lines(row, column) = static_cast<std::int16_t>(step * column);
            }
            ++row;
        }
        test.state.Lines(row, 1) = 0;
        Click(*form, usualFilters.longRuns);
        return Find<QLabel>(*form, "Said")->text();
    };
    EXPECT_EQ(filter({2, 1, 2}), QStringLiteral("1 line taken out, 2 left"));
    EXPECT_EQ(filter({1, 2, 1}), QStringLiteral("2 lines taken out, 1 left"));
    EXPECT_EQ(filter({1}), QStringLiteral("1 line taken out, none left"));
    EXPECT_EQ(filter({2, 2}), QStringLiteral("No line taken out, 2 left"));
    EXPECT_EQ(filter({}), QStringLiteral("There are no lines to filter"));
    Click(*form, generateButton);
    EXPECT_EQ(Find<QLabel>(*form, "Said")->text(), QString());
}

}  // namespace
