// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of SMembers and where they stand.
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/forms/FormLayout.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/ElidingLabel.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "syndicates/PayByList.h"
#include "syndicates/SMembers.h"

namespace {

QLabel* MakeNumbered(int index, const QString& text) {
    return MakeLabel(Member(QStringLiteral("Label2"), index), text);
}

/// A label for a name of any length, as it stands.
QLabel* MakeName(const QString& name) {
    QLabel* label = Named(new ElidingLabel, name);
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

}  // namespace

SMembers::SMembers(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("SMembers"), tr("Syndicate Members"), parent),
      payBy_(MakePayByList()),
      members_(Named(new ListBox, QStringLiteral("List1"))),
      syndicate_(MakeName(QStringLiteral("Label3"))),
      manager_(MakeName(QStringLiteral("Label4"))) {
    LayOutForm(this, MakeTitle(QStringLiteral("Label1"), tr("Syndicate Members")),
               MakeBody(QStringLiteral("Label7"),
                        tr("Enter each syndicate member's details and click the Add button. To "
                           "change a member's details, select him/her in the Members list, change "
                           "the details, and then click Add. The member's details are then "
                           "updated. Click Clear to clear the input boxes - it does not affect "
                           "the members list. Sort will sort by last name.")),
               BuildBody(), BuildActions());
    connect(members_, &ListBox::clicked, this, [this] { ShowChosen(); });
    TabInReadingOrder();
    SetOpeningSize({780, 560});
}

QPushButton* SMembers::Connect(QPushButton* button, void (SMembers::*action)()) {
    connect(button, &QPushButton::clicked, this, [this, action] { (this->*action)(); });
    return button;
}

QLayout* SMembers::BuildBody() {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(32);
    columns->addLayout(BuildBoxes(), 3);
    columns->addLayout(BuildList(), 2);
    auto* body = new QVBoxLayout;
    body->setSpacing(12);
    body->addLayout(BuildSyndicate());
    body->addLayout(columns, 1);
    return body;
}

QLayout* SMembers::BuildSyndicate() {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(MakeLabel(QStringLiteral("Label6"), tr("Syndicate:")));
    row->addWidget(syndicate_, 1);
    row->addWidget(MakeLabel(QStringLiteral("Label5"), tr("Manager:")));
    row->addWidget(manager_, 1);
    return row;
}

QLayout* SMembers::BuildBoxes() {
    auto* layout = new QGridLayout;
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(4);
    layout->setColumnStretch(1, 1);
    boxes_.AddName(*layout, 0, 0, MakeNumbered(0, tr("Name:")));
    boxes_.AddAddress(*layout, 1, 0, MakeNumbered(1, tr("Address:")));
    boxes_.AddContacts(*layout, 5, 0, MakeNumbered(2, tr("Phone:")), MakeNumbered(3, tr("Email:")));
    QLabel* payBy = MakeNumbered(5, tr("Pay by:"));
    layout->addWidget(payBy, 7, 0);
    layout->addWidget(Titled(payBy, payBy_), 7, 1);

    QPushButton* add = Connect(MakeButton(QStringLiteral("Command1"), tr("Add")), &SMembers::Add);
    // Kept on purpose: "exisitng" is what users have read since the first version.
    add->setToolTip(tr(" Add new member or update exisitng member "));
    add->setDefault(true);
    QPushButton* clear =
        Connect(MakeButton(QStringLiteral("Command5"), tr("Clear")), &SMembers::Clear);
    clear->setToolTip(tr("Clear the input boxes"));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(add);
    buttons->addWidget(clear);
    buttons->addStretch(1);
    layout->setRowMinimumHeight(8, 8);
    layout->addLayout(buttons, 9, 1);
    layout->setRowStretch(10, 1);
    return layout;
}

QLayout* SMembers::BuildList() {
    QLabel* title = MakeNumbered(4, tr("Members:"));
    QPushButton* sort =
        Connect(MakeButton(QStringLiteral("Command7"), tr("Sort")), &SMembers::Sort);
    sort->setToolTip(tr("Sort the members by last name"));
    QPushButton* remove =
        Connect(MakeDeletingButton(QStringLiteral("Command2"), tr("Delete")), &SMembers::Delete);
    remove->setToolTip(tr(" Delete the member selected in the Members list "));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(sort);
    AddApart(*buttons, remove);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout;
    layout->setSpacing(4);
    layout->addWidget(title);
    layout->addWidget(Titled(title, members_), 1);
    layout->addSpacing(4);
    layout->addLayout(buttons);
    return layout;
}

QLayout* SMembers::BuildActions() {
    QPushButton* save = Connect(MakeCommandButton(QStringLiteral("Command4"), Command::Save,
                                                  tr("Save the change and close the form")),
                                &SMembers::Save);
    QPushButton* print = Connect(MakeCommandButton(QStringLiteral("Command6"), Command::Print,
                                                   tr("Print out all member details")),
                                 &SMembers::Print);
    print->setEnabled(services().printMembers != nullptr);
    QPushButton* close = Connect(MakeCommandButton(QStringLiteral("Command3"), Command::Close,
                                                   tr("Close without saving any changes you made")),
                                 &SMembers::Close);
    SetCloseButton(close);
    return BuildActionRow({save, print}, {close});
}
