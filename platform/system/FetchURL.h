// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <chrono>
#include <functional>
#include <string>

#include "platform/system/DesktopProxy.h"
#include "platform/system/FetchedPage.h"

/// What a fetch is given up at.
struct FetchLimits {
    std::chrono::milliseconds silence = std::chrono::seconds(30);  ///< Without a byte.
    std::chrono::milliseconds whole = std::chrono::seconds(60);    ///< From request to last byte.
    qsizetype bytes = 16 * 1024 * 1024;                            ///< Of the page, unpacked.
    int redirects = 10;                                            ///< In a row.
};

/// How pages are reached.
struct WebAccess {
    FetchLimits limits = {};
    /// What the desktop says of proxies, asked where the environment names none; none: no proxy.
    ProxyQuestion desktopProxy = {};
    /// File of the certificates that are trusted; empty: those that the system trusts.
    QString authorities = {};
};

/// Fetches a web page and waits for it, while events run; the bytes are given as they came, but for
/// a content encoding, which is unpacked. One request, nothing of it is kept.
///
/// A page is had whole or not at all. It is not where the address is neither http nor https, where
/// nobody answers, where the certificate is not trusted, with a status that is no success, with
/// fewer bytes than announced or an unfinished chunk, beyond a limit, or when the program is closed
/// meanwhile.
FetchedPage FetchPage(const QString& address, const WebAccess& access = {},
                      const FetchProgress& progress = {});

/// The bytes of `FetchPage`, empty where the page cannot be had whole.
std::string FetchURL(const QString& address, const WebAccess& access = {});
