// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <string>

/// What came of the fetch of a web page: its bytes or a problem, never both.
struct FetchedPage {
    std::string bytes;  ///< The whole page; empty where it could not be had.
    QString problem;    ///< Why it could not be had, a sentence for the user; else empty.
};

/// Told of a page that is on its way: how many bytes of it have come.
using FetchProgress = std::function<void(qsizetype bytes)>;
