// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/WebRequest.h"

#include <QCoreApplication>
#include <QFile>
#include <algorithm>
#include <array>
#include <new>

#include "platform/system/DesktopProxy.h"

namespace {

// No server means well with more.
constexpr std::size_t mostHead = 256 * 1024;

constexpr int partialContent = 206;
constexpr int proxyLogin = 407;

bool IsRedirect(int status) {
    constexpr std::array redirects = {301, 302, 303, 307, 308};
    return std::find(redirects.begin(), redirects.end(), status) != redirects.end();
}

// Part of a page, which nobody asked for, is none.
bool IsSuccess(int status) { return status >= 200 && status < 300 && status != partialContent; }

// The system's file of trusted certificates, where it lies elsewhere than the library looks: a
// program that brings its libraries along may run on a system that they were not made for.
QString AuthoritiesElsewhere() {
    const char* usual = curl_version_info(CURLVERSION_NOW)->cainfo;
    if (usual == nullptr || QFile::exists(QFile::decodeName(usual))) return {};
    for (const QString& file : {QStringLiteral("/etc/pki/ca-trust/extracted/pem/tls-ca-bundle.pem"),
                                QStringLiteral("/etc/pki/tls/certs/ca-bundle.crt"),
                                QStringLiteral("/etc/ssl/ca-bundle.pem"),
                                QStringLiteral("/etc/ssl/certs/ca-certificates.crt"),
                                QStringLiteral("/etc/ssl/cert.pem")}) {
        if (QFile::exists(file)) return file;
    }
    return {};
}

QString Said(const char* text) { return QCoreApplication::translate("WebRequest", text); }

}  // namespace

WebRequest::WebRequest(const Settings& settings)
    : host_(settings.url.host()),
      byProxy_(!settings.proxy.isEmpty() || EnvironmentNamesProxy(settings.url)),
      most_(settings.most),
      headers_(curl_slist_append(nullptr, "Accept-Encoding: gzip"), curl_slist_free_all),
      transfer_(curl_easy_init(), curl_easy_cleanup) {
    if (!transfer_ || !headers_) throw std::bad_alloc();
    SetAddress(settings);
    SetManners();
    connect(&loop_, &CurlLoop::Heard, this,
            [this] { Q_EMIT Heard(static_cast<qsizetype>(body_.size())); });
}

void WebRequest::SetAddress(const Settings& settings) {
    CURL* transfer = transfer_.get();
    const QByteArray url = settings.url.toEncoded(QUrl::RemoveFragment);
    curl_easy_setopt(transfer, CURLOPT_URL, url.constData());
    curl_easy_setopt(transfer, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(transfer, CURLOPT_PROXYAUTH, CURLAUTH_ANY);
    curl_easy_setopt(transfer, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    if (!settings.proxy.isEmpty()) {
        curl_easy_setopt(transfer, CURLOPT_PROXY, settings.proxy.toUtf8().constData());
    }
    const QString authorities =
        settings.authorities.isEmpty() ? AuthoritiesElsewhere() : settings.authorities;
    if (!authorities.isEmpty()) {
        curl_easy_setopt(transfer, CURLOPT_CAINFO, authorities.toLocal8Bit().constData());
        curl_easy_setopt(transfer, CURLOPT_CAPATH, nullptr);
    }
}

void WebRequest::SetManners() {
    CURL* transfer = transfer_.get();
    curl_easy_setopt(transfer, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);
    curl_easy_setopt(transfer, CURLOPT_USERAGENT,
                     "Mozilla/5.0 (compatible; Lottery Quillon World)");
    // Asked for by hand, packed bytes come as they are and can be counted.
    curl_easy_setopt(transfer, CURLOPT_HTTPHEADER, headers_.get());
    curl_easy_setopt(transfer, CURLOPT_HEADERFUNCTION, &WebRequest::TakeHead);
    curl_easy_setopt(transfer, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(transfer, CURLOPT_WRITEFUNCTION, &WebRequest::TakeBody);
    curl_easy_setopt(transfer, CURLOPT_WRITEDATA, this);
    // A connection used twice may be tried twice.
    curl_easy_setopt(transfer, CURLOPT_FRESH_CONNECT, 1L);
    curl_easy_setopt(transfer, CURLOPT_FORBID_REUSE, 1L);
    // Who gives up a name that is being looked up does not wait for the answer.
    curl_easy_setopt(transfer, CURLOPT_QUICK_EXIT, 1L);
}

bool WebRequest::Run() {
    result_ = loop_.Run(transfer_.get());
    return result_ == CURLE_OK && IsSuccess(Status()) && IsAsAnnounced();
}

// A line of the head of an answer; the last one is empty. Fields behind the body come here too.
std::size_t WebRequest::TakeHead(char* bytes, std::size_t, std::size_t size, void* self) {
    auto& request = *static_cast<WebRequest*>(self);
    request.headSize_ += size;
    if (request.headSize_ > mostHead) return CURL_WRITEFUNC_ERROR;
    const bool isLast = size <= 2 && (bytes[0] == '\r' || bytes[0] == '\n');
    request.leadsOn_ = isLast && IsRedirect(request.Status());
    return isLast && request.IsGivenUpAtHead() ? CURL_WRITEFUNC_ERROR : size;
}

std::size_t WebRequest::TakeBody(char* bytes, std::size_t, std::size_t size, void* self) {
    auto& request = *static_cast<WebRequest*>(self);
    request.tooLarge_ = request.body_.size() + size > static_cast<std::size_t>(request.most_);
    if (request.tooLarge_) return CURL_WRITEFUNC_ERROR;
    request.body_.append(bytes, size);
    return size;
}

int WebRequest::Status() const {
    long status = 0;
    curl_easy_getinfo(transfer_.get(), CURLINFO_RESPONSE_CODE, &status);
    return static_cast<int>(status);
}

// The body of such an answer is of no use, and may never end. What asks for a login is answered by
// the library, where it can be.
bool WebRequest::IsGivenUpAtHead() const {
    const int status = Status();
    return status >= 200 && !IsSuccess(status) && status != proxyLogin;
}

// The library has seen to the last chunk and, of several lengths, to the last one.
bool WebRequest::IsAsAnnounced() const {
    if (!Fields("Transfer-Encoding").isEmpty()) {
        return Fields("Transfer-Encoding").join(',').toLower() == "chunked";
    }
    const QList<QByteArray> lengths = Fields("Content-Length");
    const QByteArray size = QByteArray::number(static_cast<qulonglong>(body_.size()));
    return std::all_of(lengths.begin(), lengths.end(),
                       [&](const QByteArray& length) { return length == size; });
}

QList<QByteArray> WebRequest::Fields(const char* name) const {
    QList<QByteArray> fields;
    curl_header* field = nullptr;
    while (curl_easy_header(transfer_.get(), name, static_cast<std::size_t>(fields.size()),
                            CURLH_HEADER, -1, &field) == CURLHE_OK) {
        fields += QByteArray(field->value).trimmed();
    }
    return fields;
}

QByteArray WebRequest::Encoding() const {
    const QByteArray encoding = Fields("Content-Encoding").join(',').toLower();
    return encoding == "identity" ? QByteArray() : encoding;
}

QUrl WebRequest::Next() const {
    const QList<QByteArray> places = Fields("Location");
    if (places.isEmpty()) return {};
    const char* address = nullptr;
    curl_easy_getinfo(transfer_.get(), CURLINFO_EFFECTIVE_URL, &address);
    return QUrl::fromEncoded(address).resolved(QUrl::fromEncoded(places.front()));
}

QString WebRequest::Problem() const {
    if (tooLarge_) return Said("The page is too large.");
    if (!result_) return Said("The program was closed meanwhile.");
    const int status = Status();
    if (status >= 200 && !IsSuccess(status)) {
        return Said("The server answered with status %1.").arg(status);
    }
    return ConnectionProblem();
}

QString WebRequest::ConnectionProblem() const {
    switch (*result_) {
        case CURLE_COULDNT_RESOLVE_HOST:
            return Said("Nothing is known of the computer \"%1\".").arg(host_);
        case CURLE_COULDNT_RESOLVE_PROXY:
        case CURLE_PROXY:
            return Said("The proxy does not answer.");
        case CURLE_COULDNT_CONNECT:
            if (byProxy_)
                return Said("The computer \"%1\" or the proxy cannot be reached.").arg(host_);
            return Said("The computer \"%1\" cannot be reached.").arg(host_);
        case CURLE_PEER_FAILED_VERIFICATION:
        case CURLE_SSL_CACERT_BADFILE:
            return Said("The certificate of \"%1\" is not trusted.").arg(host_);
        case CURLE_SSL_CONNECT_ERROR:
            return Said("No safe connection to \"%1\" came about.").arg(host_);
        default:
            return Said("The page did not come whole.");
    }
}
