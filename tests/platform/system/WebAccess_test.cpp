// SPDX-License-Identifier: GPL-3.0-or-later
// Certificates, proxies, and names of computers that nobody knows.
#include <dlfcn.h>
#include <netdb.h>

#include <QSemaphore>
#include <QTcpSocket>
#include <string_view>

#include "tests/platform/system/fetching_a_page.h"

namespace {

QSemaphore namesKnown;

constexpr std::string_view slowName = "slow.example";
constexpr std::string_view unknownName = "unknown.example";

}  // namespace

// Stands in front of the system's: no test asks the net for a name.
extern "C" int getaddrinfo(const char* node, const char* service, const addrinfo* hints,
                           addrinfo** found) {
    using Lookup = int (*)(const char*, const char*, const addrinfo*, addrinfo**);
    static const auto system = reinterpret_cast<Lookup>(dlsym(RTLD_NEXT, "getaddrinfo"));
    if (node != nullptr && node == slowName) namesKnown.acquire();
    if (node != nullptr && (node == slowName || node == unknownName)) return EAI_NONAME;
    return system(node, service, hints, found);
}

namespace {

using Milliseconds = std::chrono::milliseconds;

/// A fetch from a server whose connections are encrypted.
class FetchingASafePage : public FetchingAPage {
  protected:
    FetchingASafePage() {
        access_.authorities = LocalServer::Certificate();
        safe_.answers["page"] = Sends(HttpPage("page"));
    }

    std::string FetchSafe() { return FetchURL(safe_.Address(QStringLiteral("page")), access_); }

    LocalServer safe_{LocalServer::Kind::Safe};
};

TEST_F(FetchingASafePage, GivesItsBytesWhereItsCertificateIsTrusted) {
    EXPECT_EQ(FetchSafe(), "page");
}

TEST_F(FetchingASafePage, FailsWhereItsCertificateIsNotTrusted) {
    access_.authorities.clear();
    EXPECT_EQ(ProblemOf(safe_.Address(QStringLiteral("page"))),
              QStringLiteral("The certificate of \"127.0.0.1\" is not trusted."));
    access_.authorities = QStringLiteral("/no/such/file");
    EXPECT_EQ(FetchSafe(), "");
    EXPECT_TRUE(safe_.requests.empty());
}

TEST_F(FetchingASafePage, FailsWhereTheCertificateIsAnothersOne) {
    const QString address = safe_.Address(QStringLiteral("page"))
                                .replace(QStringLiteral("127.0.0.1"), QStringLiteral("127.0.0.2"));
    EXPECT_NE(ProblemOf(address), QString());
    EXPECT_TRUE(safe_.requests.empty());
}

TEST_F(FetchingASafePage, FailsWhereNobodySpeaksSafely) {
    const QString plain = server_.Address(QStringLiteral("page"));
    server_.Close();
    EXPECT_NE(ProblemOf(QStringLiteral("https") + plain.mid(4)), QString());
}

// Without a length only the farewell tells that all of it has come.
TEST_F(FetchingASafePage, FailsEachTimeThatItIsCutOffWithoutAFarewell) {
    for (int time = 0; time < 5; ++time) {
        safe_.answers["page"] = SendsAndResets(HttpReply("200 OK", {}, QByteArray(5000, 'x')));
        EXPECT_EQ(FetchSafe(), "");
    }
    safe_.answers["page"] = Sends(HttpReply("200 OK", {}, "with a farewell"));
    EXPECT_EQ(FetchSafe(), "with a farewell");
}

TEST_F(FetchingASafePage, IsFollowedToButNeverLeft) {
    EXPECT_EQ(FetchOf(LeadsTo("301 Moved Permanently", safe_.Address(QStringLiteral("page")))),
              "page");
    server_.answers["page"] = Sends(HttpPage("not safe"));
    safe_.answers["page"] =
        LeadsTo("301 Moved Permanently", server_.Address(QStringLiteral("page")));
    EXPECT_EQ(ProblemOf(safe_.Address(QStringLiteral("page"))),
              QStringLiteral("The page leads on to one that is not safe."));
    EXPECT_EQ(server_.requests.size(), 1U);
}

// Connects what the client of a proxy sends with a server on this computer, and back.
ServerAnswer Tunnels(quint16 port) {
    return [port](QTcpSocket& client) {
        client.disconnect(SIGNAL(readyRead()));
        auto* server = new QTcpSocket(&client);
        QObject::connect(&client, &QTcpSocket::readyRead, server,
                         [&client, server] { server->write(client.readAll()); });
        QObject::connect(server, &QTcpSocket::readyRead, &client,
                         [&client, server] { client.write(server->readAll()); });
        QObject::connect(server, &QTcpSocket::disconnected, &client,
                         [&client] { client.disconnectFromHost(); });
        server->connectToHost(QStringLiteral("127.0.0.1"), port);
        client.write("HTTP/1.1 200 Connection established\r\nContent-Length: 3\r\n\r\n");
    };
}

TEST_F(FetchingASafePage, PassesThroughAProxyUnread) {
    const QUrl page(safe_.Address(QStringLiteral("page")));
    const QByteArray place = "127.0.0.1:" + QByteArray::number(page.port());
    qputenv("https_proxy", server_.Address({}).toLatin1());
    server_.answers[place] = Tunnels(static_cast<quint16>(page.port()));
    EXPECT_EQ(FetchSafe(), "page");
    EXPECT_EQ(server_.requests.size(), 1U);
    server_.answers[place] = LeadsTo("302 Found", server_.Address(QStringLiteral("page")));
    EXPECT_EQ(FetchSafe(), "");
    EXPECT_EQ(server_.requests.size(), 2U);
    qunsetenv("https_proxy");
}

/// Fetches through a proxy, which the server of the test is. No computer has the name that is
/// asked for.
class FetchingThroughAProxy : public FetchingAPage {
  protected:
    FetchingThroughAProxy() {
        server_.answers["http://unknown.example/page"] = Sends(HttpPage("by proxy"));
    }
    ~FetchingThroughAProxy() override {
        for (const char* name : {"http_proxy", "https_proxy", "all_proxy", "no_proxy"}) {
            qunsetenv(name);
        }
    }

    QByteArray Proxy() { return server_.Address({}).toLatin1(); }

    const QString page_ = QStringLiteral("http://unknown.example/page");
};

TEST_F(FetchingThroughAProxy, AsksTheOneOfTheEnvironment) {
    for (const char* name : {"http_proxy", "all_proxy"}) {
        qputenv(name, Proxy());
        EXPECT_EQ(FetchURL(page_, access_), "by proxy") << name;
        qunsetenv(name);
    }
    EXPECT_EQ(server_.requests.size(), 2U);
    EXPECT_TRUE(server_.requests.front().startsWith("GET http://unknown.example/page HTTP/1.1"));
}

TEST_F(FetchingThroughAProxy, AsksTheOneOfTheEnvironmentForASafePage) {
    qputenv("https_proxy", Proxy());
    server_.answers["unknown.example:443"] = Sends(HttpReply("403 Forbidden", {}, {}));
    EXPECT_NE(ProblemOf(QStringLiteral("https://unknown.example/page")), QString());
    ASSERT_EQ(server_.requests.size(), 1U);
    EXPECT_TRUE(server_.requests.front().startsWith("CONNECT unknown.example:443 HTTP/1.1"));
}

TEST_F(FetchingThroughAProxy, LeavesOutWhatTheEnvironmentSays) {
    qputenv("http_proxy", Proxy());
    qputenv("no_proxy", "other.example,unknown.example");
    EXPECT_EQ(ProblemOf(page_),
              QStringLiteral("Nothing is known of the computer \"unknown.example\"."));
    EXPECT_TRUE(server_.requests.empty());
    qputenv("no_proxy", "127.0.0.1");
    EXPECT_EQ(FetchOf(Sends(HttpPage("no proxy"))), "no proxy");
}

TEST_F(FetchingThroughAProxy, LogsInAsTheProxyWantsIt) {
    qputenv("http_proxy", "http://anna:secret@" + Proxy().mid(7));
    const std::map<QByteArray, QByteArray> logins = {
        {"Basic realm=\"proxy\"", "Proxy-Authorization: Basic YW5uYTpzZWNyZXQ="},
        {"Digest realm=\"proxy\", nonce=\"n\"", "Proxy-Authorization: Digest username=\"anna\""}};
    for (const auto& [wanted, given] : logins) {
        const QByteArray headers = "Proxy-Authenticate: " + wanted + "\r\nContent-Length: 5\r\n";
        server_.answers["http://unknown.example/page"] = [&](QTcpSocket& socket) {
            const bool isKnown = server_.requests.back().contains(given);
            Sends(isKnown ? HttpPage("by proxy")
                          : HttpReply("407 Login", headers, "login"))(socket);
        };
        EXPECT_EQ(FetchURL(page_, access_), "by proxy") << wanted.toStdString();
    }
}

TEST_F(FetchingThroughAProxy, AsksTheOneOfTheDesktopWhereTheEnvironmentNamesNone) {
    access_.desktopProxy = [proxy = QString::fromLatin1(Proxy())](const QUrl& url) {
        return url.host() == QLatin1String("unknown.example") ? proxy : QString();
    };
    EXPECT_EQ(FetchURL(page_, access_), "by proxy");
    EXPECT_EQ(FetchOf(Sends(HttpPage("no proxy"))), "no proxy");
    qputenv("no_proxy", "unknown.example");
    EXPECT_EQ(FetchURL(page_, access_), "");
    qunsetenv("no_proxy");
    qputenv("http_proxy", "http://127.0.0.1:1");
    EXPECT_EQ(ProblemOf(page_),
              QStringLiteral("The computer \"unknown.example\" or the proxy cannot be reached."));
}

TEST_F(FetchingThroughAProxy, DoesNotWaitForADesktopThatDoesNotAnswer) {
    QSemaphore answers;
    QSemaphore answered;
    access_.limits.silence = Milliseconds(20);
    access_.desktopProxy = [&](const QUrl&) {
        answers.acquire();
        answered.release();
        return QString();
    };
    EXPECT_EQ(ProblemOf(page_), QStringLiteral("The server fell silent."));
    answers.release();
    answered.acquire();
}

TEST_F(FetchingThroughAProxy, AsksNoneThatTheDesktopIsNotSetTo) {
    EXPECT_EQ(ProxyOfDesktop(QUrl(page_)), QString());
}

TEST_F(FetchingAPage, FailsWhereTheComputerIsNotKnown) {
    EXPECT_EQ(ProblemOf(QStringLiteral("http://unknown.example/page")),
              QStringLiteral("Nothing is known of the computer \"unknown.example\"."));
}

TEST_F(FetchingAPage, DoesNotWaitForANameThatIsStillLookedUp) {
    access_.limits.silence = Milliseconds(20);
    EXPECT_EQ(ProblemOf(QStringLiteral("http://slow.example/page")),
              QStringLiteral("The server fell silent."));
    namesKnown.release();
}

}  // namespace
