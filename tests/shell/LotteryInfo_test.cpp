// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/LotteryInfo.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "core/settings.h"
#include "tests/core/failures.h"
#include "tests/support/form_test.h"

namespace {

class LotteryInformation : public testing::Test {
  protected:
    LotteryInformation() {
        MakeDefaultSettings(test_.state, test_.folder);
        test_.folder.Write("Lottery Info.txt",
                           "#One\r\nfirst\r\nsecond\r\n# A & B \r\nthird\r\n#Empty\r\n\r\n");
    }

    void Open() {
        form_ = std::make_unique<LotteryInfo>(test_.program, nullptr);
        form_->Load();
        form_->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form_.get()));
    }

    QTabWidget& Tabs() { return *Find<QTabWidget>(*form_, "SSTab1"); }

    QPlainTextEdit& Box(int index) {
        return *Find<QPlainTextEdit>(*form_, ("Text1(" + std::to_string(index) + ")").c_str());
    }

    TestProgram test_;
    std::unique_ptr<LotteryInfo> form_;
};

TEST_F(LotteryInformation, TellsWhatItIs) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Lottery Information"));
    EXPECT_EQ(Find<QLabel>(*form_, "Label1")->text(), QStringLiteral("Lottery Information"));
    EXPECT_EQ(Find<QLabel>(*form_, "Label2")->text(),
              QStringLiteral("It is not possible to feature every lottery in the world, so here is "
                             "a small selection of popular ones..."));
}

TEST_F(LotteryInformation, HasATabForEachSection) {
    Open();
    ASSERT_EQ(Tabs().count(), 3);
    EXPECT_EQ(Tabs().currentIndex(), 0);
    EXPECT_EQ(Tabs().tabText(0), QStringLiteral("One"));
    EXPECT_EQ(Tabs().tabText(1), QStringLiteral(" A && B ")) << "the ampersand is to be shown";
    EXPECT_EQ(Tabs().tabText(2), QStringLiteral("Empty"));
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(Tabs().widget(i)->isAncestorOf(&Box(i)) || Tabs().widget(i) == &Box(i));
}

TEST_F(LotteryInformation, ShowsEachTextWithALineBreakAtItsEnd) {
    Open();
    EXPECT_EQ(Box(0).toPlainText(), QStringLiteral("first\nsecond\n"));
    EXPECT_EQ(Box(1).toPlainText(), QStringLiteral("third\n"));
    EXPECT_EQ(Box(2).toPlainText(), QString());
}

TEST_F(LotteryInformation, IsNotEdited) {
    Open();
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(Box(i).isReadOnly()) << i;
    Box(0).setFocus();
    QTest::keyClicks(&Box(0), QStringLiteral("x"));
    EXPECT_EQ(Box(0).toPlainText(), QStringLiteral("first\nsecond\n"));
}

TEST_F(LotteryInformation, ShowsTextAsItStandsWhateverItLooksLike) {
    test_.folder.Write("Lottery Info.txt", "#<b>One</b>\r\n<i>first</i>\t1\r\n\r\n");
    Open();
    EXPECT_EQ(Tabs().tabText(0), QStringLiteral("<b>One</b>"));
    EXPECT_EQ(Box(0).toPlainText(), QStringLiteral("<i>first</i>\t1\n"));
}

TEST_F(LotteryInformation, HasNoTabWhereTheFileHasOneLine) {
    test_.folder.Write("Lottery Info.txt", "#One\r\n");
    Open();
    EXPECT_EQ(Tabs().count(), 0);
}

TEST_F(LotteryInformation, HasTenTabsAtMost) {
    std::string content;
    for (int i = 0; i < 10; ++i) content += "#" + std::to_string(i) + "\r\ntext\r\n";
    test_.folder.Write("Lottery Info.txt", content + "\r\n");
    Open();
    EXPECT_EQ(Tabs().count(), 10);
    test_.folder.Write("Lottery Info.txt", content + "#10\r\n\r\n");
    EXPECT_NE(FailureOf([this] { Open(); }).find("line 21"), std::string::npos);
}

TEST_F(LotteryInformation, FailsWithoutItsFile) {
    test_.folder.Delete("Lottery Info.txt");
    EXPECT_NE(FailureOf([this] { Open(); }).find("Lottery Info.txt"), std::string::npos);
    test_.folder.Write("Lottery Info.txt", "");
    EXPECT_NE(FailureOf([this] { Open(); }).find("Lottery Info.txt"), std::string::npos);
}

TEST_F(LotteryInformation, ColoursTitleAndExplanation) {
    test_.state.Settings(setting::SkinBits) = "2";
    test_.state.Settings(setting::TitleColour) = "&H0000FF";
    test_.state.Settings(setting::BodyColour) = "&HFF0000";
    Open();
    const auto colour = [this](const char* label) {
        return Find<QLabel>(*form_, label)->palette().color(QPalette::WindowText);
    };
    EXPECT_EQ(colour("Label1"), QColor(Qt::red));
    EXPECT_EQ(colour("Label2"), QColor(Qt::blue));
}

TEST_F(LotteryInformation, LeadsTheTabKeyFromTheTabsToTheTextToTheButton) {
    Open();
    Tabs().tabBar()->setFocus();
    QTest::keyClick(form_->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(Box(0).hasFocus());
    QTest::keyClick(form_->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(Find<QPushButton>(*form_, "Command1")->hasFocus());
    Tabs().setCurrentIndex(1);
    Tabs().tabBar()->setFocus();
    QTest::keyClick(form_->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(Box(1).hasFocus());
    QTest::keyClick(form_->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(Find<QPushButton>(*form_, "Command1")->hasFocus());
}

TEST_F(LotteryInformation, ClosesByItsButtonAndByEsc) {
    Open();
    EXPECT_EQ(Find<QPushButton>(*form_, "Command1")->toolTip(), QStringLiteral(" Close "));
    Click(*form_, "Command1");
    EXPECT_FALSE(form_->isVisible());
    Open();
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
}

}  // namespace
