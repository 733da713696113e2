// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OpenPage.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

/// A program folder with files of every kind, and two mail addresses.
class PageAddressOf : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* name : {"help.html", "helpplay.html", "dbase1.txt", "quillon", "run.sh",
                                 "evil.desktop", "quillon.ini", "www.sh"}) {
            QFile file(Path(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name;
        }
        ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("dbase2.txt")));
    }

    QString Path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }

    QString FileOf(const char* name) const { return QUrl::fromLocalFile(Path(name)).toString(); }

    QString Address(const QString& page) const {
        const QUrl address = PageAddress(page, own_);
        EXPECT_TRUE(address.isEmpty() || address.isValid()) << page.toStdString();
        return address.toString();
    }

    QString Address(const char* page) const { return Address(QString::fromLatin1(page)); }

    QTemporaryDir folder_;
    OwnPages own_{
        .folder = folder_.path(),
        .letters = {QStringLiteral("help@one.example"), QStringLiteral("post@two.example")}};
};

TEST_F(PageAddressOf, AWebAddressStandsAsItIs) {
    EXPECT_EQ(Address("http://www.example.org/results?day=1#top"),
              QStringLiteral("http://www.example.org/results?day=1#top"));
    EXPECT_EQ(Address("https://www.example.org:8080/"),
              QStringLiteral("https://www.example.org:8080/"));
    EXPECT_EQ(Address("HTTP://www.example.org"), QStringLiteral("http://www.example.org"));
}

TEST_F(PageAddressOf, AWebAddressMayLackItsHttp) {
    EXPECT_EQ(Address("www.example.org/a"), QStringLiteral("http://www.example.org/a"));
    EXPECT_EQ(Address("WWW.example.org"), QStringLiteral("http://www.example.org"));
}

TEST_F(PageAddressOf, BlanksAroundAWebAddressDoNotCount) {
    EXPECT_EQ(Address("  http://www.example.org "), QStringLiteral("http://www.example.org"));
}

TEST_F(PageAddressOf, AHelpPageIsTheFileInTheFolder) {
    EXPECT_EQ(Address("help.html"), FileOf("help.html"));
    EXPECT_EQ(Address("helpplay.html"), FileOf("helpplay.html"));
}

TEST_F(PageAddressOf, APlaceInAHelpPageIsKept) {
    EXPECT_EQ(Address("help.html#PLuckyDip"), FileOf("help.html") % QStringLiteral("#PLuckyDip"));
}

TEST_F(PageAddressOf, ADrawDatabaseIsTheFileInTheFolder) {
    EXPECT_EQ(Address("dbase1.txt"), FileOf("dbase1.txt"));
}

TEST_F(PageAddressOf, AMissingHelpPageOrDatabaseIsNone) {
    EXPECT_EQ(Address("helpprint.html"), QString());
    EXPECT_EQ(Address("helpprint.html#top"), QString());
    EXPECT_EQ(Address("dbase9.txt"), QString());
    EXPECT_EQ(Address("dbase2.txt"), QString()) << "a folder is no database";
}

TEST_F(PageAddressOf, ALetterToOneOfOurAddressesIsKept) {
    EXPECT_EQ(Address("mailto:help@one.example"), QStringLiteral("mailto:help@one.example"));
}

TEST_F(PageAddressOf, AnyOtherLetterIsNone) {
    for (const char* page :
         {"mailto:", "mailto:somebody@else.example", "mailto:help@one.example?attach=/etc/passwd",
          "mailto:help@one.example?body=x", "mailto:help@one.example,somebody@else.example",
          "mailto:help@one.example%0ABcc:x@y.example", "help@one.example",
          "MAILTO:help@one.example?attach=quillon.ini", " mailto:help@one.example"}) {
        EXPECT_EQ(Address(page), QString()) << page;
    }
}

TEST_F(PageAddressOf, NoOtherFileIsOpened) {
    for (const char* page :
         {"quillon", "quillon.ini", "run.sh", "./run.sh", "evil.desktop", "www.sh/../run.sh",
          "../help.html", "/etc/passwd", "/etc/dbase.txt", "~/help.html", "help.html/../run.sh",
          "dbase/../run.txt", "C:\\Windows\\notepad.exe", "notepad.exe", "calc", "explorer"}) {
        const QString address = Address(page);
        EXPECT_TRUE(address.isEmpty() || address.startsWith(QStringLiteral("http://www.")))
            << page << ": " << address.toStdString();
    }
    EXPECT_EQ(Address(Path("run.sh")), QString());
    EXPECT_EQ(Address(Path("help.html")), QString()) << "files of ours are named bare";
    EXPECT_EQ(Address(FileOf("help.html")), QString());
}

TEST_F(PageAddressOf, NoOtherKindOfAddressIsOpened) {
    for (const char* page : {"file:///etc/passwd",
                             "file:help.html",
                             "FILE:///etc/passwd",
                             "file://server/share",
                             "smb://server/share",
                             "ftp://www.example.org",
                             "javascript:alert(1)",
                             "data:text/html,x",
                             "vbscript:x",
                             "help:x",
                             "man:ls",
                             "trash:/",
                             "ssh://www.example.org",
                             "tel:123",
                             "about:blank",
                             "view-source:http://www.example.org",
                             "jar:http://www.example.org!/x",
                             "http-x://a.b",
                             "//www.example.org/share",
                             "\\\\server\\share",
                             "example.org",
                             "http",
                             "://x"}) {
        EXPECT_EQ(Address(page), QString()) << page;
    }
}

TEST_F(PageAddressOf, AWebAddressHasAHost) {
    for (const char* page : {"http://", "https://", "http:", "http:www.example.org", "https:///etc",
                             "http:/www.example.org", "http://\\\\server\\share", "http://[x",
                             "http://?q", "http://:80"}) {
        EXPECT_EQ(Address(page), QString()) << page;
    }
}

TEST_F(PageAddressOf, BlanksAndControlCharactersAreInNoAddress) {
    for (const char* page :
         {"", "  ", "\t", "UK Lotto", "http://www.example.org/a b", "http://www.exam\tple.org",
          "http://www.example.org\r\nfile:///etc/passwd", "\nhttp://www.example.org",
          "http://www.example.org\x7f", "java\tscript:alert(1)", "www.a b.example",
          "http://www.example.org/\xa0", "http://www.example.org/\x01", "help.html\n", " help.html",
          "help.html "}) {
        EXPECT_EQ(Address(page), QString()) << page;
    }
    EXPECT_EQ(Address(QStringLiteral("http://www.example.org/\u202egnp.exe")), QString());
    EXPECT_EQ(Address(QString(QLatin1Char('\0'))), QString());
}

/// The address of a place in a file, for which a signpost may be written into a folder.
class SignpostTo : public testing::Test {
  protected:
    QUrl Post() const { return Signpost(place_, Posts()); }

    QString Posts() const { return folder_.filePath(QStringLiteral("posts/quillon")); }

    QTemporaryDir folder_;
    const QUrl place_{QStringLiteral("file:///home/R&D/a%20'b'/helpplay.html#PLuckyDip")};
};

TEST_F(SignpostTo, APlaceInAFileIsAPageOfItsNameThatLeadsThere) {
    const QUrl post = Post();
    EXPECT_EQ(post.toLocalFile(), Posts() % QStringLiteral("/helpplay.html"));
    EXPECT_FALSE(post.hasFragment());
    QFile file(post.toLocalFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString page = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(page.contains(
        QStringLiteral("content=\"0; url=file:///home/R&amp;D/a%20'b'/helpplay.html#PLuckyDip\"")))
        << page.toStdString();
}

TEST_F(SignpostTo, AnotherPlaceReplacesTheOneBefore) {
    Post();
    const QUrl other(QStringLiteral("file:///home/helpplay.html#Wheel49"));
    QFile file(Signpost(other, Posts()).toLocalFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray page = file.readAll();
    EXPECT_TRUE(page.contains("#Wheel49"));
    EXPECT_FALSE(page.contains("PLuckyDip"));
}

TEST_F(SignpostTo, WholeFilesAndOtherAddressesStand) {
    for (const char* text : {"file:///home/help.html", "http://www.example.org/help.html#keys",
                             "mailto:help@one.example"}) {
        const QUrl address(QString::fromLatin1(text));
        EXPECT_EQ(Signpost(address, Posts()), address);
    }
    EXPECT_FALSE(QDir(Posts()).exists()) << "nothing is written for them";
}

TEST_F(SignpostTo, WhatCannotBeWrittenLeavesTheAddress) {
    EXPECT_EQ(Signpost(place_, QString()), place_);
    QFile inTheWay(folder_.filePath(QStringLiteral("posts")));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_EQ(Post(), place_);
}

}  // namespace
