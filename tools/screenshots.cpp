// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the main window and of every form of the catalogue: `quillon_screenshots`.
//
// The program runs on a folder made for the occasion, on a fixed day, with a fixed seed and in
// British English, so that a picture changes only when the form does.
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTextStream>
#include <QThread>
#include <set>

#include "core/draw_database.h"
#include "core/settings.h"
#include "core/syndicate.h"
#include "core/text.h"
#include "platform/forms/PrintPreview.h"
#include "platform/system/DesktopPrinters.h"
#include "platform/system/DiskFolder.h"
#include "platform/system/LocaleRegion.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "printing/PrintRoutines.h"
#include "printing/grid_reports.h"
#include "printing/slip_template.h"
#include "shell/Application.h"
#include "shell/Quillon.h"
#include "shell/form_catalogue.h"

namespace {

constexpr std::uint64_t Seed = 49;
constexpr Date Today = std::chrono::year(2025) / std::chrono::January / 2;

void Say(const QString& text) { QTextStream(stderr) << text << '\n'; }

/// A message over a form is no picture of the form: it is told, and answered as if closed.
class ToldMessages final : public MessageBoxes {
  public:
    Answer Show(QWidget* parent, const Message& message) override {
        Say(parent->objectName() % QStringLiteral(": ") % message.title % QStringLiteral(": ") %
            message.text);
        if (message.buttons == Buttons::OkCancel) return Answer::Cancel;
        return message.buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
};

QPalette DarkPalette() {
    const QColor window(0x31, 0x36, 0x3b);
    const QColor base(0x23, 0x26, 0x29);
    const QColor text(0xef, 0xf0, 0xf1);
    QPalette palette(text, window, window.lighter(130), window.darker(150), window.darker(120),
                     text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    palette.setColor(QPalette::HighlightedText, base);
    palette.setColor(QPalette::Link, QColor(0x5d, 0xbe, 0xf9));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x7f, 0x86, 0x8c));
    }
    return palette;
}

/// White and yellow on black, as desktops for weak eyes have it.
QPalette ContrastPalette() {
    QPalette palette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white,
                     Qt::black, Qt::black);
    palette.setColor(QPalette::AlternateBase, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, Qt::cyan);
    return palette;
}

void CopyFiles(const QString& from, const QStringList& patterns, const QString& to) {
    const QStringList names = QDir(from).entryList(patterns, QDir::Files);
    for (const QString& name : names) {
        QFile::remove(to % QLatin1Char('/') % name);
        QFile::copy(from % QLatin1Char('/') % name, to % QLatin1Char('/') % name);
    }
}

/// The supplied files, and instead of the sample databases those of a folder where one is named.
void Supply(const QString& folder, const QString& databases) {
    CopyFiles(QStringLiteral(SUPPLIED_DATA), {QStringLiteral("*")}, folder);
    if (databases.isEmpty()) return;
    const QDir supplied(folder);
    const QStringList samples = supplied.entryList({QStringLiteral("dbase*.txt")});
    for (const QString& sample : samples) QFile::remove(supplied.filePath(sample));
    CopyFiles(databases, {QStringLiteral("dbase*.txt")}, folder);
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

/// What a user of some weeks has in his folder.
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

/// The program as `RunProgram` makes it, but on a fixed day.
struct Studio {
    explicit Studio(const QString& folderPath) : folder(folderPath) {
        random.Reset(Seed);
        WriteUserFiles(*state, folder);
        printing.Offer();
        WriteSlipTemplates(folder);
    }

    std::unique_ptr<State> state = std::make_unique<State>();
    DiskFolder folder;
    Random random{[] { return Seed; }};
    ToldMessages messages;
    DesktopPrinters printers;
    double now = 0;
    Services services{.seconds = [this] { return now += 0.001; },
                      .today = [] { return Today; },
                      .random = random,
                      .region = RegionOf(QLocale(QLocale::English, QLocale::UnitedKingdom)),
                      .messages = messages,
                      .openPage = [](const QString&) {},
                      .saveLines = [](QWidget*, Grid&) {},
                      .printLines = {},
                      .printers = &printers};
    Program program{.state = *state, .folder = folder, .services = services};
    PrintRoutines printing{program};
};

template <typename Control>
Control* Find(const QWidget& form, const QString& name) {
    return form.findChild<Control*>(name);
}

/// Six numbers typed and added to the grid.
void TypeEntry(Form& form, const QStringList& numbers) {
    for (qsizetype place = 0; place < numbers.size(); ++place) {
        Find<QLineEdit>(form, QStringLiteral("Text1(%1)").arg(place + 1))->setText(numbers[place]);
    }
    Find<QAbstractButton>(form, QStringLiteral("Command2"))->click();
}

/// Works in the form as its user does, where it would look empty otherwise.
void Use(Form& form, bool hasSamples) {
    const QString name = form.objectName();
    if (name == QLatin1String("PLuckyDip")) {
        Find<QAbstractButton>(form, QStringLiteral("Check1"))->click();
        Find<QAbstractButton>(form, QStringLiteral("Check3"))->click();
        Find<QScrollBar>(form, QStringLiteral("HScroll1"))->setValue(12);
        Find<QAbstractButton>(form, QStringLiteral("Command2"))->click();
    } else if (name == QLatin1String("PWheel2") || name == QLatin1String("PWheel3") ||
               name == QLatin1String("PBudgetWheel")) {
        Find<QAbstractButton>(form, QStringLiteral("Option1(2)"))->click();
        Find<QAbstractButton>(form, QStringLiteral("Command12"))->click();
        Find<QAbstractButton>(form, QStringLiteral("Command2"))->click();
    } else if (name == QLatin1String("PDIYWheels")) {
        Find<QComboBox>(form, QStringLiteral("Combo1"))->setCurrentIndex(6);
        Find<QAbstractButton>(form, QStringLiteral("Command12"))->click();
        Find<QAbstractButton>(form, QStringLiteral("Command2"))->click();
    } else if (name == QLatin1String("PThreeMatch")) {
        Find<QAbstractButton>(form, QStringLiteral("Command12"))->click();
        Find<QAbstractButton>(form, QStringLiteral("Command2"))->click();
    } else if (name == QLatin1String("PGuaranteed")) {
        Find<QAbstractButton>(form, QStringLiteral("Command12(0)"))->click();
    } else if (name == QLatin1String("Wheel49")) {
        Find<QAbstractButton>(form, QStringLiteral("Command2"))->click();
    } else if (name == QLatin1String("SaveEntries")) {
        Find<QLineEdit>(form, QStringLiteral("Text1"))->setText(QStringLiteral("12"));
    } else if (name == QLatin1String("PrintFrm") || name == QLatin1String("PrintTickets")) {
        Find<QLineEdit>(form, QStringLiteral("Text2"))->setText(QStringLiteral("12"));
    } else if (name == QLatin1String("SMembers")) {
        Find<ListBox>(form, QStringLiteral("List1"))->SetIndex(0);
    } else if (name == QLatin1String("NewSyndicate")) {
        Find<QLineEdit>(form, QStringLiteral("Text1(7)"))->setText(QStringLiteral("Office pool"));
        Find<QLineEdit>(form, QStringLiteral("Text1(0)"))->setText(QStringLiteral("Anna"));
    } else if (name == QLatin1String("StoreMyDrawsW")) {
        Find<QLineEdit>(form, QStringLiteral("TextPName"))->setText(QStringLiteral("Anna"));
        TypeEntry(form, QStringLiteral("3 11 19 27 34 48").split(QLatin1Char(' ')));
        TypeEntry(form, QStringLiteral("8 15 22 29 36 43").split(QLatin1Char(' ')));
    } else if (name == QLatin1String("ANumberStats")) {
        Find<QAbstractButton>(form, QStringLiteral("Command1"))->click();
    } else if (name == QLatin1String("WhatIf")) {
        Find<QListWidget>(form, QStringLiteral("List1"))->setCurrentRow(0);
        TypeEntry(form, QStringLiteral("3 11 19 27 34 48").split(QLatin1Char(' ')));
        TypeEntry(form, QStringLiteral("8 15 22 29 36 43").split(QLatin1Char(' ')));
        TypeEntry(form, QStringLiteral("7 14 17 21 30 38").split(QLatin1Char(' ')));
        TypeEntry(form, QStringLiteral("1 2 3 4 5 6").split(QLatin1Char(' ')));
        Find<QAbstractButton>(form, QStringLiteral("Command4"))->click();
        Find<QAbstractButton>(form, QStringLiteral("Command3"))->click();
    } else if (name == QLatin1String("ShowMyDrawsW") && hasSamples) {
        Find<QAbstractButton>(form, QStringLiteral("Command2"))->click();
    }
}

/// Lets the window settle: layouts, fonts and delayed paints.
void Settle() {
    for (int turn = 0; turn < 10; ++turn) {
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
}

bool Save(QWidget& window, const QString& path) {
    window.show();
    Settle();
    if (window.grab().save(path)) return true;
    Say(path % QStringLiteral(" could not be written"));
    return false;
}

/// The second way into a form is a picture of its own only where it opens it otherwise.
QString PictureName(const CatalogueEntry& entry) {
    const QString form = QString::fromLatin1(entry.form);
    if (entry.prepare == nullptr) return form;
    return form % QLatin1Char('-') % QString::fromLatin1(entry.menuEntry);
}

bool SaveForm(const CatalogueEntry& entry, Program& program, QWidget& window, const QString& path) {
    const std::unique_ptr<Form> form = entry.make(program, &window);
    form->Load();
    for (int run = 0; run < entry.messageRuns; ++run) QCoreApplication::processEvents();
    if (entry.prepare != nullptr) entry.prepare(*form);
    // The sample entries are of the sample databases.
    Use(*form, program.folder.Exists("dbasedemo1.txt"));
    return Save(*form, path);
}

/// Some draws as the preview shows them.
bool SavePreview(Program& program, QWidget& window, const QString& path) {
    LoadDatabase(program.state, program.folder, 0);
    const State& state = View(program.state);
    ReportTable draws = {{"Date", "Num1", "Num2", "Num3", "Num4", "Num5", "Num6", "", "Bonus"}};
    for (int row = 1; row <= 99 && state.Draws(row, 1) > 0; ++row) {
        auto& draw = draws.emplace_back();
        draw.push_back(DrawDate(DaysAfter(Today, -7 * row)));
        for (int column = 1; column <= 8; ++column) {
            const int number = state.Draws(row, column);
            draw.push_back(number > 0 ? PlainDigits(number) : std::string());
        }
    }
    const PrintJob job = {
        .title = "Lottery draw results", .options = {}, .compose = [&](const SheetRoom& room) {
            return DrawsReport(draws, state.LotteryName, {.lines = 99}, room);
        }};
    PrintPreview preview(program, TaskOf(job), DesktopExits(*program.services.printers), &window);
    preview.Load();
    return Save(preview, path);
}

int TakePictures(Program& program, const QString& outFolder) {
    QDir().mkpath(outFolder);
    Quillon window(program);
    window.Load();
    bool good = Save(window, outFolder % QStringLiteral("/Quillon.png"));
    window.findChild<QAction*>(QStringLiteral("FileNotes"))->trigger();
    good = Save(window, outFolder % QStringLiteral("/Quillon-welcome.png")) && good;
    std::set<QString> taken;
    for (const CatalogueEntry& entry : FormCatalogue()) {
        const QString name = PictureName(entry);
        if (entry.make == nullptr || !taken.insert(name).second) continue;
        const QString path = outFolder % QLatin1Char('/') % name % QStringLiteral(".png");
        good = SaveForm(entry, program, window, path) && good;
    }
    good = SavePreview(program, window, outFolder % QStringLiteral("/PrintPreview.png")) && good;
    return good ? 0 : 1;
}

void AddOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        QStringLiteral("Takes pictures of the main window and of every form."));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("out"), QStringLiteral("Where the pictures go."),
                      QStringLiteral("folder"), QStringLiteral("docs/screenshots")});
    parser.addOption({QStringLiteral("dark"), QStringLiteral("With a dark theme.")});
    parser.addOption({QStringLiteral("contrast"), QStringLiteral("At the highest contrast.")});
    parser.addOption({QStringLiteral("points"), QStringLiteral("Size of the desktop's letters."),
                      QStringLiteral("number"), QStringLiteral("9")});
    parser.addOption({QStringLiteral("screen"), QStringLiteral("Pixels of the screen."),
                      QStringLiteral("width x height"), QStringLiteral("1920x1080")});
    parser.addOption({QStringLiteral("scale"), QStringLiteral("Scaling of the screen."),
                      QStringLiteral("factor"), QStringLiteral("1")});
    parser.addOption({QStringLiteral("databases"),
                      QStringLiteral("Shows the draw databases of this folder, not the samples."),
                      QStringLiteral("folder")});
}

/// Has the program run on a screen of that size, told in `file`, where no other platform is asked
/// for: that of the offscreen platform is smaller than most.
void TakeScreen(const QString& size, QTemporaryFile& file) {
    const QByteArray asked = qgetenv("QT_QPA_PLATFORM");
    if (!asked.isEmpty() && asked != "offscreen") return;
    const QStringList sides = size.split(QLatin1Char('x'));
    file.open();
    file.write(QStringLiteral(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": %1,
        "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                   .arg(sides.first(), sides.last())
                   .toLatin1());
    file.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLocal8Bit());
}

/// The desktop's look as the options say.
void Dress(const QCommandLineParser& parser) {
    QApplication::setCursorFlashTime(0);
    QFont font = QApplication::font();
    font.setPointSize(parser.value(QStringLiteral("points")).toInt());
    QApplication::setFont(font);
    if (parser.isSet(QStringLiteral("dark"))) QApplication::setPalette(DarkPalette());
    if (parser.isSet(QStringLiteral("contrast"))) QApplication::setPalette(ContrastPalette());
}

}  // namespace

int main(int argumentCount, char** arguments) {
    QCommandLineParser parser;
    AddOptions(parser);
    QStringList words;
    for (int word = 0; word < argumentCount; ++word) {
        words << QString::fromLocal8Bit(arguments[word]);
    }
    if (!parser.parse(words)) {
        Say(parser.errorText());
        return 2;
    }
    qputenv("LC_ALL", "en_GB.UTF-8");
    qputenv("QT_SCALE_FACTOR", parser.value(QStringLiteral("scale")).toLatin1());
    QTemporaryFile screen;
    TakeScreen(parser.value(QStringLiteral("screen")), screen);

    Application application(argumentCount, arguments);
    if (parser.isSet(QStringLiteral("help"))) parser.showHelp();
    Dress(parser);
    return application.Run([&parser] {
        const QTemporaryDir folder;
        Supply(folder.path(), parser.value(QStringLiteral("databases")));
        Studio studio(folder.path());
        return TakePictures(studio.program, parser.value(QStringLiteral("out")));
    });
}
