// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/local_server.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <zlib.h>

#include <QFile>
#include <QHostAddress>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpSocket>
#include <QTimer>

#include "test_folders.h"

namespace {

std::unique_ptr<QTcpServer> MakeServer(LocalServer::Kind kind) {
    if (kind == LocalServer::Kind::Plain) return std::make_unique<QTcpServer>();
    QFile file(LocalServer::Certificate());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray pem = file.readAll();
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate(pem));
    configuration.setPrivateKey(QSslKey(pem, QSsl::Ec));
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(configuration);
    return server;
}

}  // namespace

LocalServer::LocalServer(Kind kind)
    : scheme_(kind == Kind::Safe ? QStringLiteral("https") : QStringLiteral("http")),
      server_(MakeServer(kind)) {
    for (const char* name : {"http_proxy", "https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY",
                             "no_proxy", "NO_PROXY"}) {
        qunsetenv(name);
    }
    EXPECT_TRUE(server_->listen(QHostAddress::LocalHost));
    connect(server_.get(), &QTcpServer::pendingConnectionAvailable, this, [this] {
        QTcpSocket* socket = server_->nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(*socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
}

LocalServer::~LocalServer() = default;

QString LocalServer::Address(const QString& path) const {
    return QStringLiteral("%1://127.0.0.1:%2/%3").arg(scheme_).arg(server_->serverPort()).arg(path);
}

void LocalServer::Close() { server_->close(); }

QString LocalServer::Certificate() { return QStringLiteral(TEST_DATA "/server.pem"); }

void LocalServer::Read(QTcpSocket& socket) {
    QByteArray& request = unfinished_[&socket];
    request += socket.readAll();
    if (!request.endsWith("\r\n\r\n")) return;
    requests.push_back(request);
    QByteArray path = request.split(' ').at(1);
    if (path.startsWith('/')) path.remove(0, 1);
    request.clear();
    const auto answer = answers.find(path);
    ASSERT_TRUE(answer != answers.end()) << path.toStdString();
    answer->second(socket);
}

QByteArray HttpReply(const QByteArray& status, const QByteArray& headers, const QByteArray& body) {
    return "HTTP/1.1 " + status + "\r\n" + headers + "Connection: close\r\n\r\n" + body;
}

QByteArray HttpPage(const QByteArray& body, const QByteArray& headers) {
    return HttpReply("200 OK",
                     headers + "Content-Length: " + QByteArray::number(body.size()) + "\r\n", body);
}

QByteArray InChunks(const QByteArray& body, qsizetype size) {
    QByteArray chunks;
    for (qsizetype start = 0; start < body.size(); start += size) {
        const QByteArray chunk = body.mid(start, size);
        chunks += QByteArray::number(chunk.size(), 16) + "\r\n" + chunk + "\r\n";
    }
    return chunks;
}

ServerAnswer Sends(const QByteArray& bytes) {
    return [bytes](QTcpSocket& socket) {
        socket.write(bytes);
        socket.disconnectFromHost();
    };
}

ServerAnswer SendsAndStays(const QByteArray& bytes) {
    return [bytes](QTcpSocket& socket) { socket.write(bytes); };
}

ServerAnswer SendsAndResets(const QByteArray& bytes) {
    return [bytes](QTcpSocket& socket) {
        socket.write(bytes);
        socket.flush();
        // Closed so, a connection ends by a reset and not by the usual farewell.
        const linger atOnce{.l_onoff = 1, .l_linger = 0};
        setsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce,
                   sizeof atOnce);
        socket.abort();
    };
}

ServerAnswer LeadsTo(const QByteArray& status, const QString& address) {
    return Sends(
        HttpReply(status, "Location: " + address.toLatin1() + "\r\nContent-Length: 4\r\n", "gone"));
}

ServerAnswer SendsForever(const QByteArray& head, const QByteArray& more,
                          std::chrono::milliseconds pause) {
    return [=](QTcpSocket& socket) {
        socket.write(head);
        auto* timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket, more] {
            if (socket.isOpen() && socket.bytesToWrite() == 0) socket.write(more);
        });
        timer->start(pause);
    };
}

std::map<std::string, ServerAnswer> Misbehaviours(const QByteArray& page) {
    const QByteArray half = page.left(page.size() / 2);
    const QByteArray length = "Content-Length: " + QByteArray::number(page.size()) + "\r\n";
    const QByteArray chunked = "Transfer-Encoding: chunked\r\n";
    const QByteArray zipped = "Content-Encoding: gzip\r\n";
    const QByteArray packed = Gzip(page);
    const std::chrono::milliseconds pause(1);
    return {
        {"hangs up", Sends({})},
        {"resets", SendsAndResets({})},
        {"resets in the middle", SendsAndResets(HttpReply("200 OK", length, half))},
        {"resets in the middle without a length", SendsAndResets(HttpReply("200 OK", {}, half))},
        {"announces more than it sends", Sends(HttpReply("200 OK", length, half))},
        {"announces a length that is none",
         Sends(HttpReply("200 OK", "Content-Length: x\r\n", page))},
        {"announces two lengths",
         Sends(HttpReply("200 OK", length + "Content-Length: 2\r\n", page))},
        {"cuts at the border of a chunk", Sends(HttpReply("200 OK", chunked, InChunks(half, 100)))},
        {"cuts within a chunk",
         Sends(HttpReply("200 OK", chunked, InChunks(half, 100).chopped(50)))},
        {"cuts behind the size of a chunk",
         Sends(HttpReply("200 OK", chunked, InChunks(half, 100) + "64\r\n"))},
        {"cuts within the last line of the chunks",
         Sends(HttpReply("200 OK", chunked, InChunks(page, 100) + "0\r\n"))},
        {"sends a chunk of no size",
         Sends(HttpReply("200 OK", chunked, InChunks(half, 100) + "x\r\n" + half))},
        {"cuts what it packed", Sends(HttpPage(packed.left(packed.size() / 2), zipped))},
        {"cuts what it packed, in chunks",
         Sends(HttpReply("200 OK", chunked + zipped,
                         InChunks(packed.left(packed.size() / 2), 100) + "0\r\n\r\n"))},
        {"says packed of what is not", Sends(HttpPage(page, zipped))},
        {"packs in its own way", Sends(HttpPage(page, "Content-Encoding: br\r\n"))},
        {"transfers in its own way",
         Sends(HttpReply("200 OK", "Transfer-Encoding: gzip\r\n", packed))},
        {"sends a part", Sends(HttpReply("206 Partial Content", length, page))},
        {"says that it is gone", Sends(HttpReply("404 Not Found", length, page))},
        {"fails", Sends(HttpReply("500 Internal Server Error", length, page))},
        {"asks for a login at its proxy", Sends(HttpReply("407 Login", length, page))},
        {"sends nothing", Sends(HttpPage({}))},
        {"sends nothing and says so", Sends(HttpReply("204 No Content", {}, {}))},
        {"leads round in circles", LeadsTo("302 Found", QStringLiteral("#again"))},
        {"leads away", LeadsTo("302 Found", QStringLiteral("file:///etc/hostname"))},
        {"leads nowhere", Sends(HttpReply("302 Found", length, page))},
        {"speaks no HTTP", Sends("what?\r\n\r\n" + page)},
        {"sends the page and nothing else", Sends(page)},
        {"hangs up in the head", Sends("HTTP/1.1 200 OK\r\n" + length)},
        {"never answers", SendsAndStays({})},
        {"stops in the middle", SendsAndStays(HttpReply("200 OK", length, half))},
        {"stops between two chunks",
         SendsAndStays(HttpReply("200 OK", chunked, InChunks(half, 100)))},
        {"drips", SendsForever(HttpReply("200 OK", {}, {}), "x", pause)},
        {"drips in the head", SendsForever("HTTP/1.1 200 OK\r\nX-Drips: ", "x", pause)},
        {"goes on announcing",
         SendsForever({}, QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(1000), pause)},
        {"sends a head without end",
         SendsForever("HTTP/1.1 200 OK\r\n", "X-More: " + QByteArray(60'000, 'x') + "\r\n",
                      std::chrono::milliseconds(0))},
    };
}

QByteArray Gzip(const QByteArray& bytes) {
    constexpr int gzipHeader = 16;
    z_stream stream{};
    EXPECT_EQ(deflateInit2(&stream, 9, Z_DEFLATED, MAX_WBITS + gzipHeader, 8, Z_DEFAULT_STRATEGY),
              Z_OK);
    QByteArray input = bytes;
    QByteArray packed(
        static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(input.size()))), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
    packed.resize(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}
