// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <array>
#include <string>

#include "platform/system/FetchURL.h"
#include "tests/support/local_server.h"

/// Fetches from a server of its own, and waits for nothing that a test does not mean to happen.
class FetchingAPage : public testing::Test {
  protected:
    std::string Fetch(const QString& path) { return FetchURL(server_.Address(path), access_); }

    std::string FetchOf(const ServerAnswer& answer) {
        server_.answers["page"] = answer;
        return Fetch(QStringLiteral("page"));
    }

    QString ProblemOf(const QString& address) {
        const FetchedPage page = FetchPage(address, access_);
        EXPECT_EQ(page.bytes, "");
        return page.problem;
    }

    QString ProblemWith(const ServerAnswer& answer) {
        server_.answers["page"] = answer;
        return ProblemOf(server_.Address(QStringLiteral("page")));
    }

    WebAccess access_{.limits = {.silence = std::chrono::milliseconds(20'000),
                                 .whole = std::chrono::milliseconds(20'000)}};

    // Before the server, which needs it.
    int argc_ = 1;
    std::array<char, 2> name_ = {'t', '\0'};
    char* argv_ = name_.data();
    QCoreApplication application_{argc_, &argv_};
    LocalServer server_;
};
