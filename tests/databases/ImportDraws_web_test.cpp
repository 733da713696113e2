// SPDX-License-Identifier: GPL-3.0-or-later
// Results from a web address, and what is remembered of them.
#include "databases/import_formats.h"
#include "tests/databases/import_form.h"

namespace {

const QString address = QStringLiteral("https://www.lottery.example/results.csv");

const QString noPage = QStringLiteral("The server says that there is no such page.");

class ImportFromTheWeb : public ImportDrawsForm {
  protected:
    ImportFromTheWeb() {
        test_.services.fetchPage = [this](const QString& asked, const FetchProgress& progress) {
            fetched_.push_back(asked);
            progress(2048);
            if (whileFetching_) whileFetching_();
            const std::string& page = pages_[asked];
            return page.empty() ? FetchedPage{.bytes = {}, .problem = noPage}
                                : FetchedPage{.bytes = page, .problem = {}};
        };
    }

    void FetchAndImport() {
        Open();
        Type(*form_, "Address", address);
        Click(*form_, "Fetch");
        Type(*form_, "NewName", QStringLiteral("Village"));
        Click(*form_, "Import");
    }

    std::map<QString, std::string> pages_;
    std::vector<QString> fetched_;
    std::function<void()> whileFetching_;
};

TEST_F(ImportFromTheWeb, TakesThePageOfAnAddress) {
    pages_[address] = ResultsCsv(PublishedDraws(30));
    Open();
    Click(*form_, "Address");
    Type(*form_, "Address", address);
    QTest::keyClick(Find<QLineEdit>(*form_, "Address"), Qt::Key_Return);
    EXPECT_TRUE(Databases().empty()) << "the key goes no further";
    EXPECT_EQ(fetched_, std::vector<QString>{address});
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
    Click(*form_, "Import");
    const std::string bytes = test_.folder.Read("dbase1.txt");
    EXPECT_NE(bytes.find("\r\nhttps://www.lottery.example/results.csv\r\n"), std::string::npos)
        << "the lottery knows where its results are";
}

TEST_F(ImportFromTheWeb, SaysWhereNothingCouldBeFetched) {
    Open();
    Type(*form_, "Address", address);
    Click(*form_, "Fetch");
    EXPECT_EQ(TextOf("Hint"), noPage);
    EXPECT_FALSE(ImportButton().isEnabled());
}

TEST_F(ImportFromTheWeb, LetsNothingBePressedMeanwhile) {
    pages_[address] = ResultsCsv(PublishedDraws(30));
    Open();
    Type(*form_, "Address", address);
    whileFetching_ = [this] {
        EXPECT_EQ(TextOf("Source"), QStringLiteral("Fetching %1: 2 KB...").arg(address));
        for (const char* control : {"ChooseFile", "Fetch", "Import", "Close"}) {
            EXPECT_FALSE(Find<QWidget>(*form_, control)->isEnabled()) << control;
        }
        QTest::keyClick(form_.get(), Qt::Key_Escape);
        EXPECT_FALSE(form_->acceptDrops());
        EXPECT_TRUE(form_->isVisible());
    };
    Click(*form_, "Fetch");
    EXPECT_TRUE(form_->isVisible());
    for (const char* control : {"ChooseFile", "Fetch", "Import", "Close"}) {
        EXPECT_TRUE(Find<QWidget>(*form_, control)->isEnabled()) << control;
    }
    EXPECT_EQ(form_->focusWidget(), &ImportButton()) << "Enter goes on";
}

TEST_F(ImportFromTheWeb, RemembersHowTheSourceIsRead) {
    pages_[address] = ResultsCsv(PublishedDraws(30));
    FetchAndImport();
    const auto formats = ReadImportFormats(test_.folder.Read("ImportFormats.txt")).formats;
    ASSERT_EQ(formats.size(), 1U);
    EXPECT_EQ(formats.front().source, address.toStdString());
    EXPECT_EQ(formats.front().database, "dbase1.txt");
    EXPECT_EQ(formats.front().headings.size(), 10U);
}

TEST_F(ImportFromTheWeb, UpdateAddsWhatIsNewInOneClick) {
    const auto draws = PublishedDraws(32);
    pages_[address] = ResultsCsv({draws.begin() + 2, draws.end()});
    FetchAndImport();
    const std::string before = test_.folder.Read("dbase1.txt");
    pages_[address] = ResultsCsv(draws);
    Open();
    EXPECT_EQ(Find<QComboBox>(*form_, "Addresses")->currentText(),
              QStringLiteral("Village: ") + address);
    Click(*form_, "Update");
    EXPECT_EQ(TextOf("Said"), QStringLiteral("2 draws added to Village"));
    std::string expected = before;
    expected.insert(before.find(DatabaseLine(draws[2])),
                    DatabaseLine(draws[0]) + "\r\n" + DatabaseLine(draws[1]) + "\r\n");
    EXPECT_EQ(test_.folder.Read("dbase1.txt"), expected);

    Click(*form_, "Update");
    EXPECT_EQ(TextOf("Said"), QStringLiteral("Village has all draws of the page already"));
    EXPECT_EQ(test_.folder.Read("dbase1.txt"), expected);
}

TEST_F(ImportFromTheWeb, UpdateKeepsWhatTheUserHasChosen) {
    const auto draws = PublishedDraws(32);
    pages_[address] = ResultsCsv({draws.begin() + 1, draws.end()});
    Open();
    Type(*form_, "Address", address);
    Click(*form_, "Fetch");
    ShowPage(1);
    Pick("Role(7)", static_cast<int>(ColumnRole::Nothing));
    Click(*form_, "Import");
    pages_[address] = ResultsCsv(draws);
    Open();
    Click(*form_, "Update");
    const std::string bytes = test_.folder.Read("dbase1.txt");
    const std::string newest = DatabaseLine(draws.front());
    EXPECT_NE(bytes.find(newest.substr(0, newest.rfind(',')) + ",0\r\n"), std::string::npos)
        << bytes.substr(0, 120);
}

TEST_F(ImportFromTheWeb, UpdateWritesNothingWhereThePageHasAnotherShape) {
    pages_[address] = ResultsCsv(PublishedDraws(30));
    FetchAndImport();
    const std::string before = test_.folder.Read("dbase1.txt");
    pages_[address] = "Date;Numbers\n28/02/2026;1 2 3 4 5 6\n21/02/2026;7 8 9 10 11 12\n";
    Click(*form_, "Update");
    EXPECT_EQ(TextOf("Said"),
              QStringLiteral("The page has changed: look how it is read, then import."));
    EXPECT_EQ(test_.folder.Read("dbase1.txt"), before);
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(ImportFromTheWeb, OffersNoAddressOfALotteryThatIsGone) {
    pages_[address] = ResultsCsv(PublishedDraws(30));
    FetchAndImport();
    test_.folder.Delete("dbase1.txt");
    Open();
    EXPECT_FALSE(Find<QWidget>(*form_, "Again")->isVisible());
}

}  // namespace
