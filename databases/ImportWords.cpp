// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/ImportWords.h"

#include <QCoreApplication>

#include "core/text.h"
#include "platform/system/TextConversion.h"

namespace {

QString tr(const char* text) { return QCoreApplication::translate("ImportWords", text); }

QString Number(std::size_t count) {
    return count == 0 ? QStringLiteral("0")
                      : ToQString(GroupedDigits(static_cast<long long>(count)));
}

QString Number(int count) { return Number(static_cast<std::size_t>(count)); }

}  // namespace

QString DrawsInWords(std::size_t draws) {
    return draws == 1 ? tr("1 draw") : tr("%1 draws").arg(Number(draws));
}

QString DayInWords(Date date) { return ToQString(FullDate(date)); }

QStringList RoleWords() {
    return {tr("not used"),        tr("Date"),  tr("Number"),
            tr("Several numbers"), tr("Extra"), tr("Extra, not kept")};
}

QString TakenInWords(const ImportSession& session) {
    const std::vector<ImportedDraw>& draws = session.Taken().draws;
    if (draws.empty()) return {};
    const ImportRules rules = RulesOf(draws, session.Mapping().extraFromSameDrum);
    const QString newest = DayInWords(draws.front().date);
    const QString oldest = DayInWords(draws.back().date);
    return tr("%1, %2 to %3: %4.")
        .arg(DrawsInWords(draws.size()), oldest, newest, ToQString(RulesInWords(rules)));
}

QString RemarksOf(const ImportSession& session) {
    QStringList remarks;
    if (session.IsRemembered()) {
        remarks += tr("Read as the last time.");
    } else {
        for (const ImportNote& note : session.Proposal().notes) {
            if (note.guess) remarks += tr("Please check: %1").arg(ToQString(note.text));
        }
    }
    for (const ImportNote& note : session.Proposal().notes) {
        const bool tells = note.topic == ImportTopic::Extra ||
                           note.topic == ImportTopic::SameDate ||
                           note.topic == ImportTopic::Product;
        if (tells && !note.guess) remarks += ToQString(note.text);
    }
    const ImportRules rules = RulesOf(session.Taken().draws, session.Mapping().extraFromSameDrum);
    const std::string caution = CautionAbout(rules);
    if (!caution.empty()) remarks += ToQString(caution);
    if (session.TooMany() > 0) {
        remarks += tr("The oldest %1 are left out: a lottery has room for %2.")
                       .arg(DrawsInWords(static_cast<std::size_t>(session.TooMany())),
                            Number(mostImportedDraws));
    }
    if (session.Table().IsCut()) {
        remarks += tr("Only the first %1 rows are read. Where newer draws stand behind them, save "
                      "those as a file of their own.")
                       .arg(Number(ImportTable::mostRows));
    }
    return remarks.join(QLatin1Char('\n'));
}

QString NewInWords(const std::vector<PlannedLottery>& lotteries) {
    QStringList words;
    for (const PlannedLottery& lottery : lotteries) {
        words += tr("\"%1\" with %2, %3")
                     .arg(ToQString(lottery.name), DrawsInWords(lottery.draws.size()),
                          ToQString(RulesInWords(lottery.rules)));
    }
    if (words.size() == 1) return tr("Makes the lottery %1.").arg(words.first());
    return tr("Makes %1 lotteries: %2.")
        .arg(QString::number(words.size()), words.join(QStringLiteral("; ")));
}

QString MergeInWords(const MergedDatabase& merged) {
    QStringList words;
    words += merged.added == 0
                 ? tr("Adds nothing")
                 : tr("Adds %1").arg(DrawsInWords(static_cast<std::size_t>(merged.added)));
    if (merged.there > 0) words += tr("%1 there already").arg(Number(merged.there));
    if (!merged.conflicts.empty()) {
        words += tr("%1 with other numbers there, which stay").arg(Number(merged.conflicts.size()));
    }
    if (!merged.unfit.empty()) {
        words += tr("%1 against the lottery's rules, not added").arg(Number(merged.unfit.size()));
    }
    if (merged.tooMany > 0) words += tr("%1 too old to have room").arg(Number(merged.tooMany));
    const bool listed = !merged.conflicts.empty() || !merged.unfit.empty();
    return words.join(QStringLiteral("; ")) % QLatin1Char('.') %
           (listed ? tr(" They are listed under Left out.") : QString());
}
