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
#include <memory>

#include "platform/system/unpack.h"

namespace {

// What packing adds at most to a page of the largest size.
constexpr qsizetype packingRoom = 64 * 1024;

QNetworkRequest RequestOf(const QUrl& url, int redirects) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(redirects);
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
    if (reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() >= 400) return false;
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

}  // namespace

std::string FetchURL(const QString& address, const FetchLimits& limits) {
    const QUrl url(address);
    const bool web =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!url.isValid() || !web || url.host().isEmpty()) return {};

    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(manager.get(RequestOf(url, limits.redirects)));
    QByteArray body;
    QEventLoop loop;
    QTimer silence;
    const auto answered = [&] { silence.start(limits.silence); };
    const auto take = [&] {
        body += reply->readAll();
        if (body.size() > limits.bytes + packingRoom) reply->abort();
    };
    QObject::connect(&silence, &QTimer::timeout, reply.get(), &QNetworkReply::abort);
    QObject::connect(reply.get(), &QNetworkReply::encrypted, &silence, answered);
    QObject::connect(reply.get(), &QNetworkReply::redirected, &silence, answered);
    QObject::connect(reply.get(), &QNetworkReply::metaDataChanged, &silence, answered);
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &silence, answered);
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(limits.whole, reply.get(), &QNetworkReply::abort);
    answered();
    if (!reply->isFinished()) loop.exec();
    reply->disconnect();
    body += reply->readAll();
    if (!IsWhole(*reply, body)) return {};
    return Unpacked(*reply, body, limits.bytes);
}

void UseDesktopProxy() { QNetworkProxyFactory::setUseSystemConfiguration(true); }
