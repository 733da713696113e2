// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the main window and of every form of the catalogue: `quillon_screenshots`.
//
// The program runs on a folder made for the occasion, on a fixed day, with a fixed seed and in
// British English, so that a picture changes only when the form does.
#include <QAction>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>
#include <QThread>
#include <set>

#include "core/draw_database.h"
#include "core/text.h"
#include "platform/forms/PrintPreview.h"
#include "platform/system/DesktopColours.h"
#include "platform/system/DesktopPrinters.h"
#include "printing/grid_reports.h"
#include "shell/Application.h"
#include "shell/Quillon.h"
#include "shell/form_catalogue.h"
#include "tools/screenshots/few_colours.h"
#include "tools/screenshots/looks.h"
#include "tools/screenshots/studio.h"
#include "tools/screenshots/usage.h"

namespace {

/// Lets the window settle: layouts, fonts and delayed paints.
void Settle() {
    for (int turn = 0; turn < 10; ++turn) {
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
}

/// The second way into a form is a picture of its own only where it opens it otherwise.
QString PictureName(const CatalogueEntry& entry) {
    const QString form = QString::fromLatin1(entry.form);
    if (entry.prepare == nullptr) return form;
    return form % QLatin1Char('-') % QString::fromLatin1(entry.menuEntry);
}

/// Whether a picture of another form, or of the form in its other mode, tells as much.
bool LooksLikeAnother(const CatalogueEntry& entry) {
    static const std::set<std::string> alike = {"DbaseUpdateUS", "P1Key", "P2KeyNum", "PWheel2"};
    return entry.prepare != nullptr || alike.contains(entry.form);
}

/// The newest draws of a lottery as a report has them.
ReportTable SomeDraws(const State& state) {
    ReportTable draws = {{"Date", "Num1", "Num2", "Num3", "Num4", "Num5", "Num6", "", "Bonus"}};
    for (int row = 1; row <= 99 && state.Draws(row, 1) > 0; ++row) {
        auto& draw = draws.emplace_back();
        draw.push_back(DrawDate(DaysAfter(PictureDay, -7 * row)));
        for (int column = 1; column <= 8; ++column) {
            const int number = state.Draws(row, column);
            draw.push_back(number > 0 ? PlainDigits(number) : std::string());
        }
    }
    return draws;
}

/// Where the pictures go, and how.
class Album {
  public:
    Album(Program& program, const QCommandLineParser& options)
        : program_(program),
          folder_(options.value(QStringLiteral("out"))),
          forHelp_(options.isSet(QStringLiteral("for-help"))) {
        // The help pages have both looks beside each other.
        if (forHelp_ && options.isSet(QStringLiteral("dark")))
            ending_ = QStringLiteral("-dark.png");
        QDir().mkpath(folder_);
    }

    /// Whether all pictures could be written.
    bool Good() const { return good_; }

    void TakeMainWindow(Quillon& window) {
        Take(window, QStringLiteral("Quillon"));
        window.findChild<QAction*>(QStringLiteral("FileNotes"))->trigger();
        Take(window, QStringLiteral("Quillon-welcome"));
    }

    void TakeForms(Quillon& window) {
        std::set<QString> taken;
        for (const CatalogueEntry& entry : FormCatalogue()) {
            const QString name = PictureName(entry);
            if (forHelp_ && LooksLikeAnother(entry)) continue;
            if (entry.make != nullptr && taken.insert(name).second) TakeForm(entry, name, window);
        }
    }

    void TakePreview(Quillon& window) {
        LoadDatabase(program_.state, program_.folder, 0);
        const ReportTable draws = SomeDraws(View(program_.state));
        const PrintJob job = {
            .title = "Lottery draw results", .options = {}, .compose = [&](const SheetRoom& room) {
                return DrawsReport(draws, program_.state.LotteryName, {.lines = 99}, room);
            }};
        PrintPreview preview(program_, TaskOf(job), DesktopExits(*program_.services.printers),
                             &window);
        preview.Load();
        Take(preview, QStringLiteral("PrintPreview"));
    }

  private:
    void TakeForm(const CatalogueEntry& entry, const QString& name, Quillon& window) {
        const std::unique_ptr<Form> form = entry.make(program_, &window);
        form->Load();
        for (int run = 0; run < entry.messageRuns; ++run) QCoreApplication::processEvents();
        if (entry.prepare != nullptr) entry.prepare(*form);
        // The sample entries are of the sample databases.
        Use(*form, program_.folder.Exists("dbasedemo1.txt"));
        Take(*form, name);
        if (forHelp_) TakeFurtherViews(*form);
    }

    void TakeFurtherViews(Form& form) {
        for (const FurtherView& view : FurtherViews(form)) {
            view.turnTo(form);
            Take(form, form.objectName() % QLatin1Char('-') % QString::fromLatin1(view.name));
        }
    }

    void Take(QWidget& window, const QString& name) {
        window.show();
        Settle();
        const QImage picture = window.grab().toImage();
        const QString path = folder_ % QLatin1Char('/') % name % ending_;
        // At "quality" 0 a PNG is packed as small as it can be.
        const bool saved =
            forHelp_ ? InFewColours(picture).save(path, "PNG", 0) : picture.save(path);
        if (saved) return;
        Say(path % QStringLiteral(" could not be written"));
        good_ = false;
    }

    Program& program_;
    QString folder_;
    QString ending_ = QStringLiteral(".png");
    bool forHelp_;
    bool good_ = true;
};

int TakePictures(Program& program, const QCommandLineParser& options) {
    Album album(program, options);
    Quillon window(program);
    window.Load();
    album.TakeMainWindow(window);
    album.TakeForms(window);
    album.TakePreview(window);
    return album.Good() ? 0 : 1;
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
    parser.addOption({QStringLiteral("for-help"),
                      QStringLiteral("Plain windows in few colours, for small files.")});
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
        if (parser.isSet(QStringLiteral("for-help"))) studio.LeaveOutBackgrounds();
        return TakePictures(studio.program, parser);
    });
}
