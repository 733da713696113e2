// SPDX-License-Identifier: GPL-3.0-or-later
// What an import would do to the lotteries, and how it is done.
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include "core/old_files.h"
#include "databases/ImportDraws.h"
#include "databases/ImportDrawsPage.h"
#include "databases/ImportLeftOutPage.h"
#include "databases/ImportTarget.h"
#include "databases/ImportWords.h"
#include "databases/new_database.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/TextConversion.h"

namespace {

constexpr std::size_t mostLotteries = 76;

}  // namespace

// The button says what a click on it does.
void ImportDraws::ShowEffect() {
    merged_.reset();
    bool possible = session_.HasDraws();
    QString effect;
    QString caption = tr("Import draws");
    if (possible && target_->IsNew()) {
        effect = EffectOfNew(session_.NewLotteries(FromQString(target_->Name())), possible);
        caption = tr("Import %1").arg(DrawsInWords(session_.Taken().draws.size()));
    } else if (possible) {
        merged_ = session_.MergeInto(folder(), target_->Database());
        effect = MergeInWords(*merged_);
        possible = merged_->added > 0;
        if (possible) {
            caption = tr("Add %1").arg(DrawsInWords(static_cast<std::size_t>(merged_->added)));
        }
    }
    target_->ShowEffect(effect);
    drawsPage_->OfferEach(target_->IsNew());
    import_->setText(caption);
    import_->setEnabled(possible);
    NameLeftOut();
}

QString ImportDraws::EffectOfNew(const std::vector<PlannedLottery>& lotteries,
                                 bool& possible) const {
    possible = false;
    const QString name = target_->Name();
    if (name.isEmpty()) return tr("Give the lottery a name.");
    if (name.contains(QLatin1Char(','))) {
        return tr(
            "Give the lottery a name without a comma, which the file of your entries has no "
            "room for.");
    }
    if (folder().Find("dbase*.txt").size() + lotteries.size() > mostLotteries) {
        return tr("There is room for %1 lotteries. Delete one first.").arg(mostLotteries);
    }
    possible = true;
    const QString effect = NewInWords(lotteries);
    if (target_->Named(FromQString(name)) == nullptr) return effect;
    return effect % tr(" You have a lottery of that name already, which stays as it is.");
}

// Headings and lines between the draws are left out as a matter of course.
void ImportDraws::NameLeftOut() {
    constexpr int leftOutTab = 2;
    if (!session_.HasRows()) return;
    const int notable = leftOutPage_->Show(session_, merged_ ? &*merged_ : nullptr);
    pages_->setTabText(leftOutTab,
                       notable == 0 ? tr("&Left out") : tr("&Left out (%1)").arg(notable));
}

void ImportDraws::Import() {
    const Hourglass hourglass;
    const QString done = target_->IsNew() ? MakeLotteries() : AddToLottery();
    OfferLotteries();
    OfferAddresses();
    ShowEffect();
    Say(done);
}

QString ImportDraws::MakeLotteries() {
    const std::vector<PlannedLottery> lotteries =
        session_.NewLotteries(FromQString(target_->Name()));
    std::vector<std::string> files;
    std::size_t draws = 0;
    for (const PlannedLottery& lottery : lotteries) {
        files.push_back(CreateDatabase(lottery));
        draws += lottery.draws.size();
    }
    RememberInto(files.front());
    const QString name = target_->Name();
    OfferLotteries();
    target_->ProposeExisting(files.front());
    if (files.size() > 1) {
        return tr("%1 in %2 new lotteries").arg(DrawsInWords(draws)).arg(files.size());
    }
    return tr("New lottery %1 with %2").arg(name, DrawsInWords(draws));
}

std::string ImportDraws::CreateDatabase(const PlannedLottery& lottery) {
    // A lottery's second line is where its results are, as far as that is known.
    const std::string address = session_.FormatInto({}).IsAddress() ? session_.Source() : "";
    return CreateDatabaseFile(folder(), NewImportDatabase(lottery.name, address, lottery.rules,
                                                          lottery.draws, services().today()));
}

// The draws are counted afresh, as the file may have changed since they were shown.
QString ImportDraws::AddToLottery() {
    const std::string file = target_->Database();
    const MergedDatabase merged = session_.MergeInto(folder(), file);
    try {
        KeepOld(folder(), file);
    } catch (const Failure& failure) {
        throw AfterRescue(folder(), file, merged.bytes, failure);
    }
    folder().Write(file, merged.bytes);
    RememberInto(file);
    return tr("%1 added to %2")
        .arg(DrawsInWords(static_cast<std::size_t>(merged.added)), target_->LotteryName());
}

void ImportDraws::RememberInto(const std::string& database) {
    ReadFormats();
    Remember(formats_, session_.FormatInto(database));
    WriteKeepingOld(folder(), importFormatsFile, ImportFormatsText(formats_));
}
