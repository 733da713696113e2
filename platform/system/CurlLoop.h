// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <curl/curl.h>

#include <QEventLoop>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <map>
#include <memory>
#include <optional>
#include <vector>

/// Runs transfers of libcurl in Qt's event loop, so that all other events run meanwhile.
class CurlLoop final : public QObject {
    Q_OBJECT
  public:
    CurlLoop();

    /// Runs the transfer to its end and says how it ended. Nothing where it was stopped before, or
    /// the program was.
    std::optional<CURLcode> Run(CURL* transfer);

    /// Ends the run. Not to be called from within a callback of libcurl.
    void Stop();

  Q_SIGNALS:
    /// Something came from the other side, or could be sent to it.
    void Heard();

  private:
    using Handle = std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)>;
    using Notifier = std::unique_ptr<QSocketNotifier>;

    static int WatchSocket(CURL* transfer, curl_socket_t socket, int what, void* self, void*);
    static int SetTimer(CURLM* multi, long milliseconds, void* self);
    void Drop(curl_socket_t socket);
    void Watch(curl_socket_t socket, QSocketNotifier::Type type, int event);
    void Act(curl_socket_t socket, int events);

    QEventLoop loop_;
    QTimer timer_;
    std::multimap<curl_socket_t, Notifier> notifiers_;
    std::vector<Notifier>
        dropped_;  // Until the run is over, as one may be dropped in its own signal.
    std::optional<CURLcode> result_;
    Handle multi_;
};
