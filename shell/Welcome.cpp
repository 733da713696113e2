// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Welcome.h"

#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Readable.h"
#include "platform/widgets/Widgets.h"
#include "shell/Sheet.h"
#include "shell/WelcomeLink.h"

namespace {

constexpr qsizetype longestName = 32;

QString Shortened(const QString& name) {
    return name.size() <= longestName ? name : name.left(longestName - 1) + QChar(0x2026);
}

/// "11 Jun 2025".
QString ShownDate(Date date) {
    return ToQString(MediumDate(date)).replace(QLatin1Char('-'), QLatin1Char(' '));
}

}  // namespace

Welcome::Welcome(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(2);
    layout->addWidget(MakeTitle(QStringLiteral("WelcomeTitle"), tr("Good luck!"), this));
    layout->addWidget(MakeLabel(
        QStringLiteral("WelcomeLine"),
        tr("Every method of play is in the menu above, and F1 helps in every window. To begin:"),
        this));
    layout->addSpacing(8);
    setUp_ =
        AddStep("DatabasesCreate", "toolbar02", tr("Set up your lottery"),
                tr("From one of over a hundred templates, or tell how many numbers are drawn"));
    addDraw_ = AddLink("wUpdateDbase", "toolbar02");
    connect(addDraw_, &WelcomeLink::clicked, this, [this] { Q_EMIT drawWanted(lottery_); });
    AddStep("DatabaseImport", "toolbar01", tr("Import draws"),
            tr("From a results file, a table on a web page, or a web address"));
    generate_ = AddStep("PlayLuckyDip", "toolbar10", tr("Generate entries"),
                        tr("A lucky dip under conditions of your choice"));
    check_ = AddStep("DatabaseCheck", "toolbar03", tr("Check your entries"),
                     tr("What they matched in the draws of their dates"));
    store_ = AddStep("DatabaseStoreDrawsW", "toolbar04", tr("Store your own entries"),
                     tr("Type in the numbers that you have played"));
    AddStep("FileNotes", "toolbar00", tr("Open your desk"),
            tr("Notes, checklist, biochart and your databases"));
}

WelcomeLink* Welcome::AddLink(const char* menuEntry, const char* picture) {
    const QString file = QStringLiteral(":/icons/icons/%1.svg").arg(QLatin1String(picture));
    auto* link =
        Named(new WelcomeLink(file, this), QStringLiteral("Welcome") + QLatin1String(menuEntry));
    layout()->addWidget(link);
    links_.push_back(link);
    return link;
}

WelcomeLink* Welcome::AddStep(const char* menuEntry, const char* picture, const QString& caption,
                              const QString& description) {
    WelcomeLink* link = AddLink(menuEntry, picture);
    link->SetWords(caption, description);
    connect(link, &WelcomeLink::clicked, this,
            [this, menuEntry] { Q_EMIT stepChosen(QString::fromLatin1(menuEntry)); });
    return link;
}

void Welcome::Suit(const LotteriesAtHand& lotteries, bool entriesSaved) {
    const bool focused = isAncestorOf(window()->focusWidget());
    setUp_->setVisible(!lotteries.own.has_value());
    addDraw_->setVisible(lotteries.own.has_value());
    if (lotteries.own) WordDraw(*lotteries.own);
    generate_->setVisible(lotteries.any);
    check_->setVisible(lotteries.any && entriesSaved);
    store_->setVisible(lotteries.any);
    if (focused && !isAncestorOf(window()->focusWidget())) TakeFocus();
}

void Welcome::WordDraw(const OwnLottery& lottery) {
    lottery_ = lottery.index;
    const QString name = Readable(ToQString(lottery.name));
    const QString caption = lottery.newest ? tr("Add the latest draw of %1 (newest: %2)")
                                                 .arg(Shortened(name), ShownDate(*lottery.newest))
                                           : tr("Add the first draw of %1").arg(Shortened(name));
    addDraw_->SetWords(caption, tr("Type in its date and its numbers"));
    addDraw_->setToolTip(name.size() > longestName ? PlainTip(name) : QString());
}

void Welcome::TakeFocus() {
    const auto first = std::ranges::find_if_not(links_, &WelcomeLink::isHidden);
    if (first != links_.end()) (*first)->setFocus();
}

void Welcome::paintEvent(QPaintEvent*) { PaintSheet(*this, 10); }
