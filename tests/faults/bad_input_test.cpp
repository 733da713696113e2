// SPDX-License-Identifier: GPL-3.0-or-later
// Every file that the program reads, damaged in every way, on a real folder and through the forms
// that read it. The program goes on as it is told to, or ends with the report that names the file
// and the line; no signal, no hang, no more than 200 MB or ten seconds of a processor, and no file
// is changed. Without orders a sample is tried; `--all` tries everything, `--only TEXT` the damages
// whose names hold the text.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QStandardPaths>
#include <QTemporaryDir>
#include <array>
#include <filesystem>
#include <iostream>

#include "platform/forms/WindowSize.h"
#include "platform/system/DesktopPrinters.h"
#include "platform/system/RescuedFiles.h"
#include "platform/system/WindowStates.h"
#include "platform/widgets/Lists.h"
#include "shell/Application.h"
#include "test_folders.h"
#include "tests/faults/damages.h"
#include "tests/faults/forked_run.h"
#include "tests/faults/used_folder.h"

namespace fs = std::filesystem;

namespace {

bool everything = false;
std::string only;  // what the names of the damages hold that are to be tried
long long tried = 0;

#ifdef QUILLON_SANITIZE
constexpr std::size_t sampleStep = 6;
constexpr bool measures = false;  // a sanitizer takes many times more
#else
constexpr std::size_t sampleStep = 2;
constexpr bool measures = true;
#endif

constexpr long mostMemory = 200L * 1024;  // KiB
constexpr double mostSeconds = 10;        // of a processor, so a busy computer makes no difference

/// A file and the places where the program reads it.
struct Reader {
    const char* name;
    const char* file;
    void (*read)(Session&);
    bool atStart = false;  ///< Whether the start of the program reads it.
};

void Open(Session& session, const char* entry, const char* form) {
    session.InForm(entry, form, [](QDialog& opened) { opened.close(); });
}

void Start(Session&) {}

void ReadDatabase(Session& session) {
    Open(session, "wDatabaseView", "HistoryW");
    Open(session, "wUpdateDbase", "DbaseUpdateW");
    Open(session, "AnalysisCommon", "ACommonNumbers");
    Open(session, "AnalyseNumStats", "ANumberStats");
    session.InForm("FileDelete", "DeleteDbaseW", [](QDialog& form) {
        Session::ChooseLine(form, "List1", 0);
        form.close();
    });
}

void ReadEntries(Session& session) {
    session.InForm("DatabaseCheck", "ShowMyDrawsW", [&](QDialog& form) {
        session.Press(form, "Command2");
        form.close();
    });
}

void ReadSyndicate(Session& session) {
    Open(session, "SyndicateOpen", "OpenSyndicate");
    Open(session, "SyndicateMembers", "SMembers");
    Open(session, "SyndicatePayments", "SPayments");
}

void ReadDiary(Session& session) { Open(session, "SyndicateManager", "SManager"); }

void ReadSyndicateNotes(Session& session) { Open(session, "SyndicatesNotes", "SNotes"); }

void ReadTemplates(Session& session) { Open(session, "DatabasesCreate", "CreateDbase"); }

void ReadSlips(Session& session) { Open(session, "FilePrintSetup", "PrintSetup"); }

void ReadWheel(Session& session) { Open(session, "PlayWheel49", "Wheel49"); }

void ReadInfo(Session& session) { Open(session, "HelpLotteryInfo", "LotteryInfo"); }

void ReadFormats(Session& session) { Open(session, "DatabaseImport", "ImportDraws"); }

// The files of the user's own configuration lie in the program's folder here.
QString Own(Session& session, const char* name) {
    return session.folder.Path() % QLatin1Char('/') % QLatin1String(name);
}

void ReadWindowSizes(Session& session) {
    WindowStates states(Own(session, "windows.ini"));
    QWidget window;
    window.setObjectName(QStringLiteral("HistoryW"));
    RememberSize(window, &states);
    window.show();
}

void ReadCorrections(Session& session) {
    QStandardPaths::setTestModeEnabled(false);
    qputenv("XDG_CONFIG_HOME", session.folder.Path().toUtf8());
    DesktopPrinters().CorrectionOf(QStringLiteral("Office"));
}

void ReadRescued(Session& session) {
    const QString record = Own(session, "rescued.ini");
    const QString file = Own(session, "Notes.txt");
    if (FromFolder({file}, session.folder.Path(), record).isEmpty()) FirstTold({}, record);
}

// To try a file that the program reads, add its line here.
constexpr auto readers = std::to_array<Reader>({
    {"Settings", "quillon.ini", Start, true},
    {"Notes", "Notes.txt", Start, true},
    {"Picture", "SkinMain.jpg", Start, true},
    {"Database", "dbase100.txt", ReadDatabase, true},
    {"Syndicate", "SMembers.000", ReadSyndicate, true},
    {"Entries", "MyLottery.txt", ReadEntries},
    {"Diary", "Diary.000", ReadDiary},
    {"SyndicateNotes", "SNotes.txt", ReadSyndicateNotes},
    {"LotteryTemplates", "LotteryTemplates.txt", ReadTemplates},
    {"SlipTemplate", "PTemplate.000", ReadSlips},
    {"Wheel", "wheel49.dat", ReadWheel},
    {"LotteryInfo", "Lottery Info.txt", ReadInfo},
    {"ImportFormats", "ImportFormats.txt", ReadFormats},
    {"WindowSizes", "windows.ini", ReadWindowSizes},
    {"PrinterCorrections", "quillon/printers.conf", ReadCorrections},
    {"RescuedFiles", "rescued.ini", ReadRescued},
});

// A folder as it stands, without reading what lies in it: some of it is endless.
std::string Fingerprint(const fs::path& folder) {
    std::string print;
    std::vector<fs::path> paths(fs::recursive_directory_iterator(folder), {});
    std::sort(paths.begin(), paths.end());
    for (const fs::path& path : paths) {
        struct stat status {};
        ::lstat(path.c_str(), &status);
        print += path.string() + ' ' + std::to_string(status.st_mode) + ' ' +
                 std::to_string(status.st_size) + ' ' + std::to_string(status.st_ino) + ' ' +
                 std::to_string(status.st_mtim.tv_sec) + '.' +
                 std::to_string(status.st_mtim.tv_nsec) + '\n';
    }
    return print;
}

bool NamesPlace(const std::string& report, const std::string& file) {
    if (report.find(file) == std::string::npos) return false;
    for (const char* word : {", line ", ", row ", " could not be ", " is no picture"}) {
        if (report.find(word) != std::string::npos) return true;
    }
    return false;
}

class BadInput : public testing::TestWithParam<Reader> {
  protected:
    BadInput() : place_(Place()), path_(place_.path().toStdString()) {
        Session session(place_.path(), record_);
        UsedFolderWithTemplate(session);
        for (const char* file : {"wheel49.dat", "SkinMain.jpg", "Lottery Info.txt"}) {
            fs::copy_file(fs::path(SUPPLIED_DATA) / file, path_ / file);
            fs::permissions(path_ / file, fs::perms::owner_all);
        }
        PutOwnFiles();
    }

    void PutOwnFiles() {
        Put(path_ / "ImportFormats.txt",
            "# mine\r\n[https://one.example/lotto.csv]\r\nlottery = dbase100.txt\r\n"
            "headings = Date | Ball 1 | Ball 2\r\ncolumns = date, number, number\r\n");
        Put(path_ / "windows.ini", "[HistoryW]\nmaximized=false\nsize=@Size(700 500)\n");
        Put(path_ / "rescued.ini",
            "[General]\ntold=/home/ann/a.txt, /home/ann/b.txt\n[origins]\n"
            "1\\file=/home/ann/a.txt\n1\\folder=/home/ann\nsize=1\n");
        fs::create_directory(path_ / "quillon");
        Put(path_ / "quillon" / "printers.conf", "[Office]\nMoveAcross=1.5\nScaleDown=99\n");
    }

    // On a disk: a file of 200 MB without contents takes no room there.
    static QString Place() { return QDir::tempPath() + QStringLiteral("/quillon-bad-XXXXXX"); }

    // Runs the program on the file as it stands, and says what is wrong.
    std::string Run() {
        const long before = MemoryNow();
        const std::string print = Fingerprint(path_);
        const ForkedRun run = RunForked(record_, [this] {
            if (GetParam().atStart) {
                session_ = std::make_unique<Session>(place_.path(), record_);
                session_->Start();
            }
            GetParam().read(*session_);
        });
        ++tried;
        if (run.end == RunEnd::Hung) return "it hangs";
        if (run.end == RunEnd::Died) return "it died";
        if (Fingerprint(path_) != print) return "it changed a file";
        const long taken = run.peakMemory - before;
        if (measures && taken > mostMemory)
            return "it took " + std::to_string(taken / 1024) + " MB";
        if (measures && run.seconds > mostSeconds)
            return "it took " + std::to_string(run.seconds) + " seconds";
        if (run.end != RunEnd::Reported) return {};
        const auto reports = record_.Entries(Record::Kind::Report);
        if (reports.empty()) return "it ended without a report";
        if (!NamesPlace(reports[0].name, GetParam().file)) return "it reported: " + reports[0].name;
        return {};
    }

    void Try(const Damage& damage) {
        const fs::path file = path_ / GetParam().file;
        const fs::path sound = path_.string() + ".sound";
        fs::rename(file, sound);
        damage.make(file);
        EXPECT_EQ(Run(), "") << GetParam().file << ": " << damage.name;
        fs::remove_all(file);
        fs::rename(sound, file);
    }

    void TryIfAsked(const Damage& damage) {
        if (damage.name.find(only) != std::string::npos) Try(damage);
    }

    Record record_;
    QTemporaryDir place_;
    fs::path path_;
    std::unique_ptr<Session> session_;
};

TEST_P(BadInput, IsReportedOrTakenAsItIs) {
    if (!GetParam().atStart) {
        session_ = std::make_unique<Session>(place_.path(), record_);
        session_->Start();
    }
    ASSERT_EQ(Run(), "");
    ASSERT_TRUE(record_.Entries(Record::Kind::Report).empty()) << "the sound file";
    std::vector<Damage> damages = Replacements();
    // Without settings the program makes new ones.
    if (GetParam().file != std::string("quillon.ini"))
        damages.push_back({"missing", [](const fs::path&) {}});
    const std::string bytes = BytesOf(path_ / GetParam().file);
    for (Damage& damage : Truncations(bytes, everything)) damages.push_back(std::move(damage));
    // The sample begins at another damage with each file. Of the large lines it has one.
    static std::size_t reader = 0;
    ++reader;
    const std::vector<Damage> large = LargeLines(bytes);
    const std::size_t step = everything ? 1 : sampleStep;
    for (std::size_t i = reader % step; i < damages.size(); i += step) TryIfAsked(damages[i]);
    for (std::size_t i = 0; i < large.size(); ++i) {
        if (everything || i == reader % 4) TryIfAsked(large[i]);
    }
    if (everything) {
        std::cout << GetParam().file << ": " << damages.size() + large.size() << " damages"
                  << std::endl;
    }
}

INSTANTIATE_TEST_SUITE_P(Reading, BadInput, testing::ValuesIn(readers),
                         [](const auto& reader) { return std::string(reader.param.name); });

}  // namespace

// The windows from which runs are forked are nobody's leak.
extern "C" int __lsan_is_turned_off();
extern "C" int __lsan_is_turned_off() { return 1; }

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    for (int i = 1; i < argumentCount; ++i) {
        const std::string order = arguments[i];
        everything |= order == "--all";
        if (order == "--only" && i + 1 < argumentCount) only = arguments[++i];
    }
    Application application(argumentCount, arguments);
    QStandardPaths::setTestModeEnabled(true);
    const int result = RUN_ALL_TESTS();
    std::cout << tried << " bad files tried" << std::endl;
    return result;
}
