// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/WindowSize.h"

#include <QTemporaryDir>

#include "platform/forms/RoomOnScreen.h"
#include "platform/system/WindowStates.h"
#include "tests/support/form_test.h"

namespace {

const QString name = QStringLiteral("PFullSel");
constexpr QSize usual(400, 300);
constexpr QSize wanted(520, 410);

struct AWindowThatRemembers : testing::Test {
    std::unique_ptr<QWidget> Open() {
        auto window = std::make_unique<QWidget>();
        window->setObjectName(name);
        window->setMinimumSize(100, 100);
        window->resize(usual);
        RememberSize(*window, &states);
        window->show();
        QApplication::processEvents();
        return window;
    }

    QTemporaryDir folder;
    WindowStates states{folder.filePath(QStringLiteral("windows.ini"))};
};

TEST_F(AWindowThatRemembers, OpensInItsUsualSizeTheFirstTime) { EXPECT_EQ(Open()->size(), usual); }

TEST_F(AWindowThatRemembers, OpensAsLargeAsItsUserLeftIt) {
    auto window = Open();
    window->resize(wanted);
    window->hide();
    EXPECT_EQ(Open()->size(), wanted);
}

TEST_F(AWindowThatRemembers, IsKeptAsSoonAsItIsClosedWhateverFollows) {
    auto window = Open();
    window->resize(wanted);
    QCloseEvent closing;
    QApplication::sendEvent(window.get(), &closing);
    EXPECT_EQ(states.Of(name), (WindowState{.size = wanted}));
}

TEST_F(AWindowThatRemembers, LeavesNothingBehindWhereItsUserLeftItAlone) {
    Open()->close();
    EXPECT_EQ(states.Of(name), std::nullopt);
}

TEST_F(AWindowThatRemembers, OpensMaximizedAndReturnsToItsOwnSize) {
    auto window = Open();
    window->resize(wanted);
    window->showMaximized();
    QApplication::processEvents();
    window->close();
    auto next = Open();
    EXPECT_TRUE(next->isMaximized());
    next->showNormal();
    QApplication::processEvents();
    EXPECT_EQ(next->size(), wanted);
    next->close();
    EXPECT_EQ(states.Of(name), (WindowState{.size = wanted}));
}

TEST_F(AWindowThatRemembers, StaysMaximizedFromRunToRun) {
    states.Keep(name, {.size = wanted, .maximized = true});
    Open()->close();
    EXPECT_EQ(states.Of(name), (WindowState{.size = wanted, .maximized = true}));
}

TEST_F(AWindowThatRemembers, OpensNoLargerThanItsScreen) {
    states.Keep(name, {.size = {9000, 9000}});
    const auto window = Open();
    EXPECT_EQ(window->size(), RoomOnScreen(*window));
}

TEST_F(AWindowThatRemembers, OpensNoSmallerThanItMayBe) {
    states.Keep(name, {.size = {1, 1}});
    EXPECT_EQ(Open()->size(), QSize(100, 100));
}

TEST_F(AWindowThatRemembers, OpensInItsUsualSizeWhereNothingIsKept) {
    QWidget window;
    window.resize(usual);
    RememberSize(window, nullptr);
    window.show();
    EXPECT_EQ(window.size(), usual);
}

}  // namespace
