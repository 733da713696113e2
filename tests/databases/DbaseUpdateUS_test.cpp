// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DbaseUpdateUS.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "core/settings.h"
#include "platform/system/LocaleRegion.h"
#include "platform/widgets/Lists.h"
#include "tests/databases/download_form.h"

namespace {

const Message question{.title = QStringLiteral("Update URLs"),
                       .text = QStringLiteral("Are you sure you want to save these URLs?    "),
                       .sign = Sign::Question,
                       .buttons = Buttons::YesNo};

std::string MegaPage(std::size_t size = 1000) {
    return Filled("06/17/2005,1,2,3,4,5,6\r\n06/21/2005,7,8,9,10,11,12\r\n", size);
}

std::string PowerPage(std::size_t size = 1000) {
    return Filled("Draw Date\r\n06/18/2005  01  2  03  04  05  06  2\r\n\r\n", size);
}

class DownloadingUsDraws : public DownloadFormTest<DbaseUpdateUS> {
  protected:
    void OfferBoth(std::size_t size = 1000) {
        pages_[AddressOf(setting::MegaMillionsAddress)] = MegaPage(size);
        pages_[AddressOf(setting::PowerballAddress)] = PowerPage(size);
    }
};

TEST_F(DownloadingUsDraws, ReplacesBothDatabases) {
    for (const auto country : {QLocale::UnitedKingdom, QLocale::UnitedStates}) {
        test_.services.region = RegionOf(QLocale(QLocale::English, country));
        OfferBoth();
        test_.folder.Write("dbase068.txt", "old draws");
        test_.folder.Write("dbase069.txt", "old draws");
        Open();
        Run();
        EXPECT_EQ(test_.folder.Read("dbase068.txt"),
                  "US Mega Millions\r\nhttp://www.megamillions.example\r\n5,52,1,52,0\r\n"
                  "21-Jun-2005,7,8,9,10,11,0,0,12\r\n17-Jun-2005,1,2,3,4,5,0,0,6\r\n");
        EXPECT_EQ(test_.folder.Read("dbase069.txt"),
                  "US Powerball\r\nhttp://www.powerball.example\r\n5,53,1,42,0\r\n"
                  "18-Jun-2005,1,2,3,4,5,0,0,6\r\n");
        EXPECT_EQ(test_.folder.Read("Temp.txt"), PowerPage() + "\r\n");
    }
}

TEST_F(DownloadingUsDraws, TellsEachStepWithTheTimeOfThatMoment) {
    OfferBoth();
    ticksAFetch_ = 5;
    Open();
    Run();
    EXPECT_EQ(Progress(), (QStringList{QStringLiteral("Connecting to Mega Millions...0.0 sec"),
                                       QStringLiteral("Processing Mega Millions data...0.5 sec"),
                                       QStringLiteral("Updated Powerball database...0.5 sec"),
                                       QStringLiteral("Connecting to Powerball site...0.5 sec"),
                                       QStringLiteral("Processing Powerball data...1.0 sec"),
                                       QStringLiteral("Updated Powerball database...1.0 sec"),
                                       QStringLiteral("Finished...1.0 sec")}));
    EXPECT_EQ(List().Index(), 6);
}

TEST_F(DownloadingUsDraws, TriesPowerballWhereMegaMillionsIsMissing) {
    OfferBoth();
    pages_[AddressOf(setting::MegaMillionsAddress)].clear();
    test_.folder.Write("dbase068.txt", "old draws");
    Open();
    std::vector<int> choices;
    onFetch_ = [&] { choices.push_back(List().Index()); };
    Run();
    EXPECT_EQ(Progress().at(1), QStringLiteral("Download error!"));
    EXPECT_EQ(choices, (std::vector{0, 2}));
    EXPECT_EQ(test_.folder.Read("dbase068.txt"), "old draws");
    EXPECT_TRUE(test_.folder.Exists("dbase069.txt"));
}

TEST_F(DownloadingUsDraws, TakesTheAddressesOfTheDefaults) {
    OfferBoth();
    for (int link = 0; link < 10; ++link) {
        test_.state.Settings(setting::LinkAddresses + link) = "http://elsewhere";
    }
    Open();
    Run();
    EXPECT_TRUE(test_.folder.Read("dbase068.txt")
                    .starts_with("US Mega Millions\r\nhttp://www.megamillions.example\r\n"));
    EXPECT_TRUE(test_.folder.Read("dbase069.txt")
                    .starts_with("US Powerball\r\nhttp://www.powerball.example\r\n"));
}

TEST_F(DownloadingUsDraws, SaysWhyAPageIsMissingUntilAnotherComes) {
    OfferBoth();
    pages_[AddressOf(setting::MegaMillionsAddress)].clear();
    QStringList said;
    onFetch_ = [&] { said += Said(); };
    Open();
    Run();
    EXPECT_EQ(said, (QStringList{{}, QStringLiteral("Mega Millions: No page.")}));
    EXPECT_EQ(Said(), QString());
    OfferBoth(400);
    Open();
    Run();
    EXPECT_EQ(Said(), QStringLiteral("Powerball: A page of 400 bytes is too short to hold draws."));
}

TEST_F(DownloadingUsDraws, LosesNothingWhereAFileCannotBeWritten) {
    OfferBoth();
    ExpectEachSaveToBeWholeOrFail("dbase069.txt");
}

TEST_F(DownloadingUsDraws, TakesAPageOf500BytesAndNoneOf499) {
    OfferBoth(499);
    Open();
    Run();
    EXPECT_EQ(Progress().count(QStringLiteral("Download error!")), 2);
    EXPECT_TRUE(test_.folder.Find("dbase*.txt").empty());
    OfferBoth(500);
    Open();
    Run();
    EXPECT_EQ(test_.folder.Find("dbase*.txt").size(), 2U);
}

TEST_F(DownloadingUsDraws, KeepsTheDatabaseWhereThePageCannotBeConverted) {
    OfferBoth();
    pages_[AddressOf(setting::PowerballAddress)] = Filled("<html>not found</html>", 500);
    test_.folder.Write("dbase069.txt", "old draws");
    Open();
    Run();
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(*failure, "Temp.txt (" + AddressOf(setting::PowerballAddress).toStdString() +
                            "), line 2: expected the date of the newest draw, but the file ends "
                            "there.");
    EXPECT_EQ(test_.folder.Read("dbase069.txt"), "old draws");
    EXPECT_TRUE(test_.folder.Exists("dbase068.txt"));
}

TEST_F(DownloadingUsDraws, FetchesMegaMillionsFromTheBoxAndPowerballFromTheSettings) {
    Open();
    Find<QLineEdit>(*form_, "Text1")->setText(QStringLiteral("  http://mega  "));
    Find<QLineEdit>(*form_, "Text2")->setText(QStringLiteral("http://power"));
    Run();
    EXPECT_EQ(fetched_,
              (std::vector{QStringLiteral("http://mega"), AddressOf(setting::PowerballAddress)}));
}

TEST_F(DownloadingUsDraws, RunsUnderTheHourglassAndOnceAnOpening) {
    ExpectOneRunUnderTheHourglass();
}

TEST_F(DownloadingUsDraws, CannotBeClosedMeanwhile) { ExpectNoClosingMeanwhile(); }

TEST_F(DownloadingUsDraws, ShowsTheAddressesAndSavesThemTrimmed) {
    Open();
    EXPECT_EQ(Find<QLineEdit>(*form_, "Text1")->text(), AddressOf(setting::MegaMillionsAddress));
    EXPECT_EQ(Find<QLineEdit>(*form_, "Text2")->text(), AddressOf(setting::PowerballAddress));
    Type(*form_, "Text2", QStringLiteral(" http://power "));
    test_.messages.Expect(question, Answer::No);
    Click(*form_, "Command7");
    EXPECT_NE(test_.state.Settings(setting::PowerballAddress), "http://power");
    test_.messages.Expect(question, Answer::Yes);
    test_.messages.Expect(saved);
    Click(*form_, "Command7");
    EXPECT_EQ(test_.state.Settings(setting::PowerballAddress), "http://power");
    EXPECT_EQ(Find<QLineEdit>(*form_, "Text2")->text(), QStringLiteral(" http://power "));
    EXPECT_NE(test_.folder.Read(settingsFile).find("\r\nhttp://power\r\n"), std::string::npos);
}

}  // namespace
