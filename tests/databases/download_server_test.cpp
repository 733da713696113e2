// SPDX-License-Identifier: GPL-3.0-or-later
// The forms that download draws, with all that lies between them and a web server.
#include <QTemporaryDir>
#include <algorithm>

#include "databases/DbaseUpdate.h"
#include "databases/DbaseUpdateUS.h"
#include "databases/uk_results.h"
#include "platform/system/DiskFolder.h"
#include "platform/system/FetchURL.h"
#include "platform/system/LocaleRegion.h"
#include "tests/databases/download_form.h"
#include "tests/databases/real_pages.h"
#include "tests/support/local_server.h"

namespace {

using Milliseconds = std::chrono::milliseconds;

QByteArray Bytes(const std::string& text) { return QByteArray::fromStdString(text); }

const QByteArray ukPage =
    "DrawDate,Balls\r\n" + QByteArray("04-Jun-2005,1,2,3,4,5,6,7,8\r\n").repeated(100);
const QByteArray usPage = QByteArray("06/17/2005,1,2,3,4,5,6\r\n").repeated(100);

template <typename FormType>
class DownloadFromServer : public DownloadFormTest<FormType> {
  protected:
    DownloadFromServer() {
        this->test_.services.fetchPage = [this](const QString& address,
                                                const FetchProgress& progress) {
            return FetchPage(address, access_, progress);
        };
        this->test_.folder.Write("Temp.txt", "old page");
    }

    void Address(int slot, const char* path) {
        this->test_.state.Settings(slot) = FromQString(server_.Address(QString::fromLatin1(path)));
    }

    /// Opens the form and runs it; gives what is not as it was before.
    std::string Changed(const std::string& what) {
        const auto before = this->test_.folder.Snapshot();
        this->Open();
        this->Run();
        return this->test_.folder.Snapshot() == before ? "" : what;
    }

    void ExpectNothingLostWhateverTheServerDoes(const QByteArray& page, const QString& error) {
        access_.limits = {.silence = Milliseconds(20), .whole = Milliseconds(40), .bytes = 99'999};
        for (const auto& [name, answer] : Misbehaviours(page)) {
            server_.answers["page"] = answer;
            EXPECT_EQ(Changed(name), "");
            EXPECT_EQ(this->Progress().count(error), this->Progress().size() / 2) << name;
            EXPECT_TRUE(this->Progress().back().startsWith(QStringLiteral("Finished..."))) << name;
            EXPECT_NE(this->Said(), QString()) << name;
            EXPECT_TRUE(this->Button("CancelButton").isEnabled()) << name;
        }
    }

    /// Pages that come whole and hold no draws.
    void ExpectNothingLostByPagesOfOtherContent() {
        const std::vector<QByteArray> pages = {QByteArray("<html>Not found</html>\n").repeated(99),
                                               QByteArray(2000, '\0'), QByteArray(2000, '\n'),
                                               QByteArray(2000, '\xFF'), Gzip(RandomBytes())};
        this->test_.folder.Delete("Temp.txt");
        for (const QByteArray& page : pages) {
            server_.answers["page"] = Sends(HttpPage(page));
            const auto before = this->test_.folder.Snapshot();
            this->Open();
            this->Run();
            EXPECT_TRUE(TakeFailure()) << page.left(10).toStdString();
            EXPECT_TRUE(this->test_.folder.Exists("Temp.txt"));
            this->test_.folder.Delete("Temp.txt");
            EXPECT_EQ(this->test_.folder.Snapshot(), before) << page.left(10).toStdString();
        }
    }

    static QByteArray RandomBytes() {
        Random random([] { return std::uint64_t(1); });
        random.Reset(1);
        QByteArray bytes(4000, '\0');
        for (char& byte : bytes) byte = static_cast<char>(255 * random.Next());
        return bytes;
    }

    void ExpectTheEndWithTheProgram(const QByteArray& page) {
        server_.answers["page"] = [&](QTcpSocket& socket) {
            SendsAndStays(HttpReply("200 OK", {}, page))(socket);
            QCoreApplication::exit();
        };
        const auto before = this->test_.folder.Snapshot();
        this->Open();
        QTimer::singleShot(0, this->form_.get(), [this] { this->Run(); });
        QCoreApplication::exec();
        EXPECT_EQ(this->test_.folder.Snapshot(), before);
        EXPECT_EQ(server_.requests.size(), 1U);
    }

    WebAccess access_{.limits = {.silence = Milliseconds(20'000), .whole = Milliseconds(20'000)}};
    LocalServer server_;
};

class UkDrawsFromServer : public DownloadFromServer<DbaseUpdate> {
  protected:
    UkDrawsFromServer() {
        test_.folder.Write("dbase100.txt", "old draws");
        for (int lottery = 0; lottery < 5; ++lottery) {
            Address(setting::UkDownloadAddresses + lottery, "page");
        }
    }

    void OnlyLotto() { test_.state.Settings(setting::UkDownloadNames + 1).clear(); }
};

class UsDrawsFromServer : public DownloadFromServer<DbaseUpdateUS> {
  protected:
    UsDrawsFromServer() {
        test_.folder.Write("dbase068.txt", "old draws");
        test_.folder.Write("dbase069.txt", "old draws");
        Address(setting::MegaMillionsAddress, "page");
        Address(setting::PowerballAddress, "page");
    }

    void In(QLocale::Country country) {
        test_.services.region = RegionOf(QLocale(QLocale::English, country));
    }
};

TEST_F(UkDrawsFromServer, AreAsBeforeWhateverTheServerDoes) {
    OnlyLotto();
    ExpectNothingLostWhateverTheServerDoes(ukPage,
                                           QStringLiteral("An error occured downoading UK Lotto"));
}

TEST_F(UsDrawsFromServer, AreAsBeforeWhateverTheServerDoes) {
    for (const auto country : {QLocale::UnitedKingdom, QLocale::UnitedStates}) {
        In(country);
        ExpectNothingLostWhateverTheServerDoes(usPage, QStringLiteral("Download error!"));
    }
}

TEST_F(UkDrawsFromServer, AreAsBeforeWherePagesHoldOtherThings) {
    OnlyLotto();
    ExpectNothingLostByPagesOfOtherContent();
}

TEST_F(UsDrawsFromServer, AreAsBeforeWherePagesHoldOtherThings) {
    for (const auto country : {QLocale::UnitedKingdom, QLocale::UnitedStates}) {
        In(country);
        test_.folder.Write("Temp.txt", "old page");
        ExpectNothingLostByPagesOfOtherContent();
    }
}

TEST_F(UkDrawsFromServer, AreAsBeforeWhereTheProgramEndsMeanwhile) {
    ExpectTheEndWithTheProgram(ukPage);
}

TEST_F(UsDrawsFromServer, AreAsBeforeWhereTheProgramEndsMeanwhile) {
    ExpectTheEndWithTheProgram(usPage);
}

TEST_F(UkDrawsFromServer, ComeWithAMarkPackedAndInChunks) {
    const QByteArray headers = "Transfer-Encoding: chunked\r\nContent-Encoding: gzip\r\n";
    server_.answers["page"] = Sends(
        HttpReply("200 OK", headers, InChunks(Gzip("\xEF\xBB\xBF" + ukPage), 7) + "0\r\n\r\n"));
    Open();
    Run();
    for (int lottery = 0; lottery < 5; ++lottery) {
        const std::string database =
            test_.folder.Read("dbase10" + std::to_string(lottery) + ".txt");
        EXPECT_EQ(std::count(database.begin(), database.end(), '\n'), 103) << lottery;
    }
    EXPECT_EQ(test_.folder.Read("Temp.txt"), ukPage.toStdString() + "\r\n");
}

TEST_F(UkDrawsFromServer, LetTheClockGoOnWhileTheyAreFetched) {
    OnlyLotto();
    Open();
    auto* clock = Find<QTimer>(*form_, "Timer1");
    server_.answers["page"] = [&](QTcpSocket& socket) {
        QObject::connect(
            clock, &QTimer::timeout, &server_, [&socket] { Sends(HttpPage(ukPage))(socket); },
            Qt::SingleShotConnection);
    };
    Run();
    EXPECT_EQ(Progress().front(), QStringLiteral("Downloading UK Lotto draws...0.0 sec"));
    EXPECT_NE(Progress().at(1), QStringLiteral("Processing UK Lotto draws...0.0 sec"));
}

TEST_F(UkDrawsFromServer, StayWhereTheWorkFileOrTheDatabaseIsAFolder) {
    OnlyLotto();
    server_.answers["page"] = Sends(HttpPage(ukPage));
    for (const char* name : {"Temp.txt", "dbase100.txt"}) {
        const QTemporaryDir place;
        DiskFolder disk(place.path());
        disk.MakeFolder(name);
        disk.Write("dbase101.txt", "old draws");
        const bool hasDatabase = std::string_view(name) == "Temp.txt";
        if (hasDatabase) disk.Write("dbase100.txt", "old draws");
        Program program{.state = test_.state, .folder = disk, .services = test_.services};
        form_ = std::make_unique<DbaseUpdate>(program, nullptr);
        form_->Load();
        form_->show();
        Run();
        const auto failure = TakeFailure();
        ASSERT_TRUE(failure) << name;
        EXPECT_NE(failure->find(name), std::string::npos) << *failure;
        EXPECT_EQ(disk.Read("dbase101.txt"), "old draws");
        if (hasDatabase) {
            EXPECT_EQ(disk.Read("dbase100.txt"), "old draws");
        }
        form_.reset();
    }
}

class RealUkFiles : public UkDrawsFromServer,
                    public testing::WithParamInterface<std::tuple<const char*, int, const char*>> {
};

TEST_P(RealUkFiles, GiveTheDrawsThatAreKnown) {
    const auto& [name, lottery, filler] = GetParam();
    const std::string page = RealPage(name);
    if (page.empty()) GTEST_SKIP() << "no real results files here";
    server_.answers["none"] = Sends(HttpPage({}));
    for (int other = 0; other < 5; ++other) {
        Address(setting::UkDownloadAddresses + other, other == lottery ? "page" : "none");
    }
    server_.answers["page"] = Sends(HttpPage(Bytes(page)));
    Open();
    Run();
    const std::string database = test_.folder.Read("dbase10" + std::to_string(lottery) + ".txt");
    const std::string rules(uk_results::LotteryAt(lottery).rules);
    EXPECT_TRUE(database.ends_with("\r\n" + rules + "\r\n" + KnownRecords(name, filler)));
}

INSTANTIATE_TEST_SUITE_P(Files, RealUkFiles,
                         testing::Values(std::tuple("uk_lotto_operator_2014.csv", 0, "0,"),
                                         std::tuple("uk_lotto_operator_2021.csv", 0, "0,"),
                                         std::tuple("uk_thunderball_operator_2022.csv", 1,
                                                    "0,0,")));

TEST_F(UsDrawsFromServer, OfTheRealFileAreThoseThatAreKnown) {
    const std::string name = "us_powerball_operator_2017.txt";
    const std::string page = RealPage(name);
    if (page.empty()) GTEST_SKIP() << "no real results files here";
    server_.answers["power"] = Sends(HttpPage(Bytes(page)));
    server_.answers["page"] = Sends(HttpPage(usPage));
    Address(setting::PowerballAddress, "power");
    for (const auto country : {QLocale::UnitedKingdom, QLocale::UnitedStates}) {
        In(country);
        Open();
        Run();
        EXPECT_TRUE(test_.folder.Read("dbase069.txt")
                        .ends_with("5,53,1,42,0\r\n" + KnownRecords(name, "0,0,")));
        const std::string mega = test_.folder.Read("dbase068.txt");
        EXPECT_EQ(std::count(mega.begin(), mega.end(), '\n'), 103);
    }
}

}  // namespace
