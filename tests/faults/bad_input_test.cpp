// SPDX-License-Identifier: GPL-3.0-or-later
// Every file that the program reads, damaged in every way, on a real folder and through the forms
// that read it. The program goes on as it is told to, or ends with the report that names the file
// and the line; no signal, no hang, no more than 200 MB, and no file is changed. Without orders a
// sample is tried; `--all` tries everything.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QStandardPaths>
#include <QTemporaryDir>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "platform/widgets/Lists.h"
#include "shell/Application.h"
#include "test_folders.h"
#include "tests/faults/forked_run.h"
#include "tests/faults/used_folder.h"

namespace fs = std::filesystem;

namespace {

bool everything = false;
long long tried = 0;

#ifdef QUILLON_SANITIZE
constexpr std::size_t sampleStep = 6;
constexpr bool measuresMemory = false;  // a sanitizer takes many times more
#else
constexpr std::size_t sampleStep = 2;
constexpr bool measuresMemory = true;
#endif

constexpr long mostMemory = 200L * 1024;  // KiB

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
});

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Put(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

/// One way to damage a file.
struct Damage {
    std::string name;
    std::function<void(const fs::path& file)> make;
};

Damage Holding(const std::string& name, const std::string& bytes) {
    return {name, [bytes](const fs::path& file) { Put(file, bytes); }};
}

std::string Garbage(std::size_t size) {
    std::string bytes(size, '\0');
    std::uint32_t state = 20050601;
    for (char& byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24U);
    }
    return bytes;
}

std::string Repeated(const std::string& piece, std::size_t size) {
    std::string bytes;
    while (bytes.size() < size) bytes += piece;
    return bytes;
}

// Not a file, or one that is no text.
std::vector<Damage> Replacements() {
    return {
        Holding("empty", ""),
        Holding("garbage", Garbage(4096)),
        Holding("one long line", std::string(100'000, 'x')),
        Holding("commas", std::string(20'000, ',')),
        Holding("line ends", std::string(5'000, '\n')),
        Holding("huge numbers", Repeated("99999999999999999999,", 5'000)),
        Holding("numbers beyond every table", Repeated("32767,", 5'000)),
        {"folder", [](const fs::path& file) { fs::create_directory(file); }},
        {"endless device", [](const fs::path& file) { fs::create_symlink("/dev/zero", file); }},
        {"link to itself", [](const fs::path& file) { fs::create_symlink(file, file); }},
        {"pipe", [](const fs::path& file) { ::mkfifo(file.c_str(), 0600); }},
        {"200 MB",
         [](const fs::path& file) {
             Put(file, "");
             fs::resize_file(file, std::uintmax_t{200} * 1024 * 1024);
         }},
    };
}

// So many bytes of the file, as many of all sizes as are to be tried.
std::vector<Damage> Truncations(const std::string& bytes) {
    const std::size_t most = everything ? 250 : 8;
    const std::size_t step = bytes.size() / most + 1;
    std::vector<Damage> damages;
    for (std::size_t size = bytes.size(); size-- > 0;) {
        const bool nearEnd = everything && bytes.size() - size <= 40;
        if (size % step != 0 && !nearEnd) continue;
        damages.push_back(
            Holding("the first " + std::to_string(size) + " bytes", bytes.substr(0, size)));
    }
    return damages;
}

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
        if (measuresMemory && taken > mostMemory)
            return "it took " + std::to_string(taken / 1024) + " MB";
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
    for (Damage& damage : Truncations(BytesOf(path_ / GetParam().file)))
        damages.push_back(std::move(damage));
    // The sample begins at another damage with each file.
    static std::size_t reader = 0;
    const std::size_t step = everything ? 1 : sampleStep;
    for (std::size_t i = ++reader % step; i < damages.size(); i += step) Try(damages[i]);
    if (everything) {
        std::cout << GetParam().file << ": " << damages.size() << " damages" << std::endl;
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
    for (int i = 1; i < argumentCount; ++i) everything |= std::string(arguments[i]) == "--all";
    Application application(argumentCount, arguments);
    QStandardPaths::setTestModeEnabled(true);
    const int result = RUN_ALL_TESTS();
    std::cout << tried << " bad files tried" << std::endl;
    return result;
}
