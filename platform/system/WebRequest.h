// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <curl/curl.h>

#include <QObject>
#include <QUrl>
#include <memory>
#include <optional>
#include <string>

#include "platform/system/CurlLoop.h"

/// One GET of a web page, without what it may lead on to.
class WebRequest final : public QObject {
    Q_OBJECT
  public:
    struct Settings {
        QUrl url;
        QString proxy;        ///< Empty: what the environment says.
        QString authorities;  ///< File of trusted certificates; empty: those of the system.
        qsizetype most;       ///< Bytes of a body that is not given up.
    };

    explicit WebRequest(const Settings& settings);

    /// Waits for the answer, while events run; ends early by `Stop`. Whether it came whole, with
    /// a status that is a success.
    bool Run();
    void Stop() { loop_.Stop(); }

    /// The body as it came, packed or not.
    const std::string& Body() const { return body_; }

    /// How the body is packed, in small letters; empty: not at all.
    QByteArray Encoding() const;

    /// Whether the answer leads on to another address, and to which.
    bool LeadsOn() const { return leadsOn_; }
    QUrl Next() const;

    /// Why `Run` gave false.
    QString Problem() const;

  Q_SIGNALS:
    /// The other side was heard; so many bytes of the body have come.
    void Heard(qsizetype bytes);

  private:
    using Handle = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
    using List = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

    void SetAddress(const Settings& settings);
    void SetManners();
    static std::size_t TakeHead(char* bytes, std::size_t, std::size_t size, void* self);
    static std::size_t TakeBody(char* bytes, std::size_t, std::size_t size, void* self);
    int Status() const;
    bool IsGivenUpAtHead() const;
    bool IsAsAnnounced() const;
    QString ConnectionProblem() const;
    QList<QByteArray> Fields(const char* name) const;

    QString host_;
    bool byProxy_;
    qsizetype most_;
    std::size_t headSize_ = 0;
    std::string body_;
    bool leadsOn_ = false;
    bool tooLarge_ = false;
    std::optional<CURLcode> result_;
    List headers_;
    Handle transfer_;
    CurlLoop loop_;
};
