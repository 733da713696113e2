// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/form_catalogue.h"

#include <QAbstractButton>
#include <algorithm>
#include <array>

#include "analysis/AAverages.h"
#include "analysis/ACommonNumbers.h"
#include "analysis/ANumberStats.h"
#include "analysis/AOddEven.h"
#include "analysis/ARange.h"
#include "analysis/ASums.h"
#include "analysis/Biorhythm.h"
#include "analysis/WhatIf.h"
#include "databases/CreateDbase.h"
#include "databases/DbaseUpdate.h"
#include "databases/DbaseUpdateUS.h"
#include "databases/DbaseUpdateW.h"
#include "databases/DeleteDbaseW.h"
#include "databases/HistoryW.h"
#include "databases/ImportDraws.h"
#include "databases/OpenDbase.h"
#include "entries/SaveEntries.h"
#include "entries/ShowMyDrawsW.h"
#include "entries/StoreMyDrawsW.h"
#include "play/KeyNumbersForm.h"
#include "play/PAverage.h"
#include "play/PFullSel.h"
#include "play/PHotNumbers.h"
#include "play/PLuckyDip.h"
#include "play/PLuckyNumbers.h"
#include "play/PStarSign.h"
#include "printing/PrintFrm.h"
#include "printing/PrintSelection.h"
#include "printing/PrintSetup.h"
#include "printing/PrintTickets.h"
#include "printing/PrinterCorrection.h"
#include "shell/About.h"
#include "shell/Backup.h"
#include "shell/LotteryInfo.h"
#include "shell/Preferences.h"
#include "syndicates/DeleteSyndicate.h"
#include "syndicates/NewSyndicate.h"
#include "syndicates/OpenSyndicate.h"
#include "syndicates/SManager.h"
#include "syndicates/SMembers.h"
#include "syndicates/SNotes.h"
#include "syndicates/SPayments.h"
#include "wheels/PBudgetWheel.h"
#include "wheels/PDIYWheels.h"
#include "wheels/PGuaranteed.h"
#include "wheels/PHotWheels.h"
#include "wheels/PThreeMatch.h"
#include "wheels/PWheel2.h"
#include "wheels/PWheel3.h"
#include "wheels/Wheel49.h"

namespace {

template <typename FormType>
std::unique_ptr<Form> Make(Program& program, QWidget* parent) {
    return std::make_unique<FormType>(program, parent);
}

/// The forms with two modes, hot and cold or three and four matches, all name the second one so.
void SelectSecondOption(Form& form) {
    if (auto* option = form.findChild<QAbstractButton*>(QStringLiteral("Option1(1)"))) {
        option->click();
    }
}

constexpr auto catalogue = std::to_array<CatalogueEntry>({
    {.menuEntry = "FileBackup", .form = "Backup", .make = Make<Backup>, .changesDatabases = true},
    {.menuEntry = "FileDelete",
     .form = "DeleteDbaseW",
     .make = Make<DeleteDbaseW>,
     .changesDatabases = true},
    {.menuEntry = "FileOpen", .form = "OpenDbase", .make = Make<OpenDbase>},
    {.menuEntry = "FilePreferences",
     .form = "Preferences",
     .make = Make<Preferences>,
     .changesSettings = true},
    {.menuEntry = "FilePrintSetup", .form = "PrintSetup", .make = Make<PrintSetup>},

    {.menuEntry = "DatabasesCreate",
     .form = "CreateDbase",
     .make = Make<CreateDbase>,
     .changesDatabases = true},
    {.menuEntry = "wUpdateDbase", .form = "DbaseUpdateW", .make = Make<DbaseUpdateW>},
    {.menuEntry = "wDatabaseView", .form = "HistoryW", .make = Make<HistoryW>},
    {.menuEntry = "DatabaseUS",
     .form = "DbaseUpdateUS",
     .make = Make<DbaseUpdateUS>,
     .changesDatabases = true},
    {.menuEntry = "DatabaseUpdate",
     .form = "DbaseUpdate",
     .make = Make<DbaseUpdate>,
     .changesDatabases = true},
    {.menuEntry = "DatabaseCheck",
     .form = "ShowMyDrawsW",
     .make = Make<ShowMyDrawsW>,
     .needsSavedEntries = true},
    {.menuEntry = "DatabaseViewCheck",
     .form = "ShowMyDrawsW",
     .make = Make<ShowMyDrawsW>,
     .needsSavedEntries = true},
    {.menuEntry = "DatabaseStoreDrawsW", .form = "StoreMyDrawsW", .make = Make<StoreMyDrawsW>},
    {.menuEntry = "DatabaseImport",
     .form = "ImportDraws",
     .make = Make<ImportDraws>,
     .changesDatabases = true},

    {.menuEntry = "AnalysisCommon", .form = "ACommonNumbers", .make = Make<ACommonNumbers>},
    {.menuEntry = "AnalyseColdNums",
     .form = "ACommonNumbers",
     .make = Make<ACommonNumbers>,
     .prepare = SelectSecondOption},
    {.menuEntry = "AnalysisSums", .form = "ASums", .make = Make<ASums>},
    {.menuEntry = "AnalyseLowHigh", .form = "ASums", .make = Make<ASums>},
    {.menuEntry = "AnalysisAverages", .form = "AAverages", .make = Make<AAverages>},
    {.menuEntry = "AnalyseRange", .form = "ARange", .make = Make<ARange>},
    {.menuEntry = "AnalyseNumStats", .form = "ANumberStats", .make = Make<ANumberStats>},
    {.menuEntry = "AnalyseOddEven", .form = "AOddEven", .make = Make<AOddEven>},
    {.menuEntry = "AnalyseBiorhythms", .form = "Biorhythm", .make = Make<Biorhythm>},
    {.menuEntry = "AnalyseWhatIf", .form = "WhatIf", .make = Make<WhatIf>},

    {.menuEntry = "PlayAverages", .form = "PAverage", .make = Make<PAverage>},
    {.menuEntry = "PlayFullSel", .form = "PFullSel", .make = Make<PFullSel>},
    {.menuEntry = "PlayColdNums",
     .form = "PHotNumbers",
     .make = Make<PHotNumbers>,
     .prepare = SelectSecondOption},
    {.menuEntry = "PlayHot", .form = "PHotNumbers", .make = Make<PHotNumbers>},
    {.menuEntry = "PlayLuckyDip", .form = "PLuckyDip", .make = Make<PLuckyDip>},
    {.menuEntry = "Play1Key", .form = "P1Key", .make = Make<P1Key>},
    {.menuEntry = "Play2Key", .form = "P2KeyNum", .make = Make<P2KeyNum>},
    {.menuEntry = "Play3Key", .form = "P3KeyNum", .make = Make<P3KeyNum>},
    {.menuEntry = "PlayBudgetWheels", .form = "PBudgetWheel", .make = Make<PBudgetWheel>},
    {.menuEntry = "PlayColdWheels",
     .form = "PHotWheels",
     .make = Make<PHotWheels>,
     .prepare = SelectSecondOption},
    {.menuEntry = "PlayDIYWheels", .form = "PDIYWheels", .make = Make<PDIYWheels>},
    {.menuEntry = "PlayGuarantee3", .form = "PThreeMatch", .make = Make<PThreeMatch>},
    {.menuEntry = "PlayGuarantee4",
     .form = "PThreeMatch",
     .make = Make<PThreeMatch>,
     .prepare = SelectSecondOption,
     .messageRuns = 0},
    {.menuEntry = "PlayGuaranteed", .form = "PGuaranteed", .make = Make<PGuaranteed>},
    {.menuEntry = "PlayHotWheels", .form = "PHotWheels", .make = Make<PHotWheels>},
    {.menuEntry = "PlayWheel49", .form = "Wheel49", .make = Make<Wheel49>},
    {.menuEntry = "PlayWheel2", .form = "PWheel2", .make = Make<PWheel2>},
    {.menuEntry = "PlayWheel3", .form = "PWheel3", .make = Make<PWheel3>},
    {.menuEntry = "PlayStarSign", .form = "PStarSign", .make = Make<PStarSign>},
    {.menuEntry = "PlayLucky", .form = "PLuckyNumbers", .make = Make<PLuckyNumbers>},

    {.menuEntry = "SyndicateNew",
     .form = "NewSyndicate",
     .make = Make<NewSyndicate>,
     .changesSyndicate = true},
    {.menuEntry = "SyndicateOpen",
     .form = "OpenSyndicate",
     .make = Make<OpenSyndicate>,
     .changesSyndicate = true},
    {.menuEntry = "SyndicatesDelete",
     .form = "DeleteSyndicate",
     .make = Make<DeleteSyndicate>,
     .changesSyndicate = true},
    {.menuEntry = "SyndicateManager",
     .form = "SManager",
     .make = Make<SManager>,
     .changesSyndicate = true},
    {.menuEntry = "SyndicateMembers", .form = "SMembers", .make = Make<SMembers>},
    {.menuEntry = "SyndicatePayments", .form = "SPayments", .make = Make<SPayments>},
    {.menuEntry = "SyndicatesNotes", .form = "SNotes", .make = Make<SNotes>},

    {.menuEntry = "HelpLotteryInfo", .form = "LotteryInfo", .make = Make<LotteryInfo>},
    {.menuEntry = "HelpAbout", .form = "About", .make = Make<About>},

    {.menuEntry = "", .form = "PrintTickets", .make = Make<PrintTickets>},
    {.menuEntry = "", .form = "PrinterCorrection", .make = Make<PrinterCorrection>},
    {.menuEntry = "", .form = "SaveEntries", .make = Make<SaveEntries>},
    {.menuEntry = "", .form = "PrintFrm", .make = Make<PrintFrm>},
    {.menuEntry = "", .form = "PrintSelection", .make = Make<PrintSelection>},
});

}  // namespace

std::span<const CatalogueEntry> FormCatalogue() { return catalogue; }

const CatalogueEntry* FindCatalogueEntry(const QString& menuEntry) {
    const auto* found = std::ranges::find_if(catalogue, [&](const CatalogueEntry& entry) {
        return menuEntry == QLatin1String(entry.menuEntry);
    });
    return found == catalogue.end() ? nullptr : found;
}
