// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/RescuedFiles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class FilesRescued : public testing::Test {
  protected:
    QString Put(const QString& name) {
        const QString path = place_.path() % QLatin1Char('/') % name;
        QDir().mkpath(path.left(path.lastIndexOf(QLatin1Char('/'))));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }

    QStringList Found() const {
        return RescuedFiles({place_.path() % QStringLiteral("/home/Rescued/"),
                             place_.path() % QStringLiteral("/tmp/rescued ")});
    }

    QStringList Told() const {
        return FirstTold(Found(), place_.path() % QStringLiteral("/rescued.ini"));
    }

    QTemporaryDir place_;
};

TEST_F(FilesRescued, AreFoundInBothPlaces) {
    const QString second = Put(QStringLiteral("tmp/rescued 2026-11-22 093015-002 Notes.txt"));
    const QString first = Put(QStringLiteral("home/Rescued/2026-11-22 093015 MyLottery.txt"));
    EXPECT_EQ(Found(), (QStringList{first, second}));
}

TEST_F(FilesRescued, AreNoneOfOthers) {
    Put(QStringLiteral("home/Rescued/mine.txt"));
    Put(QStringLiteral("tmp/2026-11-22 093015 MyLottery.txt"));
    Put(QStringLiteral("tmp/rescued 2026-11-22.txt"));
    const QString real = Put(QStringLiteral("real"));
    QFile::link(real, place_.path() % QStringLiteral("/tmp/rescued 2026-11-22 093015 a.txt"));
    EXPECT_TRUE(Found().isEmpty());
}

TEST_F(FilesRescued, AreToldOnce) {
    EXPECT_TRUE(Told().isEmpty());
    EXPECT_FALSE(QFile::exists(place_.path() % QStringLiteral("/rescued.ini")));
    const QString first = Put(QStringLiteral("home/Rescued/2026-11-22 093015 MyLottery.txt"));
    EXPECT_EQ(Told(), QStringList{first});
    EXPECT_TRUE(Told().isEmpty());
    const QString second = Put(QStringLiteral("home/Rescued/2026-11-23 093015 MyLottery.txt"));
    EXPECT_EQ(Told(), QStringList{second});
    EXPECT_TRUE(Told().isEmpty());
}

TEST_F(FilesRescued, AreToldInTheFolderThatTheyCameFrom) {
    const QString record = place_.path() % QStringLiteral("/rescued.ini");
    const QTemporaryDir here;
    const QTemporaryDir there;
    const QString ours = Put(QStringLiteral("home/Rescued/2026-11-22 093015 A.txt"));
    const QString theirs = Put(QStringLiteral("home/Rescued/2026-11-22 093016 B, C; \xE9.txt"));
    const QString gone = Put(QStringLiteral("home/Rescued/2026-11-22 093017 C.txt"));
    const QString unknown = Put(QStringLiteral("home/Rescued/2026-11-22 093018 D.txt"));
    NoteOrigin(ours, here.path(), record);
    NoteOrigin(theirs, there.path(), record);
    NoteOrigin(gone, place_.path() % QStringLiteral("/no such folder"), record);
    EXPECT_EQ(FromFolder(Found(), here.path(), record), (QStringList{ours, gone, unknown}));
    EXPECT_EQ(FromFolder(Found(), there.path() % QStringLiteral("/."), record),
              (QStringList{theirs, gone, unknown}));
}

TEST_F(FilesRescued, AreToldOnceThoughThoseOfOtherFoldersAreToldBetween) {
    const QString record = place_.path() % QStringLiteral("/rescued.ini");
    const QString ours = Put(QStringLiteral("home/Rescued/2026-11-22 093015 A.txt"));
    const QString theirs = Put(QStringLiteral("home/Rescued/2026-11-22 093016 B.txt"));
    EXPECT_EQ(FirstTold({ours}, record), QStringList{ours});
    EXPECT_EQ(FirstTold({theirs}, record), QStringList{theirs});
    EXPECT_TRUE(FirstTold({ours}, record).isEmpty());
    EXPECT_TRUE(FirstTold({theirs}, record).isEmpty());
}

TEST_F(FilesRescued, GoToTheUsersDataElseToTheTemporaryFolder) {
    const std::vector<QString> places = RescuePlaces();
    ASSERT_EQ(places.size(), 2U);
    EXPECT_TRUE(places[0].startsWith(qEnvironmentVariable("XDG_DATA_HOME")));
    EXPECT_TRUE(places[0].endsWith(QStringLiteral("/Rescued/")));
    EXPECT_EQ(places[1], QDir::tempPath() % QStringLiteral("/quillon-rescued "));
}

}  // namespace
