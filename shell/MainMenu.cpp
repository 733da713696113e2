// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MainMenu.h"

#include <QAction>
#include <array>
#include <span>

#include "core/failure.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"

namespace {

struct EntryText {
    const char* name;
    const char* caption;
};

constexpr auto fileEntries = std::to_array<EntryText>({
    {"FileCopyToA", QT_TRANSLATE_NOOP("MainMenu", "Copy data files to floppy")},
    {"FileCopyFromA", QT_TRANSLATE_NOOP("MainMenu", "Copy data files from floppy")},
    {"FileBackup", QT_TRANSLATE_NOOP("MainMenu", "Backup and Restore data")},
    {"FileDelete", QT_TRANSLATE_NOOP("MainMenu", "Delete lottery database")},
    {"FileDeleteSaved", QT_TRANSLATE_NOOP("MainMenu", "Delete saved lottery entries")},
    {"FileNotes", QT_TRANSLATE_NOOP("MainMenu", "Show/Hide info panels")},
    {"FileOpen", QT_TRANSLATE_NOOP("MainMenu", "Open lottery data in Notepad")},
    {"FilePreferences", QT_TRANSLATE_NOOP("MainMenu", "Preferences")},
    {"FilePrintSetup", QT_TRANSLATE_NOOP("MainMenu", "Print setup")},
    {"FileExit", QT_TRANSLATE_NOOP("MainMenu", "Exit")},
});

constexpr auto databaseEntries = std::to_array<EntryText>({
    {"DatabasesCreate", QT_TRANSLATE_NOOP("MainMenu", "Create  lottery database")},
    {"wUpdateDbase", QT_TRANSLATE_NOOP("MainMenu", "Update lottery database")},
    {"wDatabaseView", QT_TRANSLATE_NOOP("MainMenu", "View lottery databases")},
    {"DatabaseUS", QT_TRANSLATE_NOOP("MainMenu", "Download US lottery results")},
    {"DatabaseUpdate", QT_TRANSLATE_NOOP("MainMenu", "Download UK lottery results")},
    {"DatabaseCheck", QT_TRANSLATE_NOOP("MainMenu", "Check my lottery entries")},
    {"DatabaseViewCheck", QT_TRANSLATE_NOOP("MainMenu", "Show my lottery entries")},
    {"DatabaseStoreDrawsW", QT_TRANSLATE_NOOP("MainMenu", "Store my lottery entries")},
});

constexpr auto analysisEntries = std::to_array<EntryText>({
    {"AnalysisCommon", QT_TRANSLATE_NOOP("MainMenu", "Hot numbers")},
    {"AnalyseColdNums", QT_TRANSLATE_NOOP("MainMenu", "Cold numbers")},
    {"AnalysisSums", QT_TRANSLATE_NOOP("MainMenu", "Draw sums")},
    {"AnalyseLowHigh", QT_TRANSLATE_NOOP("MainMenu", "High/low numbers")},
    {"AnalysisAverages", QT_TRANSLATE_NOOP("MainMenu", "Number averages")},
    {"AnalyseRange", QT_TRANSLATE_NOOP("MainMenu", "Number range")},
    {"AnalyseNumStats", QT_TRANSLATE_NOOP("MainMenu", "Number statistics")},
    {"AnalyseOddEven", QT_TRANSLATE_NOOP("MainMenu", "Odd/Even ratio")},
    {"AnalyseBiorhythms", QT_TRANSLATE_NOOP("MainMenu", "Biorhythms")},
    {"AnalyseWhatIf", QT_TRANSLATE_NOOP("MainMenu", "What if...?")},
});

constexpr auto playEntries = std::to_array<EntryText>({
    {"PlayAverages", QT_TRANSLATE_NOOP("MainMenu", "Averages")},
    {"PlayFullSel", QT_TRANSLATE_NOOP("MainMenu", "Full selection")},
    {"PlayColdNums", QT_TRANSLATE_NOOP("MainMenu", "Cold Numbers")},
    {"PlayHot", QT_TRANSLATE_NOOP("MainMenu", "Hot numbers")},
    {"PlayLuckyDip", QT_TRANSLATE_NOOP("MainMenu", "Lucky dip")},
    {"Play1Key", QT_TRANSLATE_NOOP("MainMenu", "One key number")},
    {"Play2Key", QT_TRANSLATE_NOOP("MainMenu", "Two key numbers")},
    {"Play3Key", QT_TRANSLATE_NOOP("MainMenu", "Three key numbers")},
    {"PlayBudgetWheels", QT_TRANSLATE_NOOP("MainMenu", "Budget wheels")},
    {"PlayColdWheels", QT_TRANSLATE_NOOP("MainMenu", "ColdWheels")},
    {"PlayDIYWheels", QT_TRANSLATE_NOOP("MainMenu", "Create-a-wheel")},
    {"PlayGuarantee3", QT_TRANSLATE_NOOP("MainMenu", "Guaranteed 3-match")},
    {"PlayGuarantee4", QT_TRANSLATE_NOOP("MainMenu", "Guaranteed 4-match")},
    {"PlayGuaranteed", QT_TRANSLATE_NOOP("MainMenu", "Guaranteed win wheels")},
    {"PlayHotWheels", QT_TRANSLATE_NOOP("MainMenu", "Hot wheels")},
    {"PlayWheel49", QT_TRANSLATE_NOOP("MainMenu", "Wheel 49")},
    {"PlayWheel2", QT_TRANSLATE_NOOP("MainMenu", "Wheeling pairs")},
    {"PlayWheel3", QT_TRANSLATE_NOOP("MainMenu", "Wheeling triplets")},
    {"PlayStarSign", QT_TRANSLATE_NOOP("MainMenu", "Astrology")},
    {"PlayLucky", QT_TRANSLATE_NOOP("MainMenu", "Numerology")},
});

constexpr auto syndicateEntries = std::to_array<EntryText>({
    {"SyndicateNew", QT_TRANSLATE_NOOP("MainMenu", "New syndicate")},
    {"SyndicateOpen", QT_TRANSLATE_NOOP("MainMenu", "Open syndicate")},
    {"SyndicatesDelete", QT_TRANSLATE_NOOP("MainMenu", "Delete syndicate")},
    {"SyndicateManager", QT_TRANSLATE_NOOP("MainMenu", "View manager")},
    {"SyndicateMembers", QT_TRANSLATE_NOOP("MainMenu", "View members")},
    {"SyndicatePayments", QT_TRANSLATE_NOOP("MainMenu", "View payments")},
    {"SyndicatesNotes", QT_TRANSLATE_NOOP("MainMenu", "Notes and checklist")},
});

constexpr auto helpEntries = std::to_array<EntryText>({
    {"HelpNewVersion", QT_TRANSLATE_NOOP("MainMenu", "Check for new version")},
    {"HelpHelp", QT_TRANSLATE_NOOP("MainMenu", "Help and tips")},
    {"HelpLotteryInfo", QT_TRANSLATE_NOOP("MainMenu", "Lottery information")},
    {"HelpWebSite", QT_TRANSLATE_NOOP("MainMenu", "Lottery Quillon website")},
    {"HelpBackupSite", QT_TRANSLATE_NOOP("MainMenu", "Alternative website")},
    {"HelpEmail", QT_TRANSLATE_NOOP("MainMenu", "Email technical support")},
    {"HelpAbout", QT_TRANSLATE_NOOP("MainMenu", "About...")},
});

struct MenuText {
    const char* name;
    const char* caption;
    std::span<const EntryText> entries;  // none: the links
};

constexpr auto menus = std::to_array<MenuText>({
    {"FileMenu", QT_TRANSLATE_NOOP("MainMenu", " &File"), fileEntries},
    {"wDatabase", QT_TRANSLATE_NOOP("MainMenu", " &Databases"), databaseEntries},
    {"AnalysisMenu", QT_TRANSLATE_NOOP("MainMenu", " &Analyse"), analysisEntries},
    {"PlayMenu", QT_TRANSLATE_NOOP("MainMenu", " &Play"), playEntries},
    {"SyndicatesMenu", QT_TRANSLATE_NOOP("MainMenu", " &Syndicates"), syndicateEntries},
    {"LinksMenu", QT_TRANSLATE_NOOP("MainMenu", " &WebLinks"), {}},
    {"HelpMenu", QT_TRANSLATE_NOOP("MainMenu", " &Help"), helpEntries},
});

}  // namespace

MainMenu::MainMenu(QWidget* parent) : QMenuBar(parent) {
    for (const MenuText& text : menus) {
        QMenu* menu = Named(addMenu(tr(text.caption)), QString::fromLatin1(text.name));
        if (text.entries.empty()) AddLinks(menu);
        for (const EntryText& entry : text.entries) {
            Add(menu, QString::fromLatin1(entry.name), tr(entry.caption));
        }
    }
}

QAction* MainMenu::Entry(const QString& name) const {
    QAction* entry = entries_.value(name);
    if (entry == nullptr) {
        throw Failure("The menu has no entry \"" + FromQString(name) + "\".");
    }
    return entry;
}

void MainMenu::Answer(const QString& name, const std::function<void()>& handler) {
    QAction* entry = Entry(name);
    entry->setEnabled(true);
    connect(entry, &QAction::triggered, this, handler);
}

void MainMenu::ShowLinks(const State& state) {
    for (int i = 0; i < setting::links; ++i) {
        const QString caption = ToQString(state.Settings(setting::LinkCaptions + i));
        QAction* entry = Entry(Member(QStringLiteral("LinksLink"), i));
        entry->setVisible(!caption.isEmpty());
        if (!caption.isEmpty()) entry->setText(ShownCaption(caption));
    }
}

QAction* MainMenu::Add(QMenu* menu, const QString& name, const QString& caption) {
    QAction* entry = Named(menu->addAction(caption), name);
    entry->setEnabled(false);
    // The desktop must not move "Preferences" or "Exit" to a menu of its own.
    entry->setMenuRole(QAction::NoRole);
    entries_.insert(name, entry);
    return entry;
}

void MainMenu::AddLinks(QMenu* menu) {
    for (int i = 0; i < linkCount; ++i) {
        Add(menu, Member(QStringLiteral("LinksLink"), i), tr("Link"));
    }
}
