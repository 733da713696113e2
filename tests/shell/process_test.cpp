// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileSystemWatcher>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <map>
#include <utility>

#include "core/settings.h"
#include "platform/system/DiskFolder.h"
#include "platform/system/OneRun.h"
#include "shell/program_version.h"
#include "tests/support/form_test.h"

namespace {

/// Whole runs of the program, each in a folder of its own.
class Process : public testing::Test {
  protected:
    struct Outcome {
        int exitCode = -1;
        bool crashed = false;
        std::string output;
        std::string errors;
    };

    /// Its own home, so that nobody else's rescued files are told of.
    void SetHome(QProcess& process) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path() % QStringLiteral("/data"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                           home.path() % QStringLiteral("/config"));
        environment.insert(QStringLiteral("TMPDIR"), home.path());
        process.setProcessEnvironment(environment);
    }

    /// Starts the program and lets it run; it has taken its folder once its settings are there.
    void Start(QProcess& process, const QString& program, const QStringList& orders = {}) {
        SetHome(process);
        process.setWorkingDirectory(QDir::rootPath());
        process.start(program, orders);
        ASSERT_TRUE(process.waitForStarted());
        QFileSystemWatcher watcher({folderPath});
        QEventLoop loop;
        const auto look = [&] {
            if (QFile::exists(folderPath + QStringLiteral("/quillon.ini"))) loop.quit();
        };
        QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &loop, look);
        QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
        QTimer::singleShot(60'000, &loop, &QEventLoop::quit);
        QTimer::singleShot(0, &loop, look);
        loop.exec();
    }

    Outcome RunToItsEnd(const QStringList& orders = {}) {
        QProcess process;
        SetHome(process);
        process.start(QStringLiteral(QUILLON_PROBE), QStringList(folderPath) + orders);
        EXPECT_TRUE(process.waitForFinished(60'000)) << "the process did not end";
        return {.exitCode = process.exitCode(),
                .crashed = process.exitStatus() != QProcess::NormalExit,
                .output = process.readAllStandardOutput().toStdString(),
                .errors = process.readAllStandardError().toStdString()};
    }

    /// Every file of the folder with its bytes.
    std::map<QString, QByteArray> Files() const {
        std::map<QString, QByteArray> files;
        const auto names = QDir(folderPath).entryList(QDir::Files | QDir::Hidden);
        for (const QString& name : names) {
            QFile file(folderPath + QLatin1Char('/') + name);
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            files[name] = file.readAll();
        }
        return files;
    }

    void WriteSettings(int slot, const std::string& text) {
        DiskFolder folder(folderPath);
        if (!folder.Exists(settingsFile)) MakeDefaultSettings(state, folder);
        state.Settings(slot) = text;
        SaveSettings(state, folder);
    }

    void Write(const char* name, std::string_view bytes) {
        DiskFolder(folderPath).Write(name, bytes);
    }

    /// Starts the program, which must report one failure that tells `told`, end with exit code 1
    /// and leave every file as it was.
    void ExpectReport(const std::vector<std::string>& told, const QStringList& arguments = {}) {
        QDir(folderPath).mkdir(QStringLiteral("Backup"));
        if (!QFile::exists(folderPath + QStringLiteral("/quillon.ini")))
            WriteSettings(setting::PlayerName, "");
        const auto before = Files();
        const Outcome outcome = RunToItsEnd(arguments);
        EXPECT_EQ(outcome.exitCode, 1);
        EXPECT_FALSE(outcome.crashed);
        EXPECT_TRUE(outcome.output.starts_with("title: Lottery Quillon World\nbuttons: 1\ntext: "))
            << outcome.output;
        EXPECT_EQ(outcome.output.find("title:", 1), std::string::npos) << "one report only";
        for (const std::string& words : told) {
            EXPECT_NE(outcome.output.find(words), std::string::npos) << outcome.output;
        }
        EXPECT_EQ(Files(), before);
    }

    QTemporaryDir home;
    QTemporaryDir temporary;
    QString folderPath = temporary.path();
    State state;
};

TEST_F(Process, ANormalQuitEndsWithZeroAndSaves) {
    const Outcome outcome = RunToItsEnd({QStringLiteral("quit")});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_FALSE(outcome.crashed);
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(QFile::exists(folderPath + QStringLiteral("/Notes.txt")));
    EXPECT_TRUE(Files()[QStringLiteral("quillon.ini")].contains("\r\n01-Jan-1970\r\n"));
}

TEST_F(Process, ASecondRunFindsEverythingAsTheFirstLeftIt) {
    RunToItsEnd({QStringLiteral("quit")});
    const auto after = Files();
    EXPECT_EQ(RunToItsEnd({QStringLiteral("quit")}).exitCode, 0);
    EXPECT_EQ(Files(), after);
}

TEST_F(Process, SeventySevenDatabasesAreReported) {
    for (int i = 10; i < 87; ++i) {
        const std::string name = "dbase" + std::to_string(i) + ".txt";
        Write(name.c_str(), "Lottery\r\n\r\n6\r\n49\r\n0\r\n0\r\n0\r\n");
    }
    ExpectReport({});
}

TEST_F(Process, ALotteryBeyondATableIsReportedWithItsFileAndThirdLine) {
    Write("dbase1.txt", "Huge\r\n\r\n6,1000000000,0,0,0\r\n28 May 05,1,2,3,4,5,6,0,0\r\n");
    ExpectReport({"counts of main numbers", "\"Huge\" of dbase1.txt", "\"6,1000000000,0,0,0\""},
                 {QStringLiteral("trigger=AnalyseColdNums")});
}

TEST_F(Process, AMalformedBirthDateIsReported) {
    WriteSettings(setting::BirthDate, "31/02/1970");
    ExpectReport({"quillon.ini, line 15", "31/02/1970"});
}

TEST_F(Process, SettingsOf101LinesAreReported) {
    std::string lines;
    for (int i = 0; i < 101; ++i) lines += "\r\n";
    Write(settingsFile, lines);
    ExpectReport({"quillon.ini", "101"});
}

TEST_F(Process, NotesOfSevenItemsAreReported) {
    std::string lines;
    for (int i = 0; i < 7; ++i) lines += " 0 ,Item\r\n";
    Write("Notes.txt", lines);
    ExpectReport({"Notes.txt"});
}

TEST_F(Process, AColourThatIsNoNumberIsReported) {
    WriteSettings(setting::SkinBits, "3");
    WriteSettings(setting::BackgroundColour, "mauve");
    ExpectReport({"quillon.ini, line 5", "mauve"});
}

TEST_F(Process, ABackgroundPictureThatIsNoneIsReported) {
    Write("SkinMain.jpg", "this is no picture");
    ExpectReport({"SkinMain.jpg"});
}

TEST_F(Process, WhatCannotBeSavedAtQuitIsReported) {
    QDir(folderPath).mkdir(QStringLiteral("Notes.txt"));
    const Outcome outcome = RunToItsEnd({QStringLiteral("quit")});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_FALSE(outcome.crashed);
    EXPECT_NE(outcome.output.find("Notes.txt"), std::string::npos) << outcome.output;
    EXPECT_TRUE(Files()[QStringLiteral("quillon.ini")].contains("\r\n01-Jan-1970\r\n"))
        << "the settings are saved all the same";
}

TEST_F(Process, NotesThatWereTypedOutliveAReport) {
    Write("dbase1.txt", "Huge\r\n\r\n6,1000000000,0,0,0\r\n28 May 05,1,2,3,4,5,6,0,0\r\n");
    ExpectReport({"counts of main numbers", "Your notes, which were not saved yet, are kept in "},
                 {QStringLiteral("note=typed"), QStringLiteral("trigger=AnalyseColdNums")});
    const QDir rescued(home.path() % QStringLiteral("/data/quillon/Rescued"));
    const QStringList files = rescued.entryList(QDir::Files);
    ASSERT_EQ(files.size(), 1);
    EXPECT_TRUE(files.first().endsWith(QStringLiteral(" Notes.txt")));
    QFile file(rescued.filePath(files.first()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().endsWith("typed"));
}

TEST_F(Process, NotesThatNobodyTypedNeedNoRescue) {
    Write("dbase1.txt", "Huge\r\n\r\n6,1000000000,0,0,0\r\n28 May 05,1,2,3,4,5,6,0,0\r\n");
    ExpectReport({"counts of main numbers"}, {QStringLiteral("trigger=AnalyseColdNums")});
    EXPECT_FALSE(QDir(home.path() % QStringLiteral("/data/quillon/Rescued")).exists());
}

TEST_F(Process, WhatWasRescuedFromAnotherFolderIsNotToldHere) {
    QDir(folderPath).mkdir(QStringLiteral("Notes.txt"));
    RunToItsEnd({QStringLiteral("quit")});
    QDir(folderPath).rmdir(QStringLiteral("Notes.txt"));
    const QTemporaryDir other;
    const QString own = std::exchange(folderPath, other.path());
    EXPECT_EQ(RunToItsEnd({QStringLiteral("quit")}).output, "");
    folderPath = own;
    EXPECT_NE(RunToItsEnd({QStringLiteral("quit")}).output.find("Notes.txt"), std::string::npos);
}

TEST_F(Process, WhatCouldNotBeSavedIsRescuedAndToldOfAtTheNextStartOnce) {
    QDir(folderPath).mkdir(QStringLiteral("Notes.txt"));
    const Outcome failed = RunToItsEnd({QStringLiteral("quit")});
    const QString rescued = home.path() % QStringLiteral("/data/quillon/Rescued");
    const QStringList files = QDir(rescued).entryList(QDir::Files);
    ASSERT_EQ(files.size(), 1) << failed.output;
    const std::string path = QString(rescued % QLatin1Char('/') % files.first()).toStdString();
    EXPECT_TRUE(path.ends_with(" Notes.txt"));
    EXPECT_NE(failed.output.find("What was to be written is kept in " + path), std::string::npos)
        << failed.output;
    QDir(folderPath).rmdir(QStringLiteral("Notes.txt"));
    const Outcome next = RunToItsEnd({QStringLiteral("quit")});
    EXPECT_EQ(next.exitCode, 0);
    EXPECT_NE(next.output.find(path), std::string::npos) << next.output;
    QFile file(QString::fromStdString(path));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), Files()[QStringLiteral("Notes.txt")]);
    EXPECT_EQ(RunToItsEnd({QStringLiteral("quit")}).output, "");
}

TEST_F(Process, ASecondStartBringsTheFirstToTheFrontAndEnds) {
    QProcess first;
    Start(first, QStringLiteral(QUILLON_PROBE), {folderPath});
    const auto before = Files();
    const Outcome second = RunToItsEnd();
    EXPECT_EQ(second.exitCode, 0) << second.output;
    EXPECT_EQ(second.output, "");
    EXPECT_TRUE(
        second.errors.ends_with("Lottery Quillon World is open already, and comes to the front.\n"))
        << second.errors;
    EXPECT_EQ(first.state(), QProcess::Running);
    EXPECT_EQ(Files(), before);
    first.kill();
    first.waitForFinished();
    EXPECT_EQ(RunToItsEnd({QStringLiteral("quit")}).exitCode, 0) << "a killed run holds nothing";
}

TEST_F(Process, ASecondStartNamesAFirstThatDoesNotAnswer) {
    OneRun first(folderPath);
    ASSERT_TRUE(first.HoldsFolder());
    const Outcome second = RunToItsEnd();
    EXPECT_EQ(second.exitCode, 1);
    EXPECT_NE(second.output.find("Another Lottery Quillon World works in this folder:"),
              std::string::npos)
        << second.output;
    EXPECT_NE(second.output.find(folderPath.toStdString()), std::string::npos) << second.output;
    EXPECT_TRUE(Files().empty());
}

TEST_F(Process, TheProgramTakesTheFolderOfItsExecutable) {
    const QString copy = folderPath + QStringLiteral("/quillon");
    ASSERT_TRUE(QFile::copy(QStringLiteral(QUILLON_EXECUTABLE), copy));
    QProcess process;
    Start(process, copy);
    process.kill();
    process.waitForFinished();
    EXPECT_TRUE(QFile::exists(folderPath + QStringLiteral("/quillon.ini")));
    EXPECT_TRUE(QDir(folderPath + QStringLiteral("/Backup")).exists());
}

TEST_F(Process, AConfigurationOfQtInItsFolderLeadsTheProgramNowhere) {
    const QString copy = folderPath + QStringLiteral("/quillon");
    ASSERT_TRUE(QFile::copy(QStringLiteral(QUILLON_EXECUTABLE), copy));
    for (const char* name : {"qt.conf", "qt6.conf"}) {
        Write(name, "[Paths]\nPrefix=/nowhere\nPlugins=/nowhere\n");
    }
    QProcess process;
    Start(process, copy);
    EXPECT_EQ(process.state(), QProcess::Running) << process.readAllStandardError().toStdString();
    EXPECT_TRUE(QFile::exists(folderPath + QStringLiteral("/quillon.ini")));
    process.kill();
    process.waitForFinished();
}

// A terminal may have none, and who asks for the version may be a script.
TEST_F(Process, TellsItsVersionWithoutADisplay) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QString::fromLatin1(display));
    }
    for (const auto& [option, words] :
         {std::pair("--version", "quillon " + ProgramVersion() + "\n"),
          std::pair("-h", std::string("Usage: "))}) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUILLON_EXECUTABLE), {QString::fromLatin1(option)});
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0);
        EXPECT_TRUE(process.readAllStandardOutput().toStdString().starts_with(words)) << option;
    }
}

}  // namespace
