// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/ImportDraws.h"

#include <QAccessible>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <algorithm>

#include "databases/ImportDrawsPage.h"
#include "databases/ImportLeftOutPage.h"
#include "databases/ImportReadingPage.h"
#include "databases/ImportSources.h"
#include "databases/ImportTarget.h"
#include "databases/ImportWords.h"
#include "databases/new_database.h"
#include "platform/forms/DroppedFile.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/TextConversion.h"
#include "platform/system/UserFiles.h"

namespace {

constexpr const char* clipboardSource = "clipboard";

/// The pages in their order.
enum Page { drawsTab, readingTab, leftOutTab };

}  // namespace

void ImportDraws::Load() {
    Skinning(QStringLiteral("SkinDatabases.jpg"),
             {.title = {QStringLiteral("ImportTitle")},
              .body = {QStringLiteral("ImportExplanation"), QStringLiteral("Hint")},
              .small = {QStringLiteral("AddressTitle"), QStringLiteral("AgainTitle")},
              .status = {QStringLiteral("Effect")}});
    ReadFormats();
    OfferLotteries();
    OfferAddresses();
    ShowNewSource();
}

void ImportDraws::ReadFormats() {
    formats_ = {};
    if (!folder().Exists(importFormatsFile)) return;
    formats_ = ReadImportFormats(folder().Read(importFormatsFile));
}

void ImportDraws::OfferLotteries() {
    const std::vector<std::string> files = folder().Find("dbase*.txt");
    const std::vector<std::string> names = LotteryNames(folder());
    std::vector<ExistingLottery> lotteries;
    for (std::size_t i = 0; i < files.size(); ++i) lotteries.push_back({files[i], names[i]});
    target_->OfferLotteries(std::move(lotteries));
}

// Only what went into a lottery that is still there can be added to.
void ImportDraws::OfferAddresses() {
    addresses_.clear();
    std::vector<std::pair<QString, QString>> offered;
    for (const ImportFormat& format : formats_.formats) {
        const QString lottery = target_->NameOf(format.database);
        if (!format.IsAddress() || lottery.isNull()) continue;
        addresses_.push_back(format);
        offered.emplace_back(lottery, ToQString(format.source));
    }
    sources_->OfferAddresses(offered);
}

void ImportDraws::ChooseFile() {
    const QString path =
        services().chooseFile(this, tr("Choose a file with results"),
                              tr("Tables (*.csv *.txt *.tsv *.tab *.htm *.html);;All files (*)"));
    if (!path.isEmpty()) TakeFile(path);
}

void ImportDraws::TakeFile(const QString& path) {
    const Hourglass hourglass;
    const std::string name = FromQString(QFileInfo(path).fileName());
    UserFile file = ReadUserFile(path, static_cast<qint64>(largestImport));
    if (file.bytes) {
        session_.Open(name, std::move(*file.bytes), formats_);
    } else if (file.tooLarge) {
        session_.Refuse(name, TooLargeToImport());
    } else {
        session_.Refuse(name, FromQString(tr("The file cannot be read: %1.").arg(file.reason)));
    }
    ShowNewSource();
}

// A file copied in the desktop's file manager is meant itself, not its name.
void ImportDraws::TakeClipboard() {
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    const QString file = copied == nullptr ? QString() : DroppedFile(*copied);
    if (!file.isEmpty()) {
        TakeFile(file);
        return;
    }
    if (copied == nullptr || copied->text().trimmed().isEmpty()) {
        session_.Refuse(clipboardSource,
                        FromQString(tr("There is no text to paste. Mark the table of results, copy "
                                       "it with Ctrl+C, and press Paste table again.")));
    } else {
        const Hourglass hourglass;
        OpenTable(copied->html(), copied->text());
    }
    ShowNewSource();
}

// Not all that is copied as HTML is a table there.
void ImportDraws::OpenTable(const QString& html, const QString& text) {
    if (html.contains(QLatin1String("<table"), Qt::CaseInsensitive)) {
        session_.Open(clipboardSource, html.toStdString(), formats_);
        if (session_.HasDraws()) return;
    }
    session_.Open(clipboardSource, text.toStdString(), formats_);
}

void ImportDraws::TakeAddress(const QString& address) {
    if (auto bytes = Fetch(address)) {
        session_.Open(FromQString(address), std::move(*bytes), formats_);
    }
    ShowNewSource();
}

// Where all is as it was the last time the new draws are added at once; else the user sees why not.
void ImportDraws::Update(int place) {
    const ImportFormat format = addresses_.at(static_cast<std::size_t>(place));
    const QString address = ToQString(format.source);
    auto bytes = Fetch(address);
    if (bytes)
        session_.Open(format.source, std::move(*bytes),
                      {.formats = {format}, .problems = {}, .unread = {}});
    ShowNewSource();
    if (!bytes) return;
    if (target_->Database() != format.database) {
        Say(tr("The page has changed: look how it is read, then import."));
    } else if (import_->isEnabled()) {
        Import();
    } else {
        Say(tr("%1 has all draws of the page already").arg(target_->LotteryName()));
    }
}

// Events run meanwhile, so nothing may be pressed.
std::optional<std::string> ImportDraws::Fetch(const QString& address) {
    const Hourglass hourglass;
    const QPointer<QWidget> focus = focusWidget();
    LetNothingBePressed(true);
    sources_->ShowSource(tr("Fetching %1...").arg(address));
    FetchedPage page = services().fetchPage(address, [&](qsizetype bytes) {
        sources_->ShowSource(tr("Fetching %1: %2 KB...").arg(address).arg(bytes / 1024));
    });
    LetNothingBePressed(false);
    if (focus) focus->setFocus();
    if (page.problem.isEmpty()) return std::move(page.bytes);
    session_.Refuse(FromQString(address), FromQString(page.problem));
    return std::nullopt;
}

void ImportDraws::LetNothingBePressed(bool fetching) {
    const std::initializer_list<QWidget*> controls = {sources_, stack_, target_, import_, close_};
    for (QWidget* control : controls) control->setEnabled(!fetching);
    setAcceptDrops(!fetching);
}

void ImportDraws::dragEnterEvent(QDragEnterEvent* event) {
    const QMimeData& dragged = *event->mimeData();
    if (!DroppedFile(dragged).isEmpty() || dragged.hasText()) event->acceptProposedAction();
}

void ImportDraws::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    const QMimeData& dragged = *event->mimeData();
    const QString file = DroppedFile(dragged);
    if (!file.isEmpty()) {
        TakeFile(file);
        return;
    }
    OpenTable(dragged.html(), dragged.text());
    ShowNewSource();
}

void ImportDraws::ShowNewSource() {
    ProposeTarget();
    ShowSession();
    if (session_.HasRows()) pages_->setCurrentIndex(session_.HasDraws() ? drawsTab : readingTab);
    if (import_->isEnabled()) import_->setFocus();
}

void ImportDraws::ProposeTarget() {
    if (!session_.HasRows()) return;
    if (target_->ProposeExisting(session_.RememberedDatabase(folder()))) return;
    const std::string name = session_.ProposedName();
    const ExistingLottery* sameName = target_->Named(name);
    const bool same = sameName != nullptr && session_.HasDraws() &&
                      session_.Suits(folder(), sameName->file, true);
    if (same && target_->ProposeExisting(sameName->file)) return;
    target_->ProposeNew(name.empty() ? tr("My lottery") : ToQString(name));
}

void ImportDraws::ShowSession() {
    const bool shown = session_.HasRows() && session_.Refusal().empty();
    stack_->setCurrentWidget(shown ? static_cast<QWidget*>(pages_) : hint_);
    target_->setVisible(shown);
    const QString source = session_.Source() == clipboardSource ? tr("What you have copied")
                                                                : ToQString(session_.Source());
    if (!shown) {
        sources_->ShowSource(source);
        ShowHint(ToQString(session_.Refusal()));
    } else {
        const QString words =
            session_.HasDraws() ? TakenInWords(session_) : ToQString(session_.Missing());
        sources_->ShowSource(source % QStringLiteral(": ") % words);
        drawsPage_->Show(session_);
        readingPage_->Show(session_);
    }
    ShowEffect();
}

/// What of the file of formats cannot be used, which is there to be edited by hand.
QString ImportDraws::FormatProblems() const {
    QString words;
    for (const std::string& problem : formats_.problems) {
        words += QStringLiteral("\n\n") % ToQString(importFormatsFile) % QStringLiteral(", ") %
                 ToQString(problem);
    }
    return words;
}

void ImportDraws::ShowHint(const QString& refusal) {
    hint_->setText(
        refusal.isEmpty()
            ? tr("Choose a file, drop one here, paste a table that you have copied, or type the "
                 "web "
                 "address of one.\n\nYou see every draw before anything is written. Your lotteries "
                 "stay as they are until you press Import.") %
                  FormatProblems()
            : refusal);
    if (refusal.isEmpty()) return;
    QAccessibleEvent alert(hint_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
