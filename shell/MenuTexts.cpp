// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MenuTexts.h"

#include <QtGlobal>
#include <array>

namespace {

constexpr auto fileEntries = std::to_array<EntryText>({
    {"FileCopyToA", QT_TRANSLATE_NOOP("MainMenu", "Copy data files to floppy"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Copies your databases, entries, settings and syndicates to a disk that you "
                       "can take along.")},
    {"FileCopyFromA", QT_TRANSLATE_NOOP("MainMenu", "Copy data files from floppy"),
     QT_TRANSLATE_NOOP("MainMenu", "Brings the data files back from such a disk.")},
    {"FileBackup", QT_TRANSLATE_NOOP("MainMenu", "Backup and Restore data"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Copies your data files to the folder Backup, or back from there, one by "
                       "one or all at once.")},
    {"FileDelete", QT_TRANSLATE_NOOP("MainMenu", "Delete lottery database"),
     QT_TRANSLATE_NOOP("MainMenu", "Deletes a lottery with all its draws, after a question.")},
    {"FileDeleteSaved", QT_TRANSLATE_NOOP("MainMenu", "Delete saved lottery entries"),
     QT_TRANSLATE_NOOP("MainMenu", "Deletes all entries that you have saved, after a question.")},
    {"FileNotes", QT_TRANSLATE_NOOP("MainMenu", "Show/Hide info panels"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Biochart, checklist, databases, syndicate and notes: there or away.")},
    {"FileOpen", QT_TRANSLATE_NOOP("MainMenu", "Open lottery data in Notepad"),
     QT_TRANSLATE_NOOP("MainMenu", "Opens a lottery's file in your text editor.")},
    {"FilePreferences", QT_TRANSLATE_NOOP("MainMenu", "Preferences"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "How strict the filters are, colours and pictures, and your web links.")},
    {"FilePrintSetup", QT_TRANSLATE_NOOP("MainMenu", "Print setup"),
     QT_TRANSLATE_NOOP("MainMenu", "Measures a paper slip, so that entries can be marked on it.")},
    {"FileExit", QT_TRANSLATE_NOOP("MainMenu", "Exit"),
     QT_TRANSLATE_NOOP("MainMenu", "Saves notes and settings and ends the program."), "Ctrl+Q"},
});

constexpr auto databaseEntries = std::to_array<EntryText>({
    {"DatabasesCreate", QT_TRANSLATE_NOOP("MainMenu", "Create  lottery database"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Sets up a lottery, from a template or by hand, with its first draw.")},
    {"wUpdateDbase", QT_TRANSLATE_NOOP("MainMenu", "Update lottery database"),
     QT_TRANSLATE_NOOP("MainMenu", "Adds a draw to a lottery; it goes to the place of its date.")},
    {"wDatabaseView", QT_TRANSLATE_NOOP("MainMenu", "View lottery databases"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Shows all draws of a lottery; put one right, delete one, or print them.")},
    {"DatabaseUS", QT_TRANSLATE_NOOP("MainMenu", "Download US lottery results"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Fetches the draws of Mega Millions and Powerball from the web.")},
    {"DatabaseUpdate", QT_TRANSLATE_NOOP("MainMenu", "Download UK lottery results"),
     QT_TRANSLATE_NOOP("MainMenu", "Fetches the draws of the five UK lotteries from the web.")},
    {"DatabaseCheck", QT_TRANSLATE_NOOP("MainMenu", "Check my lottery entries"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Says what your saved entries matched in the draws of their dates.")},
    {"DatabaseViewCheck", QT_TRANSLATE_NOOP("MainMenu", "Show my lottery entries"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Shows your saved entries, to sort, edit, delete or check them.")},
    {"DatabaseStoreDrawsW", QT_TRANSLATE_NOOP("MainMenu", "Store my lottery entries"),
     QT_TRANSLATE_NOOP("MainMenu", "Takes entries that you have bought elsewhere.")},
    {.name = "DatabaseImport",
     .caption = QT_TRANSLATE_NOOP("MainMenu", "Import draws..."),
     .toolTip = QT_TRANSLATE_NOOP(
         "MainMenu",
         "Makes a lottery of any results file, table or web page, or adds its newest draws."),
     .startsGroup = true},
});

constexpr auto analysisEntries = std::to_array<EntryText>({
    {"AnalysisCommon", QT_TRANSLATE_NOOP("MainMenu", "Hot numbers"),
     QT_TRANSLATE_NOOP(
         "MainMenu",
         "Charts how often each number was drawn, and names the ten drawn most often.")},
    {"AnalyseColdNums", QT_TRANSLATE_NOOP("MainMenu", "Cold numbers"),
     QT_TRANSLATE_NOOP(
         "MainMenu",
         "Charts how often each number was drawn, and names the ten drawn least often.")},
    {"AnalysisSums", QT_TRANSLATE_NOOP("MainMenu", "Draw sums"),
     QT_TRANSLATE_NOOP(
         "MainMenu",
         "Charts the sums of the last 50 draws, with the smallest, largest and average.")},
    {"AnalyseLowHigh", QT_TRANSLATE_NOOP("MainMenu", "High/low numbers"),
     QT_TRANSLATE_NOOP("MainMenu", "Charts how many low and high numbers the draws had.")},
    {"AnalysisAverages", QT_TRANSLATE_NOOP("MainMenu", "Number averages"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Charts the average of the first, second and each further number of the "
                       "draws in ascending order.")},
    {"AnalyseRange", QT_TRANSLATE_NOOP("MainMenu", "Number range"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Charts how far apart the lowest and the highest number of a draw lie.")},
    {"AnalyseNumStats", QT_TRANSLATE_NOOP("MainMenu", "Number statistics"),
     QT_TRANSLATE_NOOP(
         "MainMenu",
         "Tells for each number when it was last drawn, how often, and the average gap.")},
    {"AnalyseOddEven", QT_TRANSLATE_NOOP("MainMenu", "Odd/Even ratio"),
     QT_TRANSLATE_NOOP("MainMenu", "Charts how many odd and even numbers the draws had.")},
    {"AnalyseBiorhythms", QT_TRANSLATE_NOOP("MainMenu", "Biorhythms"),
     QT_TRANSLATE_NOOP("MainMenu", "Charts seven cycles from your date of birth over four weeks.")},
    {"AnalyseWhatIf", QT_TRANSLATE_NOOP("MainMenu", "What if...?"),
     QT_TRANSLATE_NOOP("MainMenu", "Plays a set of entries back against every draw of a lottery.")},
});

constexpr auto playEntries = std::to_array<EntryText>({
    {"PlayAverages", QT_TRANSLATE_NOOP("MainMenu", "Averages"),
     QT_TRANSLATE_NOOP(
         "MainMenu",
         "Lines close to the average draw: each number an average of the draws, give or take 1.")},
    {"PlayFullSel", QT_TRANSLATE_NOOP("MainMenu", "Full selection"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Every number of the lottery once, shuffled and dealt into lines.")},
    {"PlayColdNums", QT_TRANSLATE_NOOP("MainMenu", "Cold Numbers"),
     QT_TRANSLATE_NOOP("MainMenu", "Ten lines of the ten numbers that were drawn least often.")},
    {"PlayHot", QT_TRANSLATE_NOOP("MainMenu", "Hot numbers"),
     QT_TRANSLATE_NOOP("MainMenu", "Ten lines of the ten numbers that were drawn most often.")},
    {"PlayLuckyDip", QT_TRANSLATE_NOOP("MainMenu", "Lucky dip"),
     QT_TRANSLATE_NOOP("MainMenu", "Lines of random numbers, under conditions of your choice.")},
    {"Play1Key", QT_TRANSLATE_NOOP("MainMenu", "One key number"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "A number of yours in every line, all the others dealt around it.")},
    {"Play2Key", QT_TRANSLATE_NOOP("MainMenu", "Two key numbers"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Two numbers of yours in every line, all the others dealt around them.")},
    {"Play3Key", QT_TRANSLATE_NOOP("MainMenu", "Three key numbers"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Three numbers of yours in every line, all the others dealt around them.")},
    {"PlayBudgetWheels", QT_TRANSLATE_NOOP("MainMenu", "Budget wheels"),
     QT_TRANSLATE_NOOP("MainMenu", "Up to 18 numbers in very few lines, without a guarantee.")},
    {"PlayColdWheels", QT_TRANSLATE_NOOP("MainMenu", "ColdWheels"),
     QT_TRANSLATE_NOOP("MainMenu", "Wheels the numbers that were drawn least often.")},
    {"PlayDIYWheels", QT_TRANSLATE_NOOP("MainMenu", "Create-a-wheel"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Wheels 8 to 20 numbers of yours at an interval of your choice.")},
    {"PlayGuarantee3", QT_TRANSLATE_NOOP("MainMenu", "Guaranteed 3-match"),
     QT_TRANSLATE_NOOP(
         "MainMenu", "Small wheels that promise three matches if enough of your numbers come up.")},
    {"PlayGuarantee4", QT_TRANSLATE_NOOP("MainMenu", "Guaranteed 4-match"),
     QT_TRANSLATE_NOOP(
         "MainMenu", "Small wheels that promise four matches if enough of your numbers come up.")},
    {"PlayGuaranteed", QT_TRANSLATE_NOOP("MainMenu", "Guaranteed win wheels"),
     QT_TRANSLATE_NOOP(
         "MainMenu",
         "Large wheels of the numbers that you mark on a board, with a promised match.")},
    {"PlayHotWheels", QT_TRANSLATE_NOOP("MainMenu", "Hot wheels"),
     QT_TRANSLATE_NOOP("MainMenu", "Wheels the numbers that were drawn most often.")},
    {"PlayWheel49", QT_TRANSLATE_NOOP("MainMenu", "Wheel 49"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "All numbers from 1 to 49 in 175 lines, made for three matches.")},
    {"PlayWheel2", QT_TRANSLATE_NOOP("MainMenu", "Wheeling pairs"),
     QT_TRANSLATE_NOOP("MainMenu", "Plays up to nine pairs of numbers, each with the others.")},
    {"PlayWheel3", QT_TRANSLATE_NOOP("MainMenu", "Wheeling triplets"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Plays up to eight groups of three numbers, each with the others.")},
    {"PlayStarSign", QT_TRANSLATE_NOOP("MainMenu", "Astrology"),
     QT_TRANSLATE_NOOP(
         "MainMenu", "Lucky numbers from your star sign, your birthday and the date of the draw.")},
    {"PlayLucky", QT_TRANSLATE_NOOP("MainMenu", "Numerology"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Lucky numbers from your name and birth date, always the same ones.")},
});

constexpr auto syndicateEntries = std::to_array<EntryText>({
    {"SyndicateNew", QT_TRANSLATE_NOOP("MainMenu", "New syndicate"),
     QT_TRANSLATE_NOOP("MainMenu", "Starts a syndicate with its name and manager.")},
    {"SyndicateOpen", QT_TRANSLATE_NOOP("MainMenu", "Open syndicate"),
     QT_TRANSLATE_NOOP("MainMenu", "Chooses the syndicate to work with.")},
    {"SyndicatesDelete", QT_TRANSLATE_NOOP("MainMenu", "Delete syndicate"),
     QT_TRANSLATE_NOOP("MainMenu", "Deletes a syndicate with its members and diary.")},
    {"SyndicateManager", QT_TRANSLATE_NOOP("MainMenu", "View manager"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "The syndicate's details, and its diary of tickets, costs and winnings.")},
    {"SyndicateMembers", QT_TRANSLATE_NOOP("MainMenu", "View members"),
     QT_TRANSLATE_NOOP("MainMenu", "Adds, changes, sorts and prints the members.")},
    {"SyndicatePayments", QT_TRANSLATE_NOOP("MainMenu", "View payments"),
     QT_TRANSLATE_NOOP("MainMenu", "How each member pays, and up to which date each has paid.")},
    {"SyndicatesNotes", QT_TRANSLATE_NOOP("MainMenu", "Notes and checklist"),
     QT_TRANSLATE_NOOP("MainMenu", "A note pad and a checklist for managers.")},
});

constexpr auto helpEntries = std::to_array<EntryText>({
    {"HelpNewVersion", QT_TRANSLATE_NOOP("MainMenu", "Check for new version"),
     QT_TRANSLATE_NOOP("MainMenu",
                       "Asks the program's web site whether there is a newer version.")},
    {"HelpHelp", QT_TRANSLATE_NOOP("MainMenu", "Help and tips"),
     QT_TRANSLATE_NOOP("MainMenu", "Opens the help pages."), "F1"},
    {"HelpLotteryInfo", QT_TRANSLATE_NOOP("MainMenu", "Lottery information"),
     QT_TRANSLATE_NOOP("MainMenu", "What is good to know about lotteries.")},
    {"HelpWebSite", QT_TRANSLATE_NOOP("MainMenu", "Lottery Quillon website"),
     QT_TRANSLATE_NOOP("MainMenu", "Opens the program's web site.")},
    {"HelpBackupSite", QT_TRANSLATE_NOOP("MainMenu", "Alternative website"),
     QT_TRANSLATE_NOOP("MainMenu", "Opens the other web site of the program.")},
    {"HelpEmail", QT_TRANSLATE_NOOP("MainMenu", "Email technical support"),
     QT_TRANSLATE_NOOP("MainMenu", "Writes a letter to the program's makers.")},
    {"HelpAbout", QT_TRANSLATE_NOOP("MainMenu", "About..."),
     QT_TRANSLATE_NOOP("MainMenu", "Version and makers of the program.")},
});

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

std::span<const MenuText> MenuTexts() { return menus; }
