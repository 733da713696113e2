// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ChecklistPanel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int clearHeight = 24;  // eight rows fit a low screen

}  // namespace

ChecklistPanel::ChecklistPanel(QWidget* parent)
    : Panel(QStringLiteral("Label8"), tr("  Checklist:"), parent) {
    BuildItems();
    BuildAdding();
    Sheet()->setColumnStretch(0, 1);
    Sheet()->setVerticalSpacing(2);

    const std::array<QString, 8> firstCaptions = {tr("Analyse lottery draws"),
                                                  tr("Generate lottery entries"),
                                                  tr("Fill in payslips"),
                                                  tr("Buy lottery tickets"),
                                                  tr("Check results"),
                                                  tr("Collect winnings!"),
                                                  {},
                                                  {}};
    for (std::size_t i = 0; i < items_.size(); ++i) SetCaption(i, firstCaptions.at(i));
    // The first items are read whole in every size of letters; longer ones are cut rather than that
    // they widen the window.
    const auto width = [](const QCheckBox* item) { return item->sizeHint().width(); };
    const QCheckBox* widest = *std::ranges::max_element(items_, {}, width);
    Sheet()->setColumnMinimumWidth(0, width(widest));
}

void ChecklistPanel::BuildItems() {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const int row = static_cast<int>(i);
        items_.at(i) = Named(new QCheckBox(this), Member(QStringLiteral("Check1"), row));
        items_.at(i)->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        clear_.at(i) = MakeButton(Member(QStringLiteral("Command4"), row), tr("Clear"), this);
        clear_.at(i)->setMinimumHeight(0);
        clear_.at(i)->setMaximumHeight(clearHeight);
        clear_.at(i)->setToolTip(tr("Clear this item"));
        connect(clear_.at(i), &QPushButton::clicked, this, [this, i] { ClearItem(i); });
        Sheet()->addWidget(items_.at(i), row, 0);
        Sheet()->addWidget(clear_.at(i), row, 1);
    }
    Sheet()->setRowStretch(static_cast<int>(items_.size()), 1);
}

void ChecklistPanel::BuildAdding() {
    newItem_ = Named(new QLineEdit(this), QStringLiteral("Text2"));
    newItem_->setToolTip(tr("Type in an item and click Add"));
    newItem_->setAccessibleName(newItem_->toolTip());
    auto* add = MakeButton(QStringLiteral("Command3"), tr("Add"), this);
    // Kept on purpose: "checkist" is what users have read since the first version.
    add->setToolTip(tr("Type in a checkist item and click Add"));
    connect(add, &QPushButton::clicked, this, &ChecklistPanel::AddItem);
    connect(newItem_, &QLineEdit::returnPressed, this, &ChecklistPanel::AddItem);
    const int row = static_cast<int>(items_.size()) + 1;
    Sheet()->addWidget(newItem_, row, 0);
    Sheet()->addWidget(add, row, 1);
}

ChecklistPanel::Items ChecklistPanel::Checklist() const {
    Items items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        items.at(i) = {.ticked = items_.at(i)->isChecked(),
                       .caption = FromQString(captions_.at(i))};
    }
    return items;
}

void ChecklistPanel::ShowChecklist(const Items& items) {
    for (std::size_t i = 0; i < items.size(); ++i) {
        items_.at(i)->setChecked(items.at(i).ticked);
        SetCaption(i, ToQString(items.at(i).caption));
    }
}

void ChecklistPanel::SetCaption(std::size_t index, const QString& caption) {
    captions_.at(index) = caption;
    items_.at(index)->setText(ShownCaption(caption));
    const QString number = QString::number(index + 1);
    items_.at(index)->setAccessibleName(caption.isEmpty() ? tr("Empty item %1").arg(number)
                                                          : caption);
    clear_.at(index)->setAccessibleName(tr("Clear item %1").arg(number));
}

void ChecklistPanel::AddItem() {
    const auto empty = std::ranges::find_if(captions_, &QString::isEmpty);
    if (empty == captions_.end()) return;
    SetCaption(static_cast<std::size_t>(empty - captions_.begin()), newItem_->text());
}

void ChecklistPanel::ClearItem(std::size_t index) {
    SetCaption(index, {});
    items_.at(index)->setChecked(false);
}
