// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OpenPage.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

QString AddressOf(const char* page, const QString& folder = {}) {
    return PageAddress(QString::fromLatin1(page), folder).toString();
}

TEST(PageAddress, AWebAddressStandsAsItIs) {
    EXPECT_EQ(AddressOf("http://www.example.org/results?day=1"),
              QStringLiteral("http://www.example.org/results?day=1"));
}

TEST(PageAddress, AMailAddressStandsAsItIs) {
    EXPECT_EQ(AddressOf("mailto:help@example.org"), QStringLiteral("mailto:help@example.org"));
}

TEST(PageAddress, AnAddressMayLackItsHttp) {
    EXPECT_EQ(AddressOf("www.example.org"), QStringLiteral("http://www.example.org"));
}

TEST(PageAddress, ABareNameIsTheFileInTheFolder) {
    const QTemporaryDir folder;
    QFile page(folder.filePath(QStringLiteral("help.html")));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.close();
    EXPECT_EQ(AddressOf("help.html", folder.path()),
              QUrl::fromLocalFile(page.fileName()).toString());
}

TEST(PageAddress, NothingIsNoAddress) {
    EXPECT_FALSE(PageAddress({}, {}).isValid());
    EXPECT_FALSE(PageAddress(QStringLiteral("  "), {}).isValid());
}

}  // namespace
