// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/FetchURL.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <QUrl>

#include "platform/system/WebRequest.h"
#include "platform/system/unpack.h"

namespace {

// What packing adds at most to a page of the largest size.
constexpr qsizetype packingRoom = 64 * 1024;

QString Said(const char* text) { return QCoreApplication::translate("FetchPage", text); }

FetchedPage NoPage(const QString& problem) { return {.bytes = {}, .problem = problem}; }

FetchedPage PageOf(std::string bytes) {
    if (bytes.empty()) return NoPage(Said("The page is empty."));
    return {.bytes = std::move(bytes), .problem = {}};
}

bool IsWebAddress(const QUrl& url) {
    const bool web =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return url.isValid() && web && !url.host().isEmpty();
}

bool IsLessSafe(const QUrl& next, const QUrl& url) {
    return url.scheme() == QLatin1String("https") && next.scheme() != QLatin1String("https");
}

/// The fetch of one page, with all that it leads on to.
class Fetch final : public QObject {
  public:
    Fetch(const WebAccess& access, const FetchProgress& progress);

    FetchedPage Run(QUrl url);

  private:
    void EndBy(QTimer& timer, std::chrono::milliseconds after, const QString& problem);
    QString ProxyOf(const QUrl& url);
    FetchedPage Unpacked(const WebRequest& request) const;

    const WebAccess& access_;
    FetchProgress progress_;
    QTimer silence_;
    QTimer whole_;
    QString problem_;             // Why the fetch ended before its end.
    std::function<void()> stop_;  // Stops what is being waited for.
};

Fetch::Fetch(const WebAccess& access, const FetchProgress& progress)
    : access_(access), progress_(progress) {
    EndBy(silence_, access.limits.silence, Said("The server fell silent."));
    EndBy(whole_, access.limits.whole, Said("The page did not come in time."));
}

void Fetch::EndBy(QTimer& timer, std::chrono::milliseconds after, const QString& problem) {
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(after);
    connect(&timer, &QTimer::timeout, this, [this, problem] {
        problem_ = problem;
        if (stop_) stop_();
    });
}

// The environment's proxies are left to the library, which knows their variables.
QString Fetch::ProxyOf(const QUrl& url) {
    if (!access_.desktopProxy || EnvironmentNamesProxy(url)) return {};
    QEventLoop loop;
    QString proxy;
    const AskedProxy asked(access_.desktopProxy, url);
    connect(&asked, &AskedProxy::Answered, this, [&](const QString& answer) {
        proxy = answer;
        loop.quit();
    });
    stop_ = [&loop] { loop.quit(); };
    loop.exec();
    stop_ = {};
    return proxy;
}

FetchedPage Fetch::Unpacked(const WebRequest& request) const {
    const QByteArray encoding = request.Encoding();
    const auto most = static_cast<std::size_t>(access_.limits.bytes);
    if (encoding.isEmpty()) {
        if (request.Body().size() > most) return NoPage(Said("The page is too large."));
        return PageOf(request.Body());
    }
    const bool known = encoding == "gzip" || encoding == "x-gzip" || encoding == "deflate";
    if (!known) return NoPage(Said("The page is packed in a way that is not known here."));
    auto text = Unpack(request.Body(), most);
    if (!text) return NoPage(Said("The page is packed and damaged, or too large."));
    return PageOf(std::move(*text));
}

FetchedPage Fetch::Run(QUrl url) {
    whole_.start();
    silence_.start();
    for (int redirects = 0; redirects <= access_.limits.redirects; ++redirects) {
        if (!IsWebAddress(url)) return NoPage(Said("The address is none of the web."));
        const QString proxy = ProxyOf(url);
        if (!problem_.isEmpty()) return NoPage(problem_);
        WebRequest request({.url = url,
                            .proxy = proxy,
                            .authorities = access_.authorities,
                            .most = access_.limits.bytes + packingRoom});
        connect(&request, &WebRequest::Heard, this, [this](qsizetype bytes) {
            silence_.start();
            if (progress_) progress_(bytes);
        });
        stop_ = [&request] { request.Stop(); };
        silence_.start();
        const bool whole = request.Run();
        stop_ = {};
        if (!problem_.isEmpty()) return NoPage(problem_);
        if (whole) return Unpacked(request);
        if (!request.LeadsOn()) return NoPage(request.Problem());
        const QUrl next = request.Next();
        if (IsLessSafe(next, url))
            return NoPage(Said("The page leads on to one that is not safe."));
        url = next;
    }
    return NoPage(Said("The page leads on and on to others."));
}

}  // namespace

FetchedPage FetchPage(const QString& address, const WebAccess& access,
                      const FetchProgress& progress) {
    return Fetch(access, progress).Run(QUrl(address));
}

std::string FetchURL(const QString& address, const WebAccess& access) {
    return FetchPage(address, access).bytes;
}
