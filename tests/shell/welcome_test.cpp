// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window offers while the info panels are hidden.
#include <QAbstractButton>
#include <QLabel>

#include "core/saved_entries.h"
#include "platform/widgets/Lists.h"
#include "tests/shell/main_window.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* setUpLink = "WelcomeDatabasesCreate";
constexpr const char* addDrawLink = "WelcomewUpdateDbase";
constexpr const char* importLink = "WelcomeDatabaseImport";
constexpr const char* generateLink = "WelcomePlayLuckyDip";
constexpr const char* checkLink = "WelcomeDatabaseCheck";
constexpr const char* storeLink = "WelcomeDatabaseStoreDrawsW";
constexpr const char* deskLink = "WelcomeFileNotes";

const std::string database = "First\r\n\r\n6\r\n49\r\n0\r\n0\r\n0\r\n";
const std::string savedEntry = "01-Jun-2005,1,2,3,4,5,6,,,UK Lotto,Ann,dbase100.txt\r\n";

class WelcomeOfWindow : public MainWindow {
  protected:
    void AddSample() {
        AddLottery(program.folder, "dbasedemo1.txt", "Demo Lotto (sample draws)", "6,49,0,0,1",
                   {"01 Jun 05,1,2,3,4,5,6,0,7"});
    }

    QAbstractButton* Link(const char* name) { return Find<QAbstractButton>(*window, name); }

    /// The links offered, in their order.
    std::vector<std::string> Offered() {
        std::vector<std::string> offered;
        for (const char* name :
             {setUpLink, addDrawLink, importLink, generateLink, checkLink, storeLink, deskLink}) {
            if (Link(name)->isVisible()) offered.emplace_back(name);
        }
        return offered;
    }

    using Links = std::vector<std::string>;
};

TEST_F(WelcomeOfWindow, OffersNothingThatLeadsNowhereWithoutALottery) {
    program.folder.Write(savedEntriesFile, savedEntry);
    Start();
    EXPECT_EQ(Offered(), (Links{setUpLink, importLink, deskLink}));
}

TEST_F(WelcomeOfWindow, BeginsWithTheUsersLotteryWhileThereAreSamplesOnly) {
    AddSample();
    Start();
    EXPECT_EQ(Offered(), (Links{setUpLink, importLink, generateLink, storeLink, deskLink}));
    EXPECT_EQ(Link(setUpLink)->text(), QStringLiteral("Set up your lottery"));
}

TEST_F(WelcomeOfWindow, BeginsWithTheLatestDrawOnceThereIsALottery) {
    AddSample();
    AddUkLotto(program.folder);
    Start();
    EXPECT_EQ(Offered(), (Links{addDrawLink, importLink, generateLink, storeLink, deskLink}));
    EXPECT_EQ(Link(addDrawLink)->text(),
              QStringLiteral("Add the latest draw of UK Lotto (newest: 28 May 2005)"));
}

TEST_F(WelcomeOfWindow, AsksForTheFirstDrawOfALotteryWithoutAny) {
    AddDailyPlay(program.folder);
    Start();
    EXPECT_EQ(Link(addDrawLink)->text(), QStringLiteral("Add the first draw of UK Daily Play"));
}

TEST_F(WelcomeOfWindow, OffersTheCheckOnceEntriesAreSaved) {
    AddUkLotto(program.folder);
    program.folder.Write(savedEntriesFile, savedEntry);
    Start();
    EXPECT_EQ(Offered(),
              (Links{addDrawLink, importLink, generateLink, checkLink, storeLink, deskLink}));
    InDialog([this] { Click(*window, checkLink); },
             [](QDialog& form) { EXPECT_EQ(form.objectName(), QStringLiteral("ShowMyDrawsW")); });
}

TEST_F(WelcomeOfWindow, NoLongerOffersTheCheckOfEntriesThatAreDeleted) {
    AddUkLotto(program.folder);
    program.folder.Write(savedEntriesFile, savedEntry);
    Start();
    program.messages.Expect({.title = QStringLiteral("Warning!"),
                             .text = QStringLiteral(" Are you sure you want to delete     \r\n"
                                                    " all your saved lottery entries?    \r\n"),
                             .sign = Sign::Question,
                             .buttons = Buttons::YesNo,
                             .discards = true},
                            Answer::Yes);
    Choose("FileDeleteSaved");
    EXPECT_FALSE(Link(checkLink)->isVisible());
}

TEST_F(WelcomeOfWindow, OpensTheUpdateOnTheUsersLotteryWhateverStandsBeforeIt) {
    AddSample();
    AddLottery(program.folder, "dbasemine.txt", "Village draw", "5,40,0,0,0",
               {"25 May 05,1,2,3,4,5,0,0,0"});
    Start();
    InDialog([this] { Click(*window, addDrawLink); },
             [this](QDialog& form) {
                 EXPECT_EQ(form.objectName(), QStringLiteral("DbaseUpdateW"));
                 EXPECT_EQ(Find<ListBox>(form, "List1")->Index(), 1);
                 EXPECT_EQ(program.state.LotteryName, "Village draw");
             });
}

TEST_F(WelcomeOfWindow, TellsTheDrawThatHasBeenAdded) {
    AddUkLotto(program.folder);
    Start();
    InDialog([this] { Click(*window, addDrawLink); },
             [this](QDialog&) {
                 AddLottery(program.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
                            {"01 Jun 05,1,2,3,4,5,6,0,7"});
             });
    EXPECT_EQ(Link(addDrawLink)->text(),
              QStringLiteral("Add the latest draw of UK Lotto (newest: 01 Jun 2005)"));
}

TEST_F(WelcomeOfWindow, CutsALongNameAndKeepsTheDate) {
    const std::string name(200, 'w');
    AddLottery(program.folder, "dbase1.txt", name, "6,49,0,0,1", {"01 Jun 05,1,2,3,4,5,6,0,7"});
    Start();
    EXPECT_TRUE(
        Link(addDrawLink)->text().endsWith(QStringLiteral("w\u2026 (newest: 01 Jun 2005)")));
    EXPECT_EQ(Link(addDrawLink)->toolTip().toStdString(), name);
    EXPECT_LE(window->minimumSizeHint().width(), 910);
}

TEST_F(WelcomeOfWindow, ShowsTheAmpersandOfAName) {
    AddLottery(program.folder, "dbase1.txt", "Fish & Chips", "6,49,0,0,1");
    Start();
    EXPECT_EQ(Link(addDrawLink)->accessibleName(),
              QStringLiteral("Add the first draw of Fish & Chips"));
    EXPECT_EQ(Link(addDrawLink)->text(), QStringLiteral("Add the first draw of Fish && Chips"));
}

TEST_F(WelcomeOfWindow, HasTheFocusOnItsFirstLinkAtStart) {
    AddSample();
    Start();
    EXPECT_EQ(window->focusWidget(), Link(setUpLink));
    QTest::keyClick(Link(setUpLink), Qt::Key_Down);
    EXPECT_EQ(window->focusWidget(), Link(importLink));
    QTest::keyClick(Link(importLink), Qt::Key_Up);
    EXPECT_EQ(window->focusWidget(), Link(setUpLink));
}

TEST_F(WelcomeOfWindow, TakesTheFocusBackWhenThePanelsAreHidden) {
    AddSample();
    Start();
    Choose("FileNotes");
    Choose("FileNotes");
    EXPECT_EQ(window->focusWidget(), Link(setUpLink));
}

TEST_F(WelcomeOfWindow, ChangesPlacesWithThePanelsInAWindowOfTheSameSize) {
    AddSample();
    Start();
    const QSize size(1000, 660);
    window->resize(size);
    for (int time = 1; time <= 3; ++time) {
        Choose("FileNotes");
        QApplication::processEvents();
        EXPECT_EQ(window->size(), size) << time;
    }
}

TEST_F(WelcomeOfWindow, TakesAStepOnEnter) {
    Start();
    QTest::keyClick(Link(deskLink), Qt::Key_Return);
    EXPECT_TRUE(Find<QLabel>(*window, biochartHeading)->isVisible());
}

TEST_F(WelcomeOfWindow, LinksGrowWithTheFont) {
    AddSample();
    Start();
    const QSize before = Link(setUpLink)->sizeHint();
    QFont larger = window->font();
    larger.setPointSize(12);
    window->setFont(larger);
    EXPECT_GT(Link(setUpLink)->sizeHint().height(), before.height());
    EXPECT_GT(Link(setUpLink)->sizeHint().width(), before.width());
}

TEST_F(WelcomeOfWindow, BeginsWithALotteryWhereThereIsNone) {
    program.folder.Write("LotteryTemplates.txt", "Sample,6,49,0,0,\r\n");
    Start();
    auto* create = Find<QAbstractButton>(*window, setUpLink);
    auto* generate = Find<QAbstractButton>(*window, generateLink);
    EXPECT_FALSE(generate->isVisible());
    program.messages.Expect({.title = QStringLiteral("Are you sure?"),
                             .text = QStringLiteral("Close and discard data?    "),
                             .sign = Sign::Question,
                             .buttons = Buttons::YesNo},
                            Answer::Yes);
    InDialog([this] { Click(*window, setUpLink); },
             [this](QDialog& form) {
                 EXPECT_EQ(form.objectName(), QStringLiteral("CreateDbase"));
                 program.folder.Write("dbase1.txt", database);
                 QTest::keyClick(&form, Qt::Key_Escape);
             });
    EXPECT_FALSE(create->isVisible());
    EXPECT_TRUE(generate->isVisible());
}

TEST_F(WelcomeOfWindow, LeadsToTheFirstSteps) {
    program.folder.Write("dbase1.txt", database);
    Start();
    InDialog([this] { Click(*window, importLink); },
             [](QDialog& form) { EXPECT_EQ(form.objectName(), QStringLiteral("ImportDraws")); });
    InDialog([this] { Click(*window, generateLink); },
             [](QDialog& form) { EXPECT_EQ(form.objectName(), QStringLiteral("PLuckyDip")); });
    InDialog([this] { Click(*window, storeLink); },
             [](QDialog& form) { EXPECT_EQ(form.objectName(), QStringLiteral("StoreMyDrawsW")); });
    Click(*window, deskLink);
    EXPECT_TRUE(Find<QLabel>(*window, biochartHeading)->isVisible());
}

}  // namespace
