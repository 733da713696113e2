// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/OpenDbase.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/Lists.h"
#include "platform/LotteryList.h"
#include "platform/Text.h"
#include "platform/Widgets.h"

OpenDbase::OpenDbase(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("OpenDbase"), tr("Open lottery database"), parent) {
    auto* label3 = MakeLabel(QStringLiteral("Label3"), tr("Select a lottery:"));
    list1_ = Named(new ListBox, QStringLiteral("List1"));
    list1_->setAccessibleName(label3->text());
    label3->setBuddy(list1_);
    auto* command2 = MakeButton(QStringLiteral("Command2"), tr(" Open database "));
    command2->setDefault(true);
    auto* command1 = MakeButton(QStringLiteral("Command1"), tr(" Cancel "));
    SetCloseButton(command1);

    auto* actions = new QHBoxLayout;
    actions->addWidget(command2);
    actions->addStretch(1);
    actions->addWidget(command1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 16);
    layout->setSpacing(8);
    layout->addWidget(label3);
    layout->addWidget(list1_, 1);
    layout->addLayout(actions);
    resize(360, 320);

    connect(list1_, &ListBox::doubleClicked, this, [this] { Command2_Click(); });
    connect(command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(command1, &QPushButton::clicked, this, [this] { Unload(); });
}

void OpenDbase::Load() { ListDatabases(program(), *list1_); }

void OpenDbase::Command2_Click() {
    state().DbaseFile = state().DbaseFiles(list1_->Index());
    services().openPage(ToQString(state().DbaseFile));
    Unload();
}
