// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/ImportTarget.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "platform/system/TextConversion.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int intoExisting = 1;

}  // namespace

ImportTarget::ImportTarget(QWidget* parent)
    : QWidget(parent),
      kinds_(new OptionGroup(this)),
      name_(::Named(new QLineEdit, QStringLiteral("NewName"))),
      existing_(::Named(new QComboBox, QStringLiteral("Lotteries"))),
      effect_(MakeBody(QStringLiteral("Effect"), QString())) {
    auto* newLottery = kinds_->Add(QStringLiteral("IntoNew"), tr("Into a new lottery:"));
    auto* there = kinds_->Add(QStringLiteral("IntoExisting"), tr("Into a lottery of yours:"));
    name_->setAccessibleName(tr("Name of the new lottery"));
    name_->setPlaceholderText(tr("Name of the lottery"));
    existing_->setAccessibleName(tr("Lottery into which the draws go"));
    existing_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    existing_->setMinimumContentsLength(12);
    connect(kinds_, &OptionGroup::clicked, this, [this] { Q_EMIT changed(); });
    connect(name_, &QLineEdit::textChanged, this, [this] {
        kinds_->Option(0).setChecked(true);
        Q_EMIT changed();
    });
    connect(existing_, &QComboBox::activated, this, [this] {
        kinds_->Option(intoExisting).setChecked(true);
        Q_EMIT changed();
    });
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(4);
    grid->addWidget(newLottery, 0, 0);
    grid->addWidget(name_, 0, 1);
    grid->setColumnMinimumWidth(2, 16);
    grid->addWidget(there, 0, 3);
    grid->addWidget(existing_, 0, 4);
    grid->addWidget(effect_, 1, 0, 1, 5);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(4, 1);
}

void ImportTarget::OfferLotteries(std::vector<ExistingLottery> lotteries) {
    const std::string chosen = Database();
    lotteries_ = std::move(lotteries);
    existing_->clear();
    for (const ExistingLottery& lottery : lotteries_) {
        existing_->addItem(ToQString(lottery.name));
    }
    kinds_->Option(intoExisting).setEnabled(!lotteries_.empty());
    existing_->setEnabled(!lotteries_.empty());
    if (!chosen.empty()) ProposeExisting(chosen);
}

void ImportTarget::ProposeNew(const QString& name) {
    const QSignalBlocker quiet(kinds_);
    const QSignalBlocker quietName(name_);
    kinds_->Option(0).setChecked(true);
    name_->setText(name);
    name_->setCursorPosition(0);
}

bool ImportTarget::ProposeExisting(const std::string& file) {
    const auto found = std::ranges::find(lotteries_, file, &ExistingLottery::file);
    if (found == lotteries_.end()) return false;
    const QSignalBlocker quiet(kinds_);
    existing_->setCurrentIndex(static_cast<int>(found - lotteries_.begin()));
    kinds_->Option(intoExisting).setChecked(true);
    return true;
}

const ExistingLottery* ImportTarget::Named(const std::string& name) const {
    const auto found = std::ranges::find(lotteries_, name, &ExistingLottery::name);
    return found == lotteries_.end() ? nullptr : &*found;
}

QString ImportTarget::NameOf(const std::string& file) const {
    const auto found = std::ranges::find(lotteries_, file, &ExistingLottery::file);
    return found == lotteries_.end() ? QString() : ToQString(found->name);
}

bool ImportTarget::IsNew() const { return kinds_->Index() != intoExisting; }

QString ImportTarget::Name() const { return name_->text().trimmed(); }

std::string ImportTarget::Database() const {
    const int index = existing_->currentIndex();
    if (IsNew() || index < 0) return {};
    return lotteries_.at(static_cast<std::size_t>(index)).file;
}

QString ImportTarget::LotteryName() const { return IsNew() ? Name() : existing_->currentText(); }

void ImportTarget::ShowEffect(const QString& words) { effect_->setText(words); }
