// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SyndicateBoxes.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"

namespace {

QString LabelName(int index) { return Member(QStringLiteral("Label2"), index); }

}  // namespace

SyndicateBoxes::SyndicateBoxes(Columns columns)
    : syndicate_(Named(new QLineEdit, QStringLiteral("Text1(7)"))) {
    const bool two = columns == Columns::Two;
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(4);
    AddTitled(*layout, 0, 0, MakeLabel(LabelName(0), tr("Syndicate name:")), syndicate_);
    manager_.AddName(*layout, 1, 0, MakeLabel(LabelName(1), tr("Manager name:")));
    // The Tab key goes down the columns.
    const auto addAddress = [&](int row, int column) {
        manager_.AddAddress(*layout, row, column, MakeLabel(LabelName(2), tr("Address:")));
    };
    if (!two) addAddress(2, 0);
    manager_.AddContacts(*layout, two ? 2 : 6, 0, MakeLabel(LabelName(3), tr("Phone:")),
                         MakeLabel(LabelName(4), tr("Email:")));
    if (two) addAddress(0, 3);
    layout->setColumnStretch(1, 1);
    if (two) {
        layout->setColumnMinimumWidth(2, 16);
        layout->setColumnStretch(4, 1);
    }
    connect(syndicate_, &QLineEdit::textChanged, this, &SyndicateBoxes::changed);
    for (const QLineEdit* box : manager_.All()) {
        connect(box, &QLineEdit::textChanged, this, &SyndicateBoxes::changed);
    }
}

SyndicateDetails SyndicateBoxes::Typed() const {
    return {.syndicate = FromQString(syndicate_->text()), .manager = manager_.Typed()};
}

void SyndicateBoxes::Show(const SyndicateDetails& details) {
    syndicate_->setText(ToQString(details.syndicate));
    manager_.Show(details.manager);
}

QStringList SyndicateBoxes::Labels() {
    QStringList labels;
    for (int index = 0; index <= 4; ++index) labels += LabelName(index);
    return labels;
}

Message NamesMissing(const QString& text) {
    return {.title = SyndicateBoxes::tr("Warning!"), .text = text, .sign = Sign::Exclamation};
}
