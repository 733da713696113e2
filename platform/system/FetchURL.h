// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <chrono>
#include <string>

/// What a fetch is given up at.
struct FetchLimits {
    std::chrono::milliseconds silence = std::chrono::seconds(30);  ///< Without a byte.
    std::chrono::milliseconds whole = std::chrono::seconds(60);    ///< From request to last byte.
    qsizetype bytes = 16 * 1024 * 1024;                            ///< Of the page, unpacked.
    int redirects = 10;                                            ///< In a row.
};

/// Fetches a web page and waits for it, while events run; the bytes are given as they came, but for
/// a content encoding, which is unpacked.
///
/// Empty where the page cannot be had whole: no http or https address, no answer, a status of 400
/// and above, fewer bytes than announced, a limit passed. One request, nothing of it is kept.
///
/// Where a server neither announces a length nor packs the page, Qt does not notice every cut.
std::string FetchURL(const QString& address, const FetchLimits& limits = {});

/// From now on pages are fetched through the proxy that the desktop is set to, if any.
void UseDesktopProxy();
