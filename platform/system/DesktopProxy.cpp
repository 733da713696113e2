// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/DesktopProxy.h"

#include <QNetworkProxyFactory>
#include <thread>

QString ProxyOfDesktop(const QUrl& url) {
    const auto proxies = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url));
    if (proxies.isEmpty()) return {};
    const QNetworkProxy& first = proxies.front();
    const bool socks = first.type() == QNetworkProxy::Socks5Proxy;
    if (first.type() == QNetworkProxy::NoProxy || first.hostName().isEmpty()) return {};
    QUrl proxy;
    proxy.setScheme(socks ? QStringLiteral("socks5h") : QStringLiteral("http"));
    proxy.setHost(first.hostName());
    proxy.setPort(first.port());
    if (!first.user().isEmpty()) {
        proxy.setUserName(first.user());
        proxy.setPassword(first.password());
    }
    return QString::fromLatin1(proxy.toEncoded());
}

// An http address heeds no capitals: a web server could set HTTP_PROXY by a header named "Proxy".
bool EnvironmentNamesProxy(const QUrl& url) {
    const bool secure = url.scheme() == QLatin1String("https");
    const bool own = secure ? !qEnvironmentVariableIsEmpty("https_proxy") ||
                                  !qEnvironmentVariableIsEmpty("HTTPS_PROXY")
                            : !qEnvironmentVariableIsEmpty("http_proxy");
    return own || !qEnvironmentVariableIsEmpty("all_proxy") ||
           !qEnvironmentVariableIsEmpty("ALL_PROXY");
}

AskedProxy::AskedProxy(const ProxyQuestion& question, const QUrl& url)
    : waiting_(std::make_shared<Waiting>()) {
    waiting_->asked = this;
    std::thread([waiting = waiting_, question, url] {
        const QString proxy = question(url);
        const std::lock_guard lock(waiting->mutex);
        AskedProxy* asked = waiting->asked;
        if (asked == nullptr) return;
        QMetaObject::invokeMethod(
            asked, [asked, proxy] { Q_EMIT asked->Answered(proxy); }, Qt::QueuedConnection);
    }).detach();
}

AskedProxy::~AskedProxy() {
    const std::lock_guard lock(waiting_->mutex);
    waiting_->asked = nullptr;
}
