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
    for (std::size_t i = 0; i < check1_.size(); ++i) {
        const int index = static_cast<int>(i);
        check1_.at(i) = Named(new QCheckBox(this), Member(QStringLiteral("Check1"), index));
        command4_.at(i) = MakeButton(Member(QStringLiteral("Command4"), index), tr("Clear"), this);
        command4_.at(i)->setMinimumHeight(0);
        command4_.at(i)->setMaximumHeight(clearHeight);
        command4_.at(i)->setToolTip(tr("Clear this item"));
        connect(command4_.at(i), &QPushButton::clicked, this, [this, i] { Command4_Click(i); });
    }
    text2_ = Named(new QLineEdit(this), QStringLiteral("Text2"));
    text2_->setToolTip(tr("Type in an item and click Add"));
    text2_->setAccessibleName(text2_->toolTip());
    command3_ = MakeButton(QStringLiteral("Command3"), tr("Add"), this);
    // Spelt so since the first version; users know it by these words.
    command3_->setToolTip(tr("Type in a checkist item and click Add"));
    connect(command3_, &QPushButton::clicked, this, &ChecklistPanel::Command3_Click);
    connect(text2_, &QLineEdit::returnPressed, this, &ChecklistPanel::Command3_Click);

    const std::array<QString, 8> firstCaptions = {tr("Analyse lottery draws"),
                                                  tr("Generate lottery entries"),
                                                  tr("Fill in payslips"),
                                                  tr("Buy lottery tickets"),
                                                  tr("Check results"),
                                                  tr("Collect winnings!"),
                                                  {},
                                                  {}};
    for (std::size_t i = 0; i < check1_.size(); ++i) SetCaption(i, firstCaptions.at(i));
    Build();
}

void ChecklistPanel::Build() {
    QGridLayout* sheet = Sheet();
    for (std::size_t i = 0; i < check1_.size(); ++i) {
        const int row = static_cast<int>(i);
        // A long item is cut rather than that it widens the window.
        check1_.at(i)->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        sheet->addWidget(check1_.at(i), row, 0);
        sheet->addWidget(command4_.at(i), row, 1);
    }
    const int lastRow = static_cast<int>(check1_.size());
    sheet->setRowStretch(lastRow, 1);
    sheet->addWidget(text2_, lastRow + 1, 0);
    sheet->addWidget(command3_, lastRow + 1, 1);
    sheet->setColumnStretch(0, 1);
    sheet->setColumnMinimumWidth(0, 170);
    sheet->setVerticalSpacing(2);
}

ChecklistPanel::Items ChecklistPanel::Checklist() const {
    Items items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        items.at(i) = {.ticked = check1_.at(i)->isChecked(),
                       .caption = FromQString(captions_.at(i))};
    }
    return items;
}

void ChecklistPanel::ShowChecklist(const Items& items) {
    for (std::size_t i = 0; i < items.size(); ++i) {
        check1_.at(i)->setChecked(items.at(i).ticked);
        SetCaption(i, ToQString(items.at(i).caption));
    }
}

void ChecklistPanel::SetCaption(std::size_t index, const QString& caption) {
    captions_.at(index) = caption;
    check1_.at(index)->setText(ShownCaption(caption));
    const QString number = QString::number(index + 1);
    check1_.at(index)->setAccessibleName(caption.isEmpty() ? tr("Empty item %1").arg(number)
                                                           : caption);
    command4_.at(index)->setAccessibleName(tr("Clear item %1").arg(number));
}

void ChecklistPanel::Command3_Click() {
    const auto empty = std::ranges::find_if(captions_, &QString::isEmpty);
    if (empty == captions_.end()) return;
    SetCaption(static_cast<std::size_t>(empty - captions_.begin()), text2_->text());
}

void ChecklistPanel::Command4_Click(std::size_t index) {
    SetCaption(index, {});
    check1_.at(index)->setChecked(false);
}
