// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that copy the data files to another disk and back.
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>

#include "core/memory_folder.h"
#include "platform/system/DiskFolder.h"
#include "platform/widgets/Lists.h"
#include "tests/shell/main_window.h"
#include "tests/support/hourglass_watch.h"

namespace {

const QString diskPath = QStringLiteral("/media/anna/disk");

/// Keeps the text of the toolbar's label each time that it is painted.
class StatusWatch final : public QObject {
  public:
    explicit StatusWatch(QLabel& label) : label_(label) { label.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && !label_.text().isEmpty()) {
            texts.push_back(label_.text().toStdString());
        }
        return false;
    }

    std::vector<std::string> texts;

  private:
    QLabel& label_;
};

class CopyingToFloppy : public MainWindow {
  protected:
    CopyingToFloppy() : disk(std::make_shared<MemoryFolder>()) {
        program.dialogs.otherFolders[diskPath] = disk;
    }

    void ExpectQuestion(bool toFloppy, Answer answer = Answer::Ok) {
        program.messages.Expect(
            toFloppy
                ? Message{.title = QStringLiteral("Copy to floppy"),
                          .text = QStringLiteral(" Copy the data files to floppy disk to   \r\n"
                                                 " transfer them to another computer or   \r\n"
                                                 " to make a backup. Put a disk in the   \r\n"
                                                 " drive and click OK.   "),
                          .sign = Sign::Exclamation,
                          .buttons = Buttons::OkCancel}
                : Message{.title = QStringLiteral("Copy from floppy"),
                          .text = QStringLiteral(" This will copy the data files from floppy   \r\n"
                                                 " disk to the Lottery Quillon folder. It   \r\n"
                                                 " will overwrite any existing data files.   "),
                          .sign = Sign::Exclamation,
                          .buttons = Buttons::OkCancel,
                          .discards = true},
            answer);
    }

    void Copy(bool toFloppy) {
        ExpectQuestion(toFloppy);
        program.dialogs.folders.push_back(diskPath);
        Choose(toFloppy ? "FileCopyToA" : "FileCopyFromA");
    }

    QLabel& Status() { return *Find<QLabel>(*window, toolbarBackground); }

    std::shared_ptr<MemoryFolder> disk;
};

TEST_F(CopyingToFloppy, CopiesTheDataFilesAndNothingElse) {
    for (const char* name : {"SNotes.txt", "SMembers.000", "PTemplate.100", "Diary.100"}) {
        program.folder.Write(name, name);
    }
    for (const char* name : {"SMembers.100", "wheel49.dat"}) program.folder.Write(name, name);
    Start();
    Copy(true);
    EXPECT_EQ(disk->Snapshot(), (std::map<std::string, std::string>{
                                    {"SNotes.txt", "SNotes.txt"},
                                    {"quillon.ini", program.folder.Read("quillon.ini")},
                                    {"SMembers.000", "SMembers.000"},
                                    {"PTemplate.100", "PTemplate.100"},
                                    {"Diary.100", "Diary.100"}}));
    EXPECT_EQ(program.dialogs.titles, std::vector{QStringLiteral("Copy to floppy")});
}

TEST_F(CopyingToFloppy, CopiesThemBackOverThoseThatThereAre) {
    disk->Write("Notes.txt", "from the disk");
    disk->Write("dbase1.txt", "New lottery\r\n\r\n6,49,0,0,1\r\n");
    disk->Write("holiday.jpg", "x");
    Start();
    program.folder.Write("Notes.txt", "here");
    Copy(false);
    EXPECT_EQ(program.folder.Read("Notes.txt"), "from the disk");
    const auto kept = program.folder.Find("Backup/Undo/*");
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(program.folder.Read(kept.front()), "here");
    EXPECT_TRUE(program.folder.Exists("dbase1.txt"));
    EXPECT_FALSE(program.folder.Exists("holiday.jpg"));
    EXPECT_EQ(program.dialogs.titles, std::vector{QStringLiteral("Copy from floppy")});
    const auto* databases = Find<ListBox>(*window, databasesList);
    ASSERT_EQ(databases->count(), 1);
    EXPECT_EQ(databases->item(0)->text(), QStringLiteral("New lottery"));
}

TEST_F(CopyingToFloppy, StopsOnCancelBeforeItAsksForAFolder) {
    Start();
    const auto before = program.folder.Snapshot();
    for (const bool toFloppy : {true, false}) {
        ExpectQuestion(toFloppy, Answer::Cancel);
        Choose(toFloppy ? "FileCopyToA" : "FileCopyFromA");
    }
    EXPECT_TRUE(program.dialogs.titles.empty());
    EXPECT_TRUE(disk->Snapshot().empty());
    EXPECT_EQ(program.folder.Snapshot(), before);
}

TEST_F(CopyingToFloppy, EndsSilentlyWhereNoFolderIsChosen) {
    program.dialogs.otherFolders[{}] = disk;
    Start();
    for (const bool toFloppy : {true, false}) {
        ExpectQuestion(toFloppy);
        program.dialogs.folders.push_back({});
        Choose(toFloppy ? "FileCopyToA" : "FileCopyFromA");
    }
    EXPECT_TRUE(disk->Snapshot().empty());
    EXPECT_EQ(Status().text(), QString());
}

TEST_F(CopyingToFloppy, AsksForTheFolderEachTime) {
    Start();
    Copy(true);
    Copy(true);
    Copy(false);
    EXPECT_EQ(program.dialogs.titles.size(), 3U);
}

TEST_F(CopyingToFloppy, LetsMessagesRunBeforeItsHourglassAndItsFirstFile) {
    Start();
    bool ran = false;
    bool underHourglass = false;
    const auto message = [&] {
        ran = true;
        underHourglass = QGuiApplication::overrideCursor() != nullptr;
    };
    program.services.chooseFolder = [&](QWidget*, const QString&) {
        QMetaObject::invokeMethod(window.get(), message, Qt::QueuedConnection);
        return diskPath;
    };
    program.services.openFolder = [&](const QString&) {
        EXPECT_TRUE(ran);
        EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
        return disk;
    };
    ExpectQuestion(true);
    Choose("FileCopyToA");
    EXPECT_FALSE(underHourglass);
    EXPECT_TRUE(disk->Exists("quillon.ini"));
}

TEST_F(CopyingToFloppy, CountsItsFilesUnderTheHourglassAndClearsTheCount) {
    program.folder.Write("a.txt", "a");
    program.folder.Write("b.txt", "b");
    Start();
    StatusWatch watch(Status());
    const HourglassWatch hourglass(Status(), QEvent::Paint);
    Copy(true);
    EXPECT_EQ(watch.texts, (std::vector<std::string>{"Copied\r\n 1 files", "Copied\r\n 2 files",
                                                     "Copied\r\n 3 files"}));
    EXPECT_GE(hourglass.UnderHourglass(), 3);
    EXPECT_EQ(Status().text(), QString());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(CopyingToFloppy, ShowsTheCountBesideThePictures) {
    Start();
    QApplication::processEvents();
    const QImage without = Status().grab().toImage();
    Status().setText(QStringLiteral("Copied\r\n 12 files"));
    const QImage with = Status().grab().toImage();
    ASSERT_EQ(with.size(), without.size());
    int firstChanged = with.width();
    for (int x = 0; x < with.width(); ++x) {
        for (int y = 0; y < with.height(); ++y) {
            if (with.pixel(x, y) != without.pixel(x, y)) firstChanged = std::min(firstChanged, x);
        }
    }
    const QWidget* lastPicture = Find<QWidget>(*window, ToolbarButton(15).c_str());
    EXPECT_LT(firstChanged, with.width());
    EXPECT_GT(firstChanged, lastPicture->geometry().right());
}

TEST_F(CopyingToFloppy, AFailureEndsItSilentlyAndKeepsWhatWasCopied) {
    program.folder.Write("a.txt", "12345");
    program.folder.Write("b.txt", "12345");
    Start();
    disk->FailAfterBytes(8);
    Copy(true);
    EXPECT_EQ(disk->Snapshot(), (std::map<std::string, std::string>{{"a.txt", "12345"}}));
    EXPECT_EQ(Status().text(), QString());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(TakeFailure().has_value());
    EXPECT_EQ(program.messages.Shown(), 1);
}

TEST_F(CopyingToFloppy, AFailureOnTheWayBackIsSilentToo) {
    disk->Write("a.txt", "a");
    disk->Write("b.txt", "b");
    disk->Lock("b.txt");
    Start();
    Copy(false);
    EXPECT_EQ(program.folder.Read("a.txt"), "a");
    EXPECT_FALSE(TakeFailure().has_value());
}

TEST_F(CopyingToFloppy, ADiskThatIsGoneEndsItSilently) {
    program.dialogs.otherFolders.clear();
    Start();
    Copy(true);
    Copy(false);
    EXPECT_FALSE(TakeFailure().has_value());
}

TEST_F(CopyingToFloppy, LeavesTheSettingsInMemory) {
    disk->Write("quillon.ini", "&HFF\r\n");
    Start();
    const std::string before = Setting(setting::TitleColour);
    Copy(false);
    EXPECT_EQ(program.folder.Read("quillon.ini"), "&HFF\r\n");
    EXPECT_EQ(Setting(setting::TitleColour), before);
    window->close();
    EXPECT_TRUE(program.folder.Read("quillon.ini").starts_with(before)) << "quitting writes it";
}

TEST_F(CopyingToFloppy, HarmsNothingInTheProgramsOwnFolder) {
    const QTemporaryDir place;
    DiskFolder here(place.path());
    here.Write("Notes.txt", "mine", FileTime(std::chrono::seconds(1000000000)));
    here.Write("quillon.ini", "&H0\r\n", FileTime(std::chrono::seconds(1100000000)));
    program.dialogs.otherFolders[diskPath] = std::make_shared<DiskFolder>(place.path());
    Program onDisk{.state = program.state, .folder = here, .services = program.services};
    Quillon other(onDisk);
    for (const bool toFloppy : {true, false}) {
        ExpectQuestion(toFloppy);
        program.dialogs.folders.push_back(diskPath);
        Find<QAction>(other, toFloppy ? "FileCopyToA" : "FileCopyFromA")->trigger();
        EXPECT_EQ(here.Read("Notes.txt"), "mine");
        EXPECT_EQ(here.LastWritten("Notes.txt"), FileTime(std::chrono::seconds(1000000000)));
        EXPECT_EQ(here.Read("quillon.ini"), "&H0\r\n");
        EXPECT_EQ(QDir(place.path()).entryList(QDir::Files).size(), 2);
    }
}

}  // namespace
