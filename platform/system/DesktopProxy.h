// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <functional>
#include <memory>
#include <mutex>

/// What proxy to take for a web address, as an address of its own ("http://proxy:3128"); empty:
/// none.
using ProxyQuestion = std::function<QString(const QUrl& url)>;

/// What the desktop is set to.
QString ProxyOfDesktop(const QUrl& url);

/// Whether the environment names a proxy for such addresses.
bool EnvironmentNamesProxy(const QUrl& url);

/// Asks for a proxy in a thread of its own, as the answer may have to come over the net. Nobody
/// ever waits for that thread: an answer that comes when this is gone is dropped.
class AskedProxy final : public QObject {
    Q_OBJECT
  public:
    AskedProxy(const ProxyQuestion& question, const QUrl& url);
    ~AskedProxy() override;

  Q_SIGNALS:
    void Answered(const QString& proxy);

  private:
    struct Waiting {
        std::mutex mutex;
        AskedProxy* asked;
    };

    std::shared_ptr<Waiting> waiting_;
};
