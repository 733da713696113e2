// SPDX-License-Identifier: GPL-3.0-or-later
// Two programs started on one folder at the same moment, each to store an entry: whatever one of
// them says is saved is in the file. `tools/two_programs.sh` does it fifty times.
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <array>

#include "platform/system/DiskFolder.h"
#include "tests/support/sample_lotteries.h"

namespace {

int Rounds() {
    constexpr int few = 3;
    const int asked = qEnvironmentVariableIntValue("QUILLON_ROUNDS");
    return asked > 0 ? asked : few;
}

TEST(TwoPrograms, LoseNothingThatTheySayIsSaved) {
    const QTemporaryDir place;
    {
        DiskFolder folder(place.path());
        AddUkLotto(folder);
    }
    std::string expected;
    for (int round = 0; round < Rounds(); ++round) {
        std::array<QProcess, 2> programs;
        std::array<QString, 2> players;
        for (std::size_t i = 0; i < programs.size(); ++i) {
            players[i] = QStringLiteral("Player %1-%2").arg(round).arg(i);
            programs[i].start(
                QStringLiteral(QUILLON_PROBE),
                {place.path(), QStringLiteral("player=") + players[i], QStringLiteral("quit")});
        }
        int stored = 0;
        for (std::size_t i = 0; i < programs.size(); ++i) {
            ASSERT_TRUE(programs[i].waitForFinished(60'000)) << round;
            ASSERT_EQ(programs[i].exitStatus(), QProcess::NormalExit) << round;
            const QByteArray told = programs[i].readAllStandardOutput();
            const bool saved = told.contains("Your entries have been saved.");
            const DiskFolder folder(place.path());
            const bool inFile = folder.Exists("MyLottery.txt") &&
                                folder.Read("MyLottery.txt").find(players[i].toStdString() + ",") !=
                                    std::string::npos;
            EXPECT_EQ(saved, inFile) << round << told.toStdString();
            if (saved) ++stored;
        }
        EXPECT_GE(stored, 1) << round;
        const std::string entries = DiskFolder(place.path()).Read("MyLottery.txt");
        EXPECT_TRUE(entries.starts_with(expected)) << "an entry of an earlier round is gone";
        expected = entries;
    }
}

}  // namespace
