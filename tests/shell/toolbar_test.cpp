// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Toolbar.h"

#include <QLabel>

#include "core/settings.h"
#include "platform/system/LocaleRegion.h"
#include "tests/shell/main_window.h"

namespace {

constexpr std::array<const char*, 16> toolTips = {" Show notes, checklist, etc. ",
                                                  " Download latest lottery results ",
                                                  " View lottery draws databases ",
                                                  " Check lottery entries to see if you have won ",
                                                  " Type in your lottery entries ",
                                                  " Chart the most common numbers ",
                                                  " Statistical analysis of lottery numbers ",
                                                  " Chart odd:even number ratios ",
                                                  " Full selection pick ",
                                                  " Hot numbers pick ",
                                                  " Lucky dip pick ",
                                                  " Create your own wheel ",
                                                  " Browse the Internet ",
                                                  " Lottery information ",
                                                  " Help ",
                                                  " Quit "};

/// The menu entries that the pictures stand for.
constexpr std::array<const char*, 16> pictureEntries = {
    "FileNotes",           "DatabaseUpdate",  "wDatabaseView",   "DatabaseCheck",
    "DatabaseStoreDrawsW", "AnalysisCommon",  "AnalyseNumStats", "AnalyseOddEven",
    "PlayFullSel",         "PlayHot",         "PlayLucky",       "PlayDIYWheels",
    "LinksLink(0)",        "HelpLotteryInfo", "HelpHelp",        "FileExit"};

class ToolbarOfWindow : public MainWindow {
  protected:
    ToolbarPicture* Picture(int index) {
        return Find<ToolbarPicture>(*window, ToolbarButton(index).c_str());
    }

    QString DownloadEntry() { return Find<Toolbar>(*window, toolbarBackground)->EntryOf(1); }

    std::vector<int> Bordered() {
        std::vector<int> bordered;
        for (int i = 0; i < 16; ++i) {
            if (Picture(i)->property("bordered").toBool()) bordered.push_back(i);
        }
        return bordered;
    }

    static void MoveOver(QWidget* widget, QPoint place) {
        QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
    }
};

TEST_F(ToolbarOfWindow, HasSixteenPicturesWithTheirToolTips) {
    Start();
    for (int i = 0; i < 16; ++i) {
        const QString toolTip = QString::fromLatin1(toolTips.at(static_cast<std::size_t>(i)));
        EXPECT_EQ(Picture(i)->toolTip(), toolTip);
        EXPECT_EQ(Picture(i)->accessibleName(), toolTip.trimmed());
        EXPECT_FALSE(Picture(i)->icon().pixmap(26).isNull()) << i;
    }
}

TEST_F(ToolbarOfWindow, PicturesAre390TwipsLargeAndStandOnLabel1) {
    Start();
    auto* background = Find<QLabel>(*window, toolbarBackground);
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(Picture(i)->size(), QSize(26, 26));
        EXPECT_EQ(Picture(i)->parentWidget(), background);
    }
}

TEST_F(ToolbarOfWindow, TheBorderFollowsTheMouse) {
    Start();
    EXPECT_TRUE(Bordered().empty());
    MoveOver(Picture(4), {5, 5});
    EXPECT_EQ(Bordered(), std::vector{4});
    MoveOver(Picture(9), {5, 5});
    EXPECT_EQ(Bordered(), std::vector{9});
}

TEST_F(ToolbarOfWindow, MovingOverTheBackgroundTakesTheBorderAway) {
    Start();
    MoveOver(Picture(4), {5, 5});
    auto* background = Find<QLabel>(*window, toolbarBackground);
    MoveOver(background, {background->width() - 3, 3});
    EXPECT_TRUE(Bordered().empty());
}

TEST_F(ToolbarOfWindow, MovingOverTheFormTakesTheBorderAway) {
    Start();
    MoveOver(Picture(4), {5, 5});
    QWidget* centre = window->centralWidget();
    MoveOver(centre, {5, centre->height() - 5});
    EXPECT_TRUE(Bordered().empty());
}

TEST_F(ToolbarOfWindow, MovingOverThePanelsTakesTheBorderAway) {
    Start();
    Choose("FileNotes");
    MoveOver(Picture(4), {5, 5});
    MoveOver(Find<QLabel>(*window, checklistHeading)->parentWidget(), {3, 3});
    EXPECT_TRUE(Bordered().empty());
}

TEST_F(ToolbarOfWindow, LeavingForAPanelInOneJumpTakesTheBorderAway) {
    Start();
    Choose("FileNotes");
    QTest::mouseMove(Picture(4));
    EXPECT_EQ(Bordered(), std::vector{4});
    QTest::mouseMove(Find<QWidget>(*window, notePad));
    EXPECT_TRUE(Bordered().empty());
}

TEST_F(ToolbarOfWindow, TheBorderDoesNotMoveThePictures) {
    Start();
    const QRect before = Picture(5)->geometry();
    MoveOver(Picture(4), {5, 5});
    MoveOver(Picture(5), {5, 5});
    EXPECT_EQ(Picture(5)->geometry(), before);
}

TEST_F(ToolbarOfWindow, ABorderedPictureLooksDifferent) {
    Start();
    const QImage before = Picture(8)->grab().toImage();
    MoveOver(Picture(8), {5, 5});
    EXPECT_NE(Picture(8)->grab().toImage(), before);
}

TEST_F(ToolbarOfWindow, PictureZeroShowsThePanels) {
    Start();
    Click(*window, ToolbarButton(0).c_str());
    EXPECT_TRUE(Find<QLabel>(*window, biochartHeading)->isVisible());
}

TEST_F(ToolbarOfWindow, PictureTwelveOpensLinkZeroEvenWhileItsEntryIsHidden) {
    MakeDefaultSettings(program.state, program.folder);
    program.state.Settings(setting::LinkCaptions).clear();
    SaveSettings(program.state, program.folder);
    Start();
    EXPECT_FALSE(Entry("LinksLink(0)")->isVisible());
    Click(*window, ToolbarButton(12).c_str());
    EXPECT_EQ(program.pages,
              std::vector<QString>{QString::fromStdString(Setting(setting::LinkAddresses))});
    EXPECT_FALSE(Picture(12)->Dimmed());
}

TEST_F(ToolbarOfWindow, PictureFourteenOpensTheHelpPage) {
    Start();
    Click(*window, ToolbarButton(14).c_str());
    EXPECT_EQ(program.pages, std::vector<QString>{QStringLiteral("help.html")});
}

TEST_F(ToolbarOfWindow, PictureFifteenQuits) {
    Start();
    Click(*window, ToolbarButton(15).c_str());
    EXPECT_EQ(timesEnded, 1);
}

TEST_F(ToolbarOfWindow, PictureFourOpensTheFormToStoreEntries) {
    program.folder.Write("dbase1.txt", "First\r\n\r\n6\r\n49\r\n0\r\n0\r\n0\r\n");
    Start();
    InDialog([this] { Click(*window, ToolbarButton(4).c_str()); },
             [](QDialog& form) { EXPECT_EQ(form.objectName(), QStringLiteral("StoreMyDrawsW")); });
}

TEST_F(ToolbarOfWindow, TheLuckyDipPictureStandsForNumerologyAndIsDimmedUntilThatExists) {
    Start();
    EXPECT_EQ(Picture(10)->Dimmed(), !Entry("PlayLucky")->isEnabled());
}

TEST_F(ToolbarOfWindow, PicturesOfFormsThatDoNotExistYetDoNothingButTakeTheBorder) {
    Start();
    for (int index = 0; index < 16; ++index) {
        if (!Picture(index)->Dimmed()) continue;
        Click(*window, ToolbarButton(index).c_str());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << index;
        MoveOver(Picture(index), {5, 5});
        EXPECT_EQ(Bordered(), std::vector{index});
    }
    EXPECT_TRUE(program.pages.empty());
}

TEST_F(ToolbarOfWindow, APictureIsDimmedWhileItsEntryIsDisabled) {
    Start();
    for (int index = 0; index < 16; ++index) {
        EXPECT_EQ(Picture(index)->Dimmed(),
                  !Entry(pictureEntries.at(static_cast<std::size_t>(index)))->isEnabled())
            << index;
    }
}

TEST_F(ToolbarOfWindow, APictureTriggersItsEntryAndNoOther) {
    Start();
    std::vector<QString> triggered;
    const auto actions = window->findChildren<QAction*>();
    for (QAction* action : actions) {
        QObject::disconnect(action, &QAction::triggered, nullptr, nullptr);
        action->setEnabled(true);
        QObject::connect(action, &QAction::triggered, window.get(),
                         [&triggered, action] { triggered.push_back(action->objectName()); });
    }
    for (int index = 0; index < 16; ++index) {
        if (index == 12) continue;  // the internet has no entry that can be counted on
        triggered.clear();
        Click(*window, ToolbarButton(index).c_str());
        const char* entry = pictureEntries.at(static_cast<std::size_t>(index));
        EXPECT_EQ(triggered, std::vector<QString>{QString::fromLatin1(entry)}) << index;
    }
}

TEST_F(ToolbarOfWindow, BritishDatesMeanTheDownloadForTheUk) {
    Start();
    EXPECT_EQ(DownloadEntry(), QStringLiteral("DatabaseUpdate"));
}

TEST_F(ToolbarOfWindow, OtherDatesMeanTheDownloadForTheUs) {
    for (const QLocale& locale :
         {QLocale(QLocale::English, QLocale::UnitedStates),
          QLocale(QLocale::Swedish, QLocale::Sweden), QLocale(QLocale::German, QLocale::Germany)}) {
        program.services.region = RegionOf(locale);
        Start();
        EXPECT_EQ(DownloadEntry(), QStringLiteral("DatabaseUS")) << locale.name().toStdString();
    }
}

TEST_F(ToolbarOfWindow, TheTabKeyStopsAtOnePictureAndArrowsGoToTheOthers) {
    Start();
    std::vector<int> stops;
    for (int index = 0; index < 16; ++index) {
        if ((Picture(index)->focusPolicy() & Qt::TabFocus) != 0) stops.push_back(index);
    }
    EXPECT_EQ(stops, std::vector{0});
    const std::vector<std::pair<Qt::Key, int>> walk = {
        {Qt::Key_Right, 1},  {Qt::Key_Right, 2}, {Qt::Key_Left, 1}, {Qt::Key_End, 15},
        {Qt::Key_Right, 15}, {Qt::Key_Home, 0},  {Qt::Key_Left, 0}, {Qt::Key_Right, 1}};
    Picture(0)->setFocus(Qt::TabFocusReason);
    for (const auto& [key, place] : walk) {
        QTest::keyClick(window->focusWidget(), key);
        EXPECT_EQ(window->focusWidget(), Picture(place));
    }
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(qobject_cast<ToolbarPicture*>(window->focusWidget()), nullptr);
    QTest::keyClick(window->focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(window->focusWidget(), Picture(1)) << "it comes back to where it was";
}

TEST_F(ToolbarOfWindow, ThePicturesAnswerTheKeyboard) {
    Start();
    Picture(14)->setFocus();
    QTest::keyClick(Picture(14), Qt::Key_Space);
    QTest::keyClick(Picture(14), Qt::Key_Return);
    EXPECT_EQ(program.pages, std::vector<QString>(2, QStringLiteral("help.html")));
}

}  // namespace
