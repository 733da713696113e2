// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DbaseUpdate.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

#include "core/settings.h"
#include "platform/system/LocaleRegion.h"
#include "platform/widgets/Lists.h"
#include "tests/databases/download_form.h"

namespace {

const Message wrongRegion{
    .title = QStringLiteral("Warning!"),
    .text = QStringLiteral("Please set the region to United Kingdom in the  \r\n"
                           "Control Panel to download UK lottery draws."),
    .sign = Sign::Exclamation};

const Message question{.title = QStringLiteral("Update URLs"),
                       .text = QStringLiteral("Are you sure you want to change the URLs?    "),
                       .sign = Sign::Question,
                       .buttons = Buttons::YesNo};

std::string PageOf(const std::string& row, std::size_t size = 2000) {
    return Filled("DrawDate,Balls\r\n" + row + "\r\n\r\n", size);
}

constexpr const char* row = "04-Jun-2005,1,2,3,4,5,6,7,8";

class DownloadingUkDraws : public DownloadFormTest<DbaseUpdate> {
  protected:
    void Offer(int lottery, const std::string& page) {
        pages_[AddressOf(setting::UkDownloadAddresses + lottery)] = page;
    }

    void OfferAll() {
        for (int lottery = 0; lottery < 5; ++lottery) Offer(lottery, PageOf(row));
    }

    std::string Database(int lottery) {
        return test_.folder.Read("dbase10" + std::to_string(lottery) + ".txt");
    }
};

TEST_F(DownloadingUkDraws, ReplacesEachDatabaseByItsPage) {
    OfferAll();
    test_.folder.Write("DBASE100.TXT", "old draws");
    Open();
    Run();
    const std::string site = "\r\nhttp://www.national-lottery.example\r\n";
    EXPECT_EQ(Database(0), "UK Lotto" + site + "6,49,0,0,1\r\n04-Jun-2005,1,2,3,4,5,6,0,7\r\n");
    EXPECT_EQ(Database(1),
              "UK Thunderball" + site + "5,34,1,14,0\r\n04-Jun-2005,1,2,3,4,5,0,0,6\r\n");
    EXPECT_EQ(Database(2),
              "UK Daily Play" + site + "7,27,0,0,0\r\n04-Jun-2005,1,2,3,4,5,6,7,0\r\n");
    EXPECT_EQ(Database(3),
              "UK Lotto Extra" + site + "6,49,0,0,0\r\n04-Jun-2005,1,2,3,4,5,6,0,0\r\n");
    EXPECT_EQ(Database(4),
              "UK Lotto Hot Picks" + site + "4,49,0,0,0\r\n04-Jun-2005,1,2,3,4,5,6,0,0\r\n");
    EXPECT_EQ(test_.folder.Read("temp.txt"), PageOf(row) + "\r\n");
    EXPECT_EQ(test_.folder.OldFiles(),
              (std::map<std::string, std::string>{
                  {"Backup/Undo/2000-01-01 000000 dbase100.txt", "old draws"}}));
    EXPECT_EQ(fetched_.size(), 5U);
}

TEST_F(DownloadingUkDraws, TellsEachStepWithTheTimeOfThatMoment) {
    Offer(0, PageOf(row));
    test_.state.Settings(setting::UkDownloadNames + 1).clear();
    ticksAFetch_ = 4;
    Open();
    Run();
    EXPECT_EQ(Progress(), (QStringList{QStringLiteral("Downloading UK Lotto draws...0.0 sec"),
                                       QStringLiteral("Processing UK Lotto draws...0.4 sec"),
                                       QStringLiteral("Updated UK Lotto database.0.4 sec"),
                                       QStringLiteral("Finished...0.4 sec")}));
    EXPECT_EQ(List().Index(), 3);
}

TEST_F(DownloadingUkDraws, TriesTheNextLotteryWhereAPageIsMissing) {
    OfferAll();
    Offer(0, "");
    test_.folder.Write("dbase100.txt", "old draws");
    ticksAFetch_ = 12;
    int chosenAtSecond = -2;
    onFetch_ = [&] {
        if (fetched_.size() == 2) chosenAtSecond = List().Index();
    };
    Open();
    Run();
    EXPECT_EQ(Progress().mid(0, 4),
              (QStringList{QStringLiteral("Downloading UK Lotto draws...0.0 sec"),
                           QStringLiteral("An error occured downoading UK Lotto"),
                           QStringLiteral("Downloading UK Thunderball draws...1.2 sec"),
                           QStringLiteral("Processing UK Thunderball draws...2.4 sec")}));
    EXPECT_EQ(chosenAtSecond, 2);
    EXPECT_EQ(Database(0), "old draws");
    EXPECT_EQ(fetched_.size(), 5U);
}

TEST_F(DownloadingUkDraws, LeavesTheChoiceAtAnErrorAndTheWorkFileOfBefore) {
    test_.folder.Write("Temp.txt", "old page");
    Open();
    std::vector<int> choices;
    onFetch_ = [&] { choices.push_back(List().Index()); };
    Run();
    EXPECT_EQ(choices, (std::vector{0, 2, 4, 6, 8}));
    EXPECT_EQ(test_.folder.Read("Temp.txt"), "old page");
    EXPECT_TRUE(test_.folder.Find("dbase*.txt").empty());
}

TEST_F(DownloadingUkDraws, SaysWhyAPageIsMissingUntilAnotherComes) {
    OfferAll();
    Offer(0, "");
    Offer(1, PageOf(row, 999));
    QStringList said;
    onFetch_ = [&] { said += Said(); };
    Open();
    Run();
    EXPECT_EQ(said, (QStringList{{},
                                 QStringLiteral("UK Lotto: No page."),
                                 QStringLiteral("UK Thunderball: A page of 999 bytes is too short "
                                                "to hold draws."),
                                 {},
                                 {}}));
    EXPECT_EQ(Said(), QString());
    EXPECT_EQ(TipOver(0), QStringLiteral("Downloading UK Lotto draws...0.0 sec"));
    EXPECT_EQ(TipOver(1), QStringLiteral("No page."));
    EXPECT_EQ(TipOver(3), QStringLiteral("A page of 999 bytes is too short to hold draws."));
    EXPECT_EQ(TipOver(5), QStringLiteral("Processing UK Daily Play draws...0.0 sec"));
}

TEST_F(DownloadingUkDraws, SaysEveryTwoSecondsHowMuchOfAPageHasCome) {
    Offer(0, PageOf(row));
    test_.state.Settings(setting::UkDownloadNames + 1).clear();
    ticksAFetch_ = 45;
    Open();
    Run();
    EXPECT_EQ(said_.at(18), QString());
    EXPECT_EQ(said_.at(19), QStringLiteral("20 KB so far"));
    EXPECT_EQ(said_.at(38), QStringLiteral("20 KB so far"));
    EXPECT_EQ(said_.at(39), QStringLiteral("40 KB so far"));
    EXPECT_EQ(Said(), QString());
}

TEST_F(DownloadingUkDraws, CannotGoOnForever) {
    Offer(0, PageOf(row));
    ticksAFetch_ = 32'768;
    Open();
    Run();
    EXPECT_EQ(TakeFailure(), "The download takes longer than its clock can count, 3276.7 seconds.");
}

TEST_F(DownloadingUkDraws, LosesNothingWhereAFileCannotBeWritten) {
    Offer(0, PageOf(row));
    test_.state.Settings(setting::UkDownloadNames + 1).clear();
    ExpectEachSaveToBeWholeOrFail("dbase100.txt");
}

TEST_F(DownloadingUkDraws, TakesAPageOf1000BytesAndNoneOf999) {
    Offer(0, PageOf(row, 999));
    Offer(1, PageOf(row, 1000));
    Open();
    Run();
    EXPECT_FALSE(test_.folder.Exists("dbase100.txt"));
    EXPECT_TRUE(test_.folder.Exists("dbase101.txt"));
}

TEST_F(DownloadingUkDraws, EndsAtTheFirstLotteryWithoutAName) {
    OfferAll();
    test_.state.Settings(setting::UkDownloadNames + 2).clear();
    Open();
    Run();
    EXPECT_EQ(fetched_.size(), 2U);
    EXPECT_FALSE(test_.folder.Exists("dbase102.txt"));
    EXPECT_FALSE(test_.folder.Exists("dbase103.txt"));
}

TEST_F(DownloadingUkDraws, WritesNoSixthDatabase) {
    OfferAll();
    test_.state.Settings(setting::UkDownloadNames + 5) = "Sixth";
    Open();
    Run();
    EXPECT_EQ(fetched_.size(), 6U);
    EXPECT_EQ(fetched_.back(), QString());
    EXPECT_EQ(Progress().mid(15, 2),
              (QStringList{QStringLiteral("Downloading Sixth draws...0.0 sec"),
                           QStringLiteral("An error occured downoading Sixth")}));
    EXPECT_EQ(test_.folder.Find("dbase*.txt").size(), 5U);
}

TEST_F(DownloadingUkDraws, TakesTheNameOfTheSettingsAndTheAddressOfTheDefaults) {
    Offer(0, PageOf(row));
    test_.state.Settings(setting::UkDownloadNames) = "My Lotto";
    test_.state.Settings(setting::LinkAddresses + 1) = "http://elsewhere";
    Open();
    Run();
    EXPECT_TRUE(Database(0).starts_with("My Lotto\r\nhttp://www.national-lottery.example\r\n"));
}

TEST_F(DownloadingUkDraws, FetchesTheNextPageWhenTheDatabaseIsComplete) {
    OfferAll();
    std::vector<std::size_t> databases;
    onFetch_ = [&] { databases.push_back(test_.folder.Find("dbase*.txt").size()); };
    Open();
    Run();
    EXPECT_EQ(databases, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
}

TEST_F(DownloadingUkDraws, KeepsTheDatabaseWhereThePageCannotBeConverted) {
    Offer(0, PageOf(row));
    Offer(1, Filled("<html>not found</html>", 1000));
    test_.folder.Write("dbase101.txt", "old draws");
    Open();
    Run();
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(*failure,
              "Temp.txt (" + AddressOf(setting::UkDownloadAddresses + 1).toStdString() +
                  "), line 3: expected the date of the newest draw, but the file ends there.");
    EXPECT_EQ(Database(1), "old draws");
    EXPECT_TRUE(test_.folder.Exists("dbase100.txt"));
    EXPECT_TRUE(test_.folder.Read("Temp.txt").starts_with("<html>"));
}

TEST_F(DownloadingUkDraws, WarnsAtEachClickWhereTheRegionIsNotBritish) {
    OfferAll();
    for (const auto& locale : {QLocale(QLocale::English, QLocale::UnitedStates),
                               QLocale(QLocale::German, QLocale::Germany)}) {
        test_.services.region = RegionOf(locale);
        Open();
        test_.messages.Expect(wrongRegion);
        Run();
        test_.messages.Expect(wrongRegion);
        Run();
        EXPECT_TRUE(Button("OKButton").isEnabled());
        EXPECT_TRUE(Progress().isEmpty());
        EXPECT_TRUE(fetched_.empty());
    }
}

TEST_F(DownloadingUkDraws, NeedsNoWarningInIrelandAndAustralia) {
    for (const auto& locale : {QLocale(QLocale::English, QLocale::Ireland),
                               QLocale(QLocale::English, QLocale::Australia)}) {
        test_.services.region = RegionOf(locale);
        Open();
        Run();
        EXPECT_TRUE(Progress().back().startsWith(QStringLiteral("Finished...")));
    }
}

TEST_F(DownloadingUkDraws, RunsUnderTheHourglassAndOnceAnOpening) {
    ExpectOneRunUnderTheHourglass();
}

TEST_F(DownloadingUkDraws, CannotBeClosedMeanwhile) { ExpectNoClosingMeanwhile(); }

TEST_F(DownloadingUkDraws, ShowsTheAddressesAndSavesThemTrimmed) {
    OfferAll();
    Open();
    auto* tabs = Find<QTabWidget>(*form_, "SSTab1");
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(tabs->tabText(0), QStringLiteral("Download"));
    EXPECT_EQ(tabs->tabText(1), QStringLiteral("URLs"));
    tabs->setCurrentIndex(1);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(Box(i).text(), AddressOf(setting::UkDownloadAddresses + i));
    }
    Box(2).setText(QStringLiteral("  http://new  "));
    test_.messages.Expect(question, Answer::No);
    Click(*form_, "Command7");
    EXPECT_NE(test_.state.Settings(setting::UkDownloadAddresses + 2), "http://new");
    test_.messages.Expect(question, Answer::Yes);
    test_.messages.Expect(saved);
    Click(*form_, "Command7");
    EXPECT_EQ(test_.state.Settings(setting::UkDownloadAddresses + 2), "http://new");
    EXPECT_EQ(Box(2).text(), QStringLiteral("  http://new  "));
    EXPECT_NE(test_.folder.Read(settingsFile).find("\r\nhttp://new\r\n"), std::string::npos);
}

TEST_F(DownloadingUkDraws, FetchesWhatWasSaved) {
    Open();
    Box(0).setText(QStringLiteral("http://unsaved"));
    const QString address = AddressOf(setting::UkDownloadAddresses);
    Run();
    EXPECT_EQ(fetched_.front(), address);
}

}  // namespace
