// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/WindowStates.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

struct KeptWindows : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("config/windows.ini"));
    WindowState large = {.size = {1200, 800}, .maximized = true};
};

TEST_F(KeptWindows, AreFoundByTheirNamesInTheNextRun) {
    WindowStates(path).Keep(QStringLiteral("PFullSel"), large);
    const WindowStates next(path);
    EXPECT_EQ(next.Of(QStringLiteral("PFullSel")), large);
    EXPECT_EQ(next.Of(QStringLiteral("PLuckyDip")), std::nullopt);
}

TEST_F(KeptWindows, AreOnDiskAtOnce) {
    WindowStates states(path);
    states.Keep(QStringLiteral("PFullSel"), large);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("1200 800"));
}

TEST_F(KeptWindows, TheLastStateCounts) {
    WindowStates states(path);
    states.Keep(QStringLiteral("PFullSel"), large);
    const WindowState small = {.size = {640, 480}};
    states.Keep(QStringLiteral("PFullSel"), small);
    EXPECT_EQ(states.Of(QStringLiteral("PFullSel")), small);
}

TEST_F(KeptWindows, AreNoneWhereTheFileHoldsSomethingElse) {
    for (const char* text : {"", "\x01\xff[", "[PFullSel]\nsize=huge\n", "[PFullSel]\nsize=9\n",
                             "[PFullSel]\nsize=@Size(-4 700)\n", "[PFullSel]\nmaximized=true\n"}) {
        const QString other = folder.filePath(QStringLiteral("other.ini"));
        QFile file(other);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        EXPECT_EQ(WindowStates(other).Of(QStringLiteral("PFullSel")), std::nullopt) << text;
    }
}

TEST_F(KeptWindows, GoUnnoticedWhereNothingCanBeWritten) {
    WindowStates states(QStringLiteral("/dev/null/windows.ini"));
    states.Keep(QStringLiteral("PFullSel"), large);
    EXPECT_EQ(states.Of(QStringLiteral("PFullSel")), large);
}

}  // namespace
