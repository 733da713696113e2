// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/FetchURL.h"

#include <QTcpSocket>
#include <QTimer>

#include "platform/system/unpack.h"
#include "tests/platform/system/fetching_a_page.h"

namespace {

using Milliseconds = std::chrono::milliseconds;

TEST_F(FetchingAPage, GivesItsBytesAsTheyCame) {
    const QByteArray body("\xEF\xBB\xBFz\0\xA3\xFF\r\n\n\r<html>", 15);
    EXPECT_EQ(FetchOf(Sends(HttpPage(body, "Content-Type: text/csv; charset=utf-16\r\n"))),
              body.toStdString());
    EXPECT_EQ(FetchOf(Sends(HttpReply("200 OK", {}, "no length"))), "no length");
    EXPECT_EQ(FetchOf(Sends(HttpReply("200 OK", "Transfer-Encoding: chunked\r\n",
                                      "3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n"))),
              "abcde");
    EXPECT_EQ(FetchOf(Sends("HTTP/1.0 200 OK\r\n\r\nof old")), "of old");
    EXPECT_EQ(FetchOf(Sends("HTTP/1.0 200 OK\nContent-Length: 6\n\nof old")), "of old");
}

TEST_F(FetchingAPage, HeedsNothingBehindItsChunks) {
    EXPECT_EQ(FetchOf(Sends(HttpReply("200 OK",
                                      "Transfer-Encoding: chunked\r\nTrailer: Content-Length\r\n",
                                      "3\r\nabc\r\n0\r\nContent-Length: 9\r\n"
                                      "Location: /other\r\nContent-Encoding: br\r\n\r\n"))),
              "abc");
}

TEST_F(FetchingAPage, HeedsTheChunksWhereALengthIsAnnouncedToo) {
    EXPECT_EQ(
        FetchOf(Sends(HttpReply("200 OK", "Content-Length: 2\r\nTransfer-Encoding: chunked\r\n",
                                "3\r\nabc\r\n0\r\n\r\n"))),
        "abc");
}

TEST_F(FetchingAPage, EndsWhereItsLengthSaysSo) {
    EXPECT_EQ(FetchOf(Sends(HttpReply("200 OK", "Content-Length: 3\r\n", "abcdef"))), "abc");
}

TEST_F(FetchingAPage, FollowsOnTheAnswersInFrontOfTheLast) {
    EXPECT_EQ(
        FetchOf(Sends("HTTP/1.1 100 Continue\r\n\r\n"
                      "HTTP/1.1 103 Early Hints\r\nLocation: /x\r\nContent-Length: 9\r\n\r\n" +
                      HttpPage("page"))),
        "page");
}

TEST_F(FetchingAPage, MayBeOneLineOfManyMegabytes) {
    const QByteArray line(16 * 1024 * 1024, 'x');
    EXPECT_EQ(FetchOf(Sends(HttpPage(line))).size(), 16'777'216U);
    EXPECT_EQ(ProblemWith(Sends(HttpPage(line + 'x'))), QStringLiteral("The page is too large."));
    EXPECT_EQ(ProblemWith(Sends(HttpPage(QByteArray(50'000'000, 'x')))),
              QStringLiteral("The page is too large."));
}

TEST_F(FetchingAPage, IsOneRequestWithoutCookies) {
    const ServerAnswer withCookie =
        Sends(HttpPage("page", "Set-Cookie: a=b\r\nCache-Control: public\r\n"));
    FetchOf(withCookie);
    FetchOf(withCookie);
    ASSERT_EQ(server_.requests.size(), 2U);
    for (const QByteArray& request : server_.requests) {
        EXPECT_TRUE(request.startsWith("GET /page HTTP/1.1\r\n"));
        EXPECT_FALSE(request.contains("Cookie"));
    }
}

TEST_F(FetchingAPage, UnpacksWhatTheServerPacked) {
    const QByteArray text = QByteArray("01-Jun-2005,1,2,3,4,5,6\n").repeated(100);
    const QByteArray packed = qCompress(text).mid(4);
    EXPECT_EQ(FetchOf(Sends(HttpPage(packed, "Content-Encoding: deflate\r\n"))),
              text.toStdString());
    EXPECT_EQ(FetchOf(Sends(HttpPage(packed))), packed.toStdString());
    EXPECT_EQ(FetchOf(Sends(HttpPage(packed.chopped(9), "Content-Encoding: deflate\r\n"))), "");
    EXPECT_EQ(FetchOf(Sends(HttpPage(text, "Content-Encoding: gzip\r\n"))), "");
    EXPECT_EQ(FetchOf(Sends(HttpPage(packed, "Content-Encoding: br\r\n"))), "");
    EXPECT_EQ(FetchOf(Sends(HttpPage(text, "Content-Encoding: identity\r\n"))), text.toStdString());
}

TEST_F(FetchingAPage, FailsWhereTheAddressIsNone) {
    for (const char* address :
         {"", " ", "page", "http://", "http:///page", "ftp://127.0.0.1/a", "file:///etc/hostname",
          "http://[", "data:text/plain,a", "http://no such host/"}) {
        EXPECT_EQ(FetchURL(QString::fromLatin1(address), access_), "") << address;
    }
}

TEST_F(FetchingAPage, FailsWhereNobodyListens) {
    const QString address = server_.Address(QStringLiteral("page"));
    server_.Close();
    EXPECT_EQ(FetchURL(address, access_), "");
}

TEST_F(FetchingAPage, FailsWithAStatusOf400AndAbove) {
    for (const char* status : {"400 Bad Request", "401 Unauthorized", "404 Not Found", "410 Gone",
                               "500 Internal Server Error", "503 Service Unavailable"}) {
        const QByteArray length = "Content-Length: 5\r\n";
        EXPECT_EQ(FetchOf(Sends(HttpReply(status, length, "sorry"))), "") << status;
    }
}

TEST_F(FetchingAPage, IsEmptyWhereTheBodyIs) {
    EXPECT_EQ(FetchOf(Sends(HttpPage({}))), "");
    EXPECT_EQ(FetchOf(Sends(HttpReply("204 No Content", {}, {}))), "");
}

TEST_F(FetchingAPage, FailsWhereTheServerIsNone) {
    EXPECT_EQ(FetchOf([](QTcpSocket& socket) { socket.abort(); }), "");
    EXPECT_EQ(FetchOf(Sends({})), "");
    EXPECT_EQ(FetchOf(Sends("what?\r\n\r\n")), "");
}

const QByteArray draws = QByteArray("01-Jun-2005,1,2,3,4,5,6\n").repeated(1000);

// Half a history must never pass for a whole one, so each way of cutting is tried more than once.
TEST_F(FetchingAPage, FailsWhateverTheServerDoesWrong) {
    access_.limits = {.silence = Milliseconds(40), .whole = Milliseconds(60), .bytes = 1'000'000};
    for (const auto& [name, answer] : Misbehaviours(draws)) {
        for (int time = 0; time < 3; ++time) {
            EXPECT_NE(ProblemWith(answer), QString()) << name;
        }
    }
}

TEST_F(FetchingAPage, SaysWhyThereIsNone) {
    const QString broken = QStringLiteral("The page did not come whole.");
    const std::map<std::string, QString> problems = {
        {"resets in the middle", broken},
        {"announces more than it sends", broken},
        {"cuts at the border of a chunk", broken},
        {"hangs up", broken},
        {"goes on announcing", broken},
        {"sends a head without end", broken},
        {"sends nothing", QStringLiteral("The page is empty.")},
        {"cuts what it packed", QStringLiteral("The page is packed and damaged, or too large.")},
        {"packs in its own way",
         QStringLiteral("The page is packed in a way that is not known here.")},
        {"says that it is gone", QStringLiteral("The server answered with status 404.")},
        {"fails", QStringLiteral("The server answered with status 500.")},
        {"sends a part", QStringLiteral("The server answered with status 206.")},
        {"leads round in circles", QStringLiteral("The page leads on and on to others.")},
        {"leads away", QStringLiteral("The address is none of the web.")},
    };
    const auto misbehaviours = Misbehaviours(draws);
    for (const auto& [name, problem] : problems) {
        EXPECT_EQ(ProblemWith(misbehaviours.at(name)), problem) << name;
    }
    access_.limits.silence = Milliseconds(20);
    EXPECT_EQ(ProblemWith(misbehaviours.at("never answers")),
              QStringLiteral("The server fell silent."));
    EXPECT_EQ(ProblemWith(misbehaviours.at("stops between two chunks")),
              QStringLiteral("The server fell silent."));
}

TEST_F(FetchingAPage, FollowsEveryKindOfRedirect) {
    server_.answers["page"] = Sends(HttpPage("page"));
    for (const char* status : {"301 Moved Permanently", "302 Found", "303 See Other",
                               "307 Temporary Redirect", "308 Permanent Redirect"}) {
        server_.answers["old"] = LeadsTo(status, server_.Address(QStringLiteral("page")));
        EXPECT_EQ(Fetch(QStringLiteral("old")), "page") << status;
        server_.answers["old"] = LeadsTo(status, QStringLiteral("/page"));
        EXPECT_EQ(Fetch(QStringLiteral("old")), "page") << status;
    }
}

TEST_F(FetchingAPage, DoesNotWaitForABodyOfNoUse) {
    server_.answers["other"] = Sends(HttpPage("other"));
    EXPECT_EQ(FetchOf(SendsAndStays(HttpReply("302 Found", "Location: /other\r\n", {}))), "other");
    EXPECT_EQ(ProblemWith(SendsAndStays(HttpReply("404 Not Found", {}, {}))),
              QStringLiteral("The server answered with status 404."));
}

TEST_F(FetchingAPage, FollowsTenRedirectsAndNoMore) {
    server_.answers["10"] = Sends(HttpPage("page"));
    for (int i = -1; i < 10; ++i) {
        server_.answers[QByteArray::number(i)] =
            LeadsTo("302 Found", QStringLiteral("/%1").arg(i + 1));
    }
    EXPECT_EQ(Fetch(QStringLiteral("0")), "page");
    EXPECT_EQ(Fetch(QStringLiteral("-1")), "");
}

TEST_F(FetchingAPage, FailsWhereItIsSentRoundInCirclesOrAway) {
    EXPECT_EQ(FetchOf(LeadsTo("302 Found", QStringLiteral("/page"))), "");
    EXPECT_EQ(FetchOf(Sends(HttpReply("300 Multiple Choices", "Location: /page\r\n", {}))), "");
    EXPECT_EQ(FetchOf(Sends("HTTP/1.1 302 Found\r\nLocation: /page\r\n")), "");
    EXPECT_EQ(server_.requests.size(), 13U);
    for (const char* away :
         {"file:///etc/hostname", "ftp://127.0.0.1/a", "data:text/plain,a", "http://", ""}) {
        EXPECT_EQ(FetchOf(LeadsTo("302 Found", QString::fromLatin1(away))), "") << away;
    }
}

TEST_F(FetchingAPage, FailsWhereNoByteComesInTime) {
    access_.limits.silence = Milliseconds(20);
    EXPECT_EQ(FetchOf([](QTcpSocket&) {}), "");
    EXPECT_EQ(FetchOf([](QTcpSocket& socket) {
                  socket.write(HttpReply("200 OK", "Content-Length: 9\r\n", "half"));
              }),
              "");
}

TEST_F(FetchingAPage, MayDripLongerThanItMayBeSilent) {
    access_.limits.silence = Milliseconds(400);
    const QByteArray body(50, 'x');
    EXPECT_EQ(FetchOf(SendsForever(HttpReply("200 OK", "Content-Length: 50\r\n", {}), "x",
                                   Milliseconds(10))),
              body.toStdString());
}

TEST_F(FetchingAPage, FailsWhereItDripsOnAfterItsTime) {
    access_.limits.whole = Milliseconds(60);
    EXPECT_EQ(FetchOf(SendsForever(HttpReply("200 OK", {}, {}), "x", Milliseconds(1))), "");
    EXPECT_EQ(FetchOf(SendsForever("HTTP/1.1 200 OK\r\nX-Drips: ", "x", Milliseconds(1))), "");
}

TEST_F(FetchingAPage, FailsWhereItGrowsBeyondItsSize) {
    access_.limits.bytes = 1000;
    EXPECT_EQ(FetchOf(Sends(HttpPage(QByteArray(1000, 'x')))), std::string(1000, 'x'));
    EXPECT_EQ(FetchOf(Sends(HttpPage(QByteArray(1001, 'x')))), "");
    const QByteArray packed = qCompress(QByteArray(1001, 'x')).mid(4);
    EXPECT_EQ(FetchOf(Sends(HttpPage(packed, "Content-Encoding: deflate\r\n"))), "");
    const QByteArray block(64 * 1024, 'x');
    EXPECT_EQ(ProblemWith(SendsForever(HttpReply("200 OK", {}, {}), block, Milliseconds(0))),
              QStringLiteral("The page is too large."));
    EXPECT_EQ(FetchOf(Sends(HttpPage(QByteArray(200'000, 'x')))), "");
}

TEST_F(FetchingAPage, LetsEventsRun) {
    bool ran = false;
    QTimer::singleShot(0, &application_, [&ran] { ran = true; });
    EXPECT_EQ(FetchOf(Sends(HttpPage("page"))), "page");
    EXPECT_TRUE(ran);
}

TEST_F(FetchingAPage, MayHappenWhileAnotherIsFetched) {
    server_.answers["other"] = Sends(HttpPage("other"));
    std::string other;
    EXPECT_EQ(FetchOf([&](QTcpSocket& socket) {
                  other = Fetch(QStringLiteral("other"));
                  Sends(HttpPage("page"))(socket);
              }),
              "page");
    EXPECT_EQ(other, "other");
}

TEST_F(FetchingAPage, TellsHowMuchOfItHasCome) {
    server_.answers["page"] = Sends(HttpPage(draws));
    std::vector<qsizetype> told;
    FetchPage(server_.Address(QStringLiteral("page")), access_,
              [&](qsizetype bytes) { told.push_back(bytes); });
    ASSERT_FALSE(told.empty());
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), draws.size());
}

TEST_F(FetchingAPage, EndsWithTheProgram) {
    FetchedPage page;
    QTimer::singleShot(0, &application_, [&] {
        server_.answers["page"] = [](QTcpSocket&) { QCoreApplication::exit(); };
        page = FetchPage(server_.Address(QStringLiteral("page")), access_);
        EXPECT_EQ(ProblemOf(server_.Address(QStringLiteral("page"))), page.problem);
    });
    QCoreApplication::exec();
    EXPECT_EQ(page.problem, QStringLiteral("The program was closed meanwhile."));
    EXPECT_EQ(server_.requests.size(), 1U);
}

TEST(FetchLimits, AreHalfAMinuteAMinuteSixteenMebibytesAndTenRedirects) {
    EXPECT_EQ(FetchLimits().silence, Milliseconds(30'000));
    EXPECT_EQ(FetchLimits().whole, Milliseconds(60'000));
    EXPECT_EQ(FetchLimits().bytes, 16'777'216);
    EXPECT_EQ(FetchLimits().redirects, 10);
}

TEST(Unpacking, TakesWhatGzipWroteWhole) {
    // "draws" and a line feed, as gzip writes it.
    const std::string packed(
        "\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\x4b\x29\x4a\x2c\x2f\xe6\x02\x00\xd8\x72\x56\x97"
        "\x06\x00\x00\x00",
        26);
    EXPECT_EQ(Unpack(packed, 6), "draws\n");
    EXPECT_EQ(Unpack(packed + packed, 12), "draws\ndraws\n");
    EXPECT_EQ(Unpack(packed, 5), std::nullopt);
    EXPECT_EQ(Unpack(packed + "?", 6), std::nullopt);
    for (std::size_t size = 0; size < packed.size(); ++size) {
        EXPECT_EQ(Unpack(std::string_view(packed).substr(0, size), 6), std::nullopt) << size;
    }
    std::string damaged = packed;
    damaged[12] = '!';
    EXPECT_EQ(Unpack(damaged, 60), std::nullopt);
}

}  // namespace
