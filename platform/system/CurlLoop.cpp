// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/CurlLoop.h"

#include <new>

CurlLoop::CurlLoop() : multi_(curl_multi_init(), curl_multi_cleanup) {
    if (!multi_) throw std::bad_alloc();
    curl_multi_setopt(multi_.get(), CURLMOPT_SOCKETFUNCTION, &CurlLoop::WatchSocket);
    curl_multi_setopt(multi_.get(), CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(multi_.get(), CURLMOPT_TIMERFUNCTION, &CurlLoop::SetTimer);
    curl_multi_setopt(multi_.get(), CURLMOPT_TIMERDATA, this);
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, [this] { Act(CURL_SOCKET_TIMEOUT, 0); });
}

std::optional<CURLcode> CurlLoop::Run(CURL* transfer) {
    result_.reset();
    curl_multi_add_handle(multi_.get(), transfer);
    loop_.exec();
    curl_multi_remove_handle(multi_.get(), transfer);
    dropped_.clear();
    return result_;
}

void CurlLoop::Stop() { loop_.quit(); }

int CurlLoop::WatchSocket(CURL*, curl_socket_t socket, int what, void* self, void*) {
    auto& loop = *static_cast<CurlLoop*>(self);
    loop.Drop(socket);
    const bool reads = what == CURL_POLL_IN || what == CURL_POLL_INOUT;
    const bool writes = what == CURL_POLL_OUT || what == CURL_POLL_INOUT;
    if (reads) loop.Watch(socket, QSocketNotifier::Read, CURL_CSELECT_IN);
    if (writes) loop.Watch(socket, QSocketNotifier::Write, CURL_CSELECT_OUT);
    return 0;
}

void CurlLoop::Drop(curl_socket_t socket) {
    const auto [first, last] = notifiers_.equal_range(socket);
    for (auto notifier = first; notifier != last; ++notifier) {
        notifier->second->setEnabled(false);
        dropped_.push_back(std::move(notifier->second));
    }
    notifiers_.erase(first, last);
}

void CurlLoop::Watch(curl_socket_t socket, QSocketNotifier::Type type, int event) {
    auto notifier = std::make_unique<QSocketNotifier>(socket, type);
    connect(notifier.get(), &QSocketNotifier::activated, this, [this, socket, event] {
        Act(socket, event);
        Q_EMIT Heard();
    });
    notifiers_.emplace(socket, std::move(notifier));
}

int CurlLoop::SetTimer(CURLM*, long milliseconds, void* self) {
    QTimer& timer = static_cast<CurlLoop*>(self)->timer_;
    if (milliseconds < 0) {
        timer.stop();
    } else {
        timer.start(std::chrono::milliseconds(milliseconds));
    }
    return 0;
}

void CurlLoop::Act(curl_socket_t socket, int events) {
    int running = 0;
    curl_multi_socket_action(multi_.get(), socket, events, &running);
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi_.get(), &left)) {
        if (message->msg != CURLMSG_DONE) continue;
        result_ = message->data.result;
        loop_.quit();
    }
}
