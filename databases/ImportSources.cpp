// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/ImportSources.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/forms/FormLayout.h"
#include "platform/widgets/ElidingLabel.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int buttonWidth = 112;

}  // namespace

ImportSources::ImportSources(QWidget* parent) : QWidget(parent) {
    MakeButtons();
    auto* addressTitle = MakeLabel(QStringLiteral("AddressTitle"), tr("Web address:"));
    addressTitle->setBuddy(address_);
    auto* row = new QHBoxLayout;
    row->addWidget(chooseFile_);
    row->addWidget(paste_);
    row->addSpacing(12);
    row->addWidget(addressTitle);
    row->addWidget(address_, 1);
    row->addWidget(fetch_);

    auto* againTitle = MakeLabel(QStringLiteral("AgainTitle"), tr("Imported before:"));
    Titled(againTitle, addresses_);
    again_ = Named(new QWidget, QStringLiteral("Again"));
    auto* again = new QHBoxLayout(again_);
    again->setContentsMargins(0, 0, 0, 0);
    again->addWidget(againTitle);
    again->addWidget(addresses_, 1);
    again->addWidget(update_);
    again_->hide();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addLayout(row);
    column->addWidget(again_);
    column->addWidget(source_);
}

void ImportSources::MakeButtons() {
    chooseFile_ = MakeButton(QStringLiteral("ChooseFile"), QString());
    chooseFile_->setText(tr("Choose &file..."));
    chooseFile_->setToolTip(tr("A results file from the lottery's web site, as it came"));
    paste_ = MakeButton(QStringLiteral("PasteTable"), QString());
    paste_->setText(tr("&Paste table"));
    paste_->setToolTip(tr("What you have copied: a table on a web page, or rows of text"));
    address_ = Named(new QLineEdit, QStringLiteral("Address"));
    address_->setAccessibleName(tr("Web address of the results"));
    address_->setPlaceholderText(QStringLiteral("https://"));
    fetch_ = MakeButton(QStringLiteral("Fetch"), QString());
    fetch_->setText(tr("F&etch"));
    fetch_->setToolTip(tr("Fetches the results from the web address"));
    addresses_ = Named(new QComboBox, QStringLiteral("Addresses"));
    addresses_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    update_ = MakeButton(QStringLiteral("Update"), QString());
    update_->setText(tr("&Update"));
    update_->setToolTip(tr("Fetches the results again and adds the draws that are new"));
    source_ = Named(new ElidingLabel, QStringLiteral("Source"));
    QFont bold = source_->font();
    bold.setBold(true);
    source_->setFont(bold);
    for (QPushButton* button : {chooseFile_, paste_, fetch_, update_}) {
        button->setMinimumWidth(buttonWidth);
    }
    connect(chooseFile_, &QPushButton::clicked, this, [this] { Q_EMIT fileWanted(); });
    connect(paste_, &QPushButton::clicked, this, [this] { Q_EMIT clipboardWanted(); });
    connect(fetch_, &QPushButton::clicked, this, [this] { Q_EMIT addressWanted(Address()); });
    address_->installEventFilter(this);
    connect(update_, &QPushButton::clicked, this,
            [this] { Q_EMIT updateWanted(addresses_->currentIndex()); });
}

void ImportSources::OfferAddresses(
    const std::vector<std::pair<QString, QString>>& lotteryAndAddress) {
    addresses_->clear();
    for (const auto& [lottery, address] : lotteryAndAddress) {
        addresses_->addItem(lottery % QStringLiteral(": ") % address);
    }
    again_->setVisible(!lotteryAndAddress.empty());
}

void ImportSources::ShowSource(const QString& words) { source_->setText(words); }

QString ImportSources::Address() const { return address_->text().trimmed(); }

// Enter fetches and goes no further: the form would press the button that has the focus by then.
bool ImportSources::eventFilter(QObject* watched, QEvent* event) {
    if (watched != address_ || event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    fetch_->click();
    return true;
}
