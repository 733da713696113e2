// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screenshots/studio.h"

#include <QDir>
#include <QLocale>
#include <QTextStream>
#include <QWidget>

#include "core/settings.h"
#include "core/syndicate.h"
#include "platform/system/LocaleRegion.h"
#include "printing/slip_template.h"

namespace {

constexpr std::uint64_t Seed = 49;

void CopyFiles(const QString& from, const QStringList& patterns, const QString& to) {
    const QStringList names = QDir(from).entryList(patterns, QDir::Files);
    for (const QString& name : names) {
        QFile::remove(to % QLatin1Char('/') % name);
        QFile::copy(from % QLatin1Char('/') % name, to % QLatin1Char('/') % name);
    }
}

/// A syndicate of eight with its diary.
void WriteSyndicate(State& state, DiskFolder& folder) {
    state.Settings(setting::SyndicateFile) = "SMembers.000";
    const std::array<std::array<const char*, 11>, 9> people = {{
        {"Anna Miller", "12, Mill Lane", "Little Waltham", "CM3 3XX", "", "01245 555 010",
         "anna@mail.example", "Cash", "5.00", "08-Jan-2025", "The Wednesday Club"},
        {"Bob Young", "3, High Street", "Chelmsford", "", "", "01245 555 011", "bob@mail.example",
         "Cheque", "20.00", "29-Jan-2025", ""},
        {"Carol Smith", "", "", "", "", "", "", "Cash", "5.00", "01-Jan-2025", ""},
        {"David Hill", "", "", "", "", "", "", "Internet transfer", "12.50", "15-Jan-2025", ""},
        {"Emma Price", "", "", "", "", "", "", "Credit/debit card", "5.00", "08-Jan-2025", ""},
        {"Frank Moore", "", "", "", "", "", "", "Cash", "", "", ""},
        {"Grace Lee", "", "", "", "", "", "", "Cash", "10.00", "02-Jan-2025", ""},
        {"Tom Baker", "", "", "", "", "", "", "Cheque", "20.00", "25-Dec-2024", ""},
        {"Zoe Adams", "", "", "", "", "", "", "Cash", "5.00", "08-Jan-2025", ""},
    }};
    for (std::size_t row = 0; row < people.size(); ++row) {
        std::copy(people.at(row).begin(), people.at(row).end(),
                  state.Members.Row(static_cast<long long>(row)));
    }
    SaveSyndicate(state, folder);
    folder.Write(
        "Diary.000",
        "\"11-Dec-2024\",\"9\",\"9\",\"0\",\"-9\",\"first draw together\"\r\n"
        "\"18-Dec-2024\",\"9\",\"9\",\"30\",\"21\",\"three numbers, twice\"\r\n"
        "\"25-Dec-2024\",\"12\",\"12\",\"0\",\"-12\",\"three lines more for Christmas\"\r\n"
        "\"01-Jan-2025\",\"9\",\"9\",\"0\",\"-9\",\"\"\r\n");
}

void WriteUserFiles(State& state, DiskFolder& folder) {
    LoadSettings(state, folder);
    state.Settings(setting::BirthDate) = "12-May-1980";
    state.Settings(setting::PlayerName) = "Anna";
    state.Settings(setting::InfoPanels) = "1";
    WriteSyndicate(state, folder);
    SaveSettings(state, folder);
    folder.Write(
        "Notes.txt",
        " 1 ,Analyse lottery draws\r\n 1 ,Generate lottery entries\r\n 0 ,Fill in payslips\r\n"
        " 0 ,Buy lottery tickets\r\n 0 ,Check results\r\n 0 ,Collect winnings!\r\n"
        " 0 ,\r\n 0 ,\r\nSaturday: ask Tom whether he joins us again.\r\n");
    folder.Write(
        "MyLottery.txt",
        "28-Dec-2024,7,14,17,21,30,38,,,Demo Lotto (sample draws),Anna,dbasedemo1.txt\r\n"
        "28-Dec-2024,5,12,20,29,35,42,,,Demo Lotto (sample draws),Tom,dbasedemo1.txt\r\n"
        "27-Dec-2024,1,9,11,30,42,,,7,Demo Five and Extra (sample draws),Anna,dbasedemo2.txt\r\n"
        "25-Dec-2024,5,13,14,25,37,48,,,Demo Lotto (sample draws),Anna,dbasedemo1.txt\r\n"
        "04-Jan-2025,3,11,19,27,34,48,,,Demo Lotto (sample draws),Anna,dbasedemo1.txt\r\n");
}

/// Slips of the sample lotteries, measured as real ones are.
void WriteSlipTemplates(DiskFolder& folder) {
    SlipTemplate slip;
    slip.name = "Demo Lotto, pink slip";
    slip.lottery = "Demo Lotto (sample draws)";
    slip.measures = {"3",    "2",   "5",    "1",   "12",   "4",    "38.2", "71.5", "42.1",
                     "27.3", "3.8", "6.39", "3.8", "6.39", "28.1", "0",    "3.0",  "5.5"};
    GeneratePositions(slip, 49, 0);
    WriteSlipTemplate(folder, "PTemplate.000", slip);
    slip.name = "Five and Extra";
    slip.lottery = "Demo Five and Extra (sample draws)";
    WriteSlipTemplate(folder, "PTemplate.001", slip);
}

/// A file for each day up to that of the pictures, whenever these are taken.
void DateFiles(DiskFolder& folder) {
    Date day = PictureDay;
    for (const std::string& name : folder.Find("*")) {
        folder.Write(name, folder.Read(name), std::chrono::sys_days(day) + std::chrono::hours(12));
        day = DaysAfter(day, -1);
    }
}

}  // namespace

void Say(const QString& text) { QTextStream(stderr) << text << '\n'; }

Answer ToldMessages::Show(QWidget* parent, const Message& message) {
    Say(parent->objectName() % QStringLiteral(": ") % message.title % QStringLiteral(": ") %
        message.text);
    if (message.buttons == Buttons::OkCancel) return Answer::Cancel;
    return message.buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
}

void Supply(const QString& folder, const QString& databases) {
    CopyFiles(QStringLiteral(SUPPLIED_DATA), {QStringLiteral("*")}, folder);
    if (databases.isEmpty()) return;
    const QDir supplied(folder);
    const QStringList samples = supplied.entryList({QStringLiteral("dbase*.txt")});
    for (const QString& sample : samples) QFile::remove(supplied.filePath(sample));
    CopyFiles(databases, {QStringLiteral("dbase*.txt")}, folder);
}

Studio::Studio(const QString& folderPath)
    : folder(folderPath),
      random([] { return Seed; }),
      services{.seconds = [this] { return now += 0.001; },
               .today = [] { return PictureDay; },
               .random = random,
               .region = RegionOf(QLocale(QLocale::English, QLocale::UnitedKingdom)),
               .messages = messages,
               .openPage = [](const QString&) {},
               .saveLines = [](Form*, Grid&) {},
               .printLines = {},
               .folderPath = QStringLiteral("/home/anna/lottery"),
               .printers = &printers} {
    random.Reset(Seed);
    WriteUserFiles(*state, folder);
    printing.Offer();
    WriteSlipTemplates(folder);
    folder.MakeFolder("Backup");
    DateFiles(folder);
}

void Studio::LeaveOutBackgrounds() {
    state->Settings(setting::SkinBits) = "0";
    SaveSettings(*state, folder);
    DateFiles(folder);
}
