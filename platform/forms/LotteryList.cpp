// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/LotteryList.h"

#include <QCoreApplication>
#include <optional>

#include "core/database_summary.h"
#include "core/draw_database.h"
#include "core/failure.h"
#include "core/text.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Readable.h"

namespace {

QString tr(const char* text) { return QCoreApplication::translate("LotteryList", text); }

QString DrawsInWords(int draws) {
    if (draws == 0) return tr("no draws");
    if (draws == 1) return tr("1 draw");
    return tr("%1 draws").arg(ToQString(GroupedDigits(draws)));
}

QString Period(Date oldest, Date newest) {
    const QString end = ToQString(DrawDate(newest));
    if (oldest == newest) return end;
    return tr("%1 to %2").arg(ToQString(DrawDate(oldest)), end);
}

/// As far as it can be read: no file ends the run because somebody looks at its name.
std::optional<DatabaseSummary> SummaryWhereReadable(const Program& program,
                                                    const std::string& file) {
    const Services& services = program.services;
    try {
        if (!program.folder.Exists(file)) return std::nullopt;
        return SummaryOf(program.folder, file, services.region, services.today());
    } catch (const Failure&) {
        return std::nullopt;
    }
}

}  // namespace

QString DatabaseInWords(const Program& program, const std::string& file) {
    const std::optional<DatabaseSummary> found = SummaryWhereReadable(program, file);
    if (!found) return ToQString(file);
    const DatabaseSummary& summary = *found;
    QStringList words = {Readable(ToQString(summary.lottery)), ToQString(file),
                         DrawsInWords(summary.draws)};
    if (summary.oldest && summary.newest) words += Period(*summary.oldest, *summary.newest);
    return words.join(QStringLiteral(", "));
}

void ListDatabases(Program& program, ListBox& list) {
    for (const std::string& name : ListDatabases(program.state, program.folder)) {
        list.addItem(ToQString(name));
    }
    list.SetTips([&program](int row) {
        return DatabaseInWords(program, View(program.state).DbaseFiles(row));
    });
    list.SetIndex(-1);
}

void ChooseFirstLottery(ListBox& list) {
    if (list.count() == 0) {
        throw Failure(
            "There is no lottery to choose: no draw database (dbase*.txt) was found in the "
            "program's folder. Start the program again and make one with Databases, Create lottery "
            "database, or put one there.");
    }
    list.SetIndex(0);
}
