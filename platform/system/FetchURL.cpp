// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/FetchURL.h"

#include <QByteArray>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <array>
#include <memory>

#include "platform/system/unpack.h"

namespace {

// What packing adds at most to a page of the largest size.
constexpr qsizetype packingRoom = 64 * 1024;

QNetworkRequest RequestOf(const QUrl& url) {
    QNetworkRequest request(url);
    // Followed by hand: left to it, Qt now and then gives up where a server closes the connection
    // right behind the answer that leads on.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    // Asked for by hand, packed bytes come as they are and can be counted.
    request.setRawHeader("Accept-Encoding", "gzip");
    return request;
}

// Qt takes some bodies for whole that were cut off in the middle.
bool IsWhole(const QNetworkReply& reply, const QByteArray& body) {
    if (!reply.isFinished() || reply.error() != QNetworkReply::NoError) return false;
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status < 200 || status >= 300) return false;
    if (!reply.hasRawHeader("Content-Length") || reply.hasRawHeader("Transfer-Encoding"))
        return true;
    bool isNumber = false;
    const qlonglong announced = reply.rawHeader("Content-Length").trimmed().toLongLong(&isNumber);
    return isNumber && announced == body.size();
}

std::string Unpacked(const QNetworkReply& reply, const QByteArray& body, qsizetype limit) {
    const QByteArray encoding = reply.rawHeader("Content-Encoding").trimmed().toLower();
    const auto most = static_cast<std::size_t>(limit);
    if (encoding.isEmpty() || encoding == "identity") {
        return body.size() > limit ? std::string() : body.toStdString();
    }
    if (encoding != "gzip" && encoding != "x-gzip" && encoding != "deflate") return {};
    return Unpack({body.data(), static_cast<std::size_t>(body.size())}, most).value_or("");
}

bool IsWebAddress(const QUrl& url) {
    const bool web =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return url.isValid() && web && !url.host().isEmpty();
}

// What one request gave: the page, or where it leads on to; neither where it failed.
struct Answer {
    std::string page;
    QUrl leadsTo;
};

// Where the answer leads on to, once its head is there.
QUrl LeadsTo(const QNetworkReply& reply) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    constexpr std::array leading = {301, 302, 303, 307, 308};
    if (std::find(leading.begin(), leading.end(), status) == leading.end()) return {};
    const QUrl next = reply.url().resolved(QUrl::fromEncoded(reply.rawHeader("Location")));
    const bool lessSafe =
        reply.url().scheme() == QLatin1String("https") && next.scheme() != QLatin1String("https");
    return lessSafe ? QUrl() : next;
}

Answer Request(QNetworkAccessManager& manager, const QUrl& url, const FetchLimits& limits,
               QTimer& whole) {
    const std::unique_ptr<QNetworkReply> reply(manager.get(RequestOf(url)));
    QByteArray body;
    QUrl leadsTo;
    QEventLoop loop;
    QTimer silence;
    const auto answered = [&] { silence.start(limits.silence); };
    const auto take = [&] {
        body += reply->readAll();
        if (body.size() > limits.bytes + packingRoom) reply->abort();
    };
    const auto readHead = [&] {
        leadsTo = LeadsTo(*reply);
        if (leadsTo.isValid()) loop.quit();
    };
    QObject::connect(&silence, &QTimer::timeout, reply.get(), &QNetworkReply::abort);
    QObject::connect(&whole, &QTimer::timeout, reply.get(), &QNetworkReply::abort);
    QObject::connect(reply.get(), &QNetworkReply::encrypted, &silence, answered);
    QObject::connect(reply.get(), &QNetworkReply::metaDataChanged, &silence, answered);
    QObject::connect(reply.get(), &QNetworkReply::metaDataChanged, &loop, readHead);
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &silence, answered);
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    answered();
    if (!reply->isFinished()) loop.exec();
    reply->disconnect();
    if (leadsTo.isValid()) return {{}, leadsTo};
    body += reply->readAll();
    if (!IsWhole(*reply, body)) return {};
    return {Unpacked(*reply, body, limits.bytes), {}};
}

}  // namespace

std::string FetchURL(const QString& address, const FetchLimits& limits) {
    QNetworkAccessManager manager;
    QTimer whole;
    whole.setSingleShot(true);
    whole.start(limits.whole);
    QUrl url(address);
    for (int redirects = 0; redirects <= limits.redirects; ++redirects) {
        if (!IsWebAddress(url) || !whole.isActive()) return {};
        const Answer answer = Request(manager, url, limits, whole);
        if (!answer.leadsTo.isValid()) return answer.page;
        url = answer.leadsTo;
    }
    return {};
}

void UseDesktopProxy() { QNetworkProxyFactory::setUseSystemConfiguration(true); }
