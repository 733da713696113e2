// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/FetchURL.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <array>
#include <functional>
#include <map>
#include <vector>

#include "platform/system/unpack.h"

namespace {

using Milliseconds = std::chrono::milliseconds;
using Answer = std::function<void(QTcpSocket& socket)>;

/// A web server on this computer that answers each path as the test says, and remembers requests.
class LocalServer final : public QObject {
  public:
    LocalServer() {
        EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
        connect(&server_, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = server_.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(*socket); });
        });
    }

    QString Address(const QString& path) const {
        return QStringLiteral("http://127.0.0.1:%1/%2").arg(server_.serverPort()).arg(path);
    }

    void Close() { server_.close(); }

    std::map<QByteArray, Answer> answers;
    std::vector<QByteArray> requests;

  private:
    void Read(QTcpSocket& socket) {
        QByteArray& request = unfinished_[&socket];
        request += socket.readAll();
        if (!request.endsWith("\r\n\r\n")) return;
        requests.push_back(request);
        const QByteArray path = request.split(' ').at(1).mid(1);
        request.clear();
        const auto answer = answers.find(path);
        ASSERT_TRUE(answer != answers.end()) << path.toStdString();
        answer->second(socket);
    }

    QTcpServer server_;
    std::map<QTcpSocket*, QByteArray> unfinished_;
};

Answer Sends(const QByteArray& bytes) {
    return [bytes](QTcpSocket& socket) {
        socket.write(bytes);
        socket.disconnectFromHost();
    };
}

QByteArray Reply(const QByteArray& status, const QByteArray& headers, const QByteArray& body) {
    return "HTTP/1.1 " + status + "\r\n" + headers + "Connection: close\r\n\r\n" + body;
}

QByteArray Page(const QByteArray& body, const QByteArray& headers = {}) {
    return Reply("200 OK", headers + "Content-Length: " + QByteArray::number(body.size()) + "\r\n",
                 body);
}

Answer RedirectsTo(const QByteArray& status, const QString& address) {
    return Sends(
        Reply(status, "Location: " + address.toLatin1() + "\r\nContent-Length: 4\r\n", "gone"));
}

class FetchingAPage : public testing::Test {
  protected:
    std::string Fetch(const QString& path) { return FetchURL(server_.Address(path), limits_); }

    std::string FetchOf(const Answer& answer) {
        server_.answers["page"] = answer;
        return Fetch(QStringLiteral("page"));
    }

    /// Waits for nothing that a test does not mean to happen.
    FetchLimits limits_{.silence = Milliseconds(20000), .whole = Milliseconds(20000)};

    // Before the server, which needs it.
    int argc_ = 1;
    std::array<char, 2> name_ = {'t', '\0'};
    char* argv_ = name_.data();
    QCoreApplication application_{argc_, &argv_};
    LocalServer server_;
};

TEST_F(FetchingAPage, GivesItsBytesAsTheyCame) {
    const QByteArray body("\xEF\xBB\xBFz\0\xA3\xFF\r\n\n\r<html>", 15);
    EXPECT_EQ(FetchOf(Sends(Page(body, "Content-Type: text/csv; charset=utf-16\r\n"))),
              body.toStdString());
    EXPECT_EQ(FetchOf(Sends(Reply("200 OK", {}, "no length"))), "no length");
    EXPECT_EQ(FetchOf(Sends(Reply("200 OK", "Transfer-Encoding: chunked\r\n",
                                  "3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n"))),
              "abcde");
}

TEST_F(FetchingAPage, IsOneRequestWithoutCookies) {
    const Answer withCookie = Sends(Page("page", "Set-Cookie: a=b\r\nCache-Control: public\r\n"));
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
    EXPECT_EQ(FetchOf(Sends(Page(packed, "Content-Encoding: deflate\r\n"))), text.toStdString());
    EXPECT_EQ(FetchOf(Sends(Page(packed))), packed.toStdString());
    EXPECT_EQ(FetchOf(Sends(Page(packed.chopped(9), "Content-Encoding: deflate\r\n"))), "");
    EXPECT_EQ(FetchOf(Sends(Page(text, "Content-Encoding: gzip\r\n"))), "");
    EXPECT_EQ(FetchOf(Sends(Page(packed, "Content-Encoding: br\r\n"))), "");
    EXPECT_EQ(FetchOf(Sends(Page(text, "Content-Encoding: identity\r\n"))), text.toStdString());
}

TEST_F(FetchingAPage, FailsWhereTheAddressIsNone) {
    for (const char* address :
         {"", " ", "page", "http://", "http:///page", "ftp://127.0.0.1/a", "file:///etc/hostname",
          "http://[", "data:text/plain,a", "http://no such host/"}) {
        EXPECT_EQ(FetchURL(QString::fromLatin1(address), limits_), "") << address;
    }
}

TEST_F(FetchingAPage, FailsWhereNobodyListens) {
    const QString address = server_.Address(QStringLiteral("page"));
    server_.Close();
    EXPECT_EQ(FetchURL(address, limits_), "");
}

TEST_F(FetchingAPage, FailsWithAStatusOf400AndAbove) {
    for (const char* status : {"400 Bad Request", "401 Unauthorized", "404 Not Found", "410 Gone",
                               "500 Internal Server Error", "503 Service Unavailable"}) {
        const QByteArray length = "Content-Length: 5\r\n";
        EXPECT_EQ(FetchOf(Sends(Reply(status, length, "sorry"))), "") << status;
    }
}

TEST_F(FetchingAPage, IsEmptyWhereTheBodyIs) {
    EXPECT_EQ(FetchOf(Sends(Page({}))), "");
    EXPECT_EQ(FetchOf(Sends(Reply("204 No Content", {}, {}))), "");
}

TEST_F(FetchingAPage, FailsWhereTheServerIsNone) {
    EXPECT_EQ(FetchOf([](QTcpSocket& socket) { socket.abort(); }), "");
    EXPECT_EQ(FetchOf(Sends({})), "");
    EXPECT_EQ(FetchOf(Sends("what?\r\n\r\n")), "");
}

// Qt misses the cut once in a while, so it is tried often.
TEST_F(FetchingAPage, FailsEachTimeThatItIsCutOff) {
    const QByteArray half = QByteArray("01-Jun-2005,1,2,3,4,5,6\n").repeated(1000);
    const QByteArray headers = "Content-Length: " + QByteArray::number(2 * half.size()) + "\r\n";
    const Answer resets = [&](QTcpSocket& socket) {
        socket.write(Reply("200 OK", headers, half));
        socket.flush();
        socket.abort();
    };
    for (int time = 0; time < 100; ++time) {
        EXPECT_EQ(FetchOf(Sends(Reply("200 OK", headers, half))), "");
        EXPECT_EQ(FetchOf(resets), "");
    }
}

// Without a length only the packing tells the end of what comes in chunks.
TEST_F(FetchingAPage, FailsEachTimeThatItIsCutOffBetweenItsChunksWherePacked) {
    QByteArray text;
    for (int i = 0; i < 1000; ++i) text += QByteArray::number(i * i) + "\n";
    const QByteArray half = qCompress(text).mid(4, 1000);
    for (int time = 0; time < 100; ++time) {
        EXPECT_EQ(FetchOf(Sends(Reply("200 OK",
                                      "Transfer-Encoding: chunked\r\nContent-Encoding: deflate\r\n",
                                      "3e8\r\n" + half + "\r\n"))),
                  "");
    }
}

TEST_F(FetchingAPage, FailsWhereItsLengthIsNoNumber) {
    EXPECT_EQ(FetchOf(Sends(Reply("200 OK", "Content-Length: five\r\n", "abcde"))), "");
}

TEST_F(FetchingAPage, FollowsEveryKindOfRedirect) {
    server_.answers["page"] = Sends(Page("page"));
    for (const char* status : {"301 Moved Permanently", "302 Found", "303 See Other",
                               "307 Temporary Redirect", "308 Permanent Redirect"}) {
        server_.answers["old"] = RedirectsTo(status, server_.Address(QStringLiteral("page")));
        EXPECT_EQ(Fetch(QStringLiteral("old")), "page") << status;
        server_.answers["old"] = RedirectsTo(status, QStringLiteral("/page"));
        EXPECT_EQ(Fetch(QStringLiteral("old")), "page") << status;
    }
}

TEST_F(FetchingAPage, FollowsTenRedirectsAndNoMore) {
    server_.answers["10"] = Sends(Page("page"));
    for (int i = -1; i < 10; ++i) {
        server_.answers[QByteArray::number(i)] =
            RedirectsTo("302 Found", QStringLiteral("/%1").arg(i + 1));
    }
    EXPECT_EQ(Fetch(QStringLiteral("0")), "page");
    EXPECT_EQ(Fetch(QStringLiteral("-1")), "");
}

TEST_F(FetchingAPage, FailsWhereItIsSentRoundInCirclesOrAway) {
    EXPECT_EQ(FetchOf(RedirectsTo("302 Found", QStringLiteral("/page"))), "");
    for (const char* away :
         {"file:///etc/hostname", "ftp://127.0.0.1/a", "data:text/plain,a", "http://", ""}) {
        EXPECT_EQ(FetchOf(RedirectsTo("302 Found", QString::fromLatin1(away))), "") << away;
    }
}

TEST_F(FetchingAPage, FailsWhereNoByteComesInTime) {
    limits_.silence = Milliseconds(20);
    EXPECT_EQ(FetchOf([](QTcpSocket&) {}), "");
    EXPECT_EQ(FetchOf([](QTcpSocket& socket) {
                  socket.write(Reply("200 OK", "Content-Length: 9\r\n", "half"));
              }),
              "");
}

// Writes one more byte, or block, whenever the one before it has left.
Answer SendsForever(const QByteArray& head, const QByteArray& more, Milliseconds pause) {
    return [=](QTcpSocket& socket) {
        socket.write(head);
        auto* timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket, more] {
            if (socket.bytesToWrite() == 0) socket.write(more);
        });
        timer->start(pause);
    };
}

TEST_F(FetchingAPage, FailsWhereItDripsOnAfterItsTime) {
    limits_.whole = Milliseconds(60);
    EXPECT_EQ(FetchOf(SendsForever(Reply("200 OK", {}, {}), "x", Milliseconds(1))), "");
    EXPECT_EQ(FetchOf(SendsForever("HTTP/1.1 200 OK\r\nX-Drips: ", "x", Milliseconds(1))), "");
}

TEST_F(FetchingAPage, FailsWhereItGrowsBeyondItsSize) {
    limits_.bytes = 1000;
    EXPECT_EQ(FetchOf(Sends(Page(QByteArray(1000, 'x')))), std::string(1000, 'x'));
    EXPECT_EQ(FetchOf(Sends(Page(QByteArray(1001, 'x')))), "");
    const QByteArray packed = qCompress(QByteArray(1001, 'x')).mid(4);
    EXPECT_EQ(FetchOf(Sends(Page(packed, "Content-Encoding: deflate\r\n"))), "");
    const QByteArray block(64 * 1024, 'x');
    EXPECT_EQ(FetchOf(SendsForever(Reply("200 OK", {}, {}), block, Milliseconds(0))), "");
    EXPECT_EQ(FetchOf(Sends(Page(QByteArray(200'000, 'x')))), "");
}

TEST_F(FetchingAPage, LetsEventsRun) {
    bool ran = false;
    QTimer::singleShot(0, &application_, [&ran] { ran = true; });
    EXPECT_EQ(FetchOf(Sends(Page("page"))), "page");
    EXPECT_TRUE(ran);
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
