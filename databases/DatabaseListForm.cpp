// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DatabaseListForm.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/forms/FormLayout.h"
#include "platform/forms/LotteryList.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

DatabaseListForm::DatabaseListForm(Program& program, const QString& name, const QString& caption,
                                   QPushButton* command2, const QString& closeCaption,
                                   QWidget* parent)
    : Form(program, name, caption, parent), list1_(Named(new ListBox, QStringLiteral("List1"))) {
    auto* label3 = MakeLabel(QStringLiteral("Label3"), tr("Select a lottery:"));
    Titled(label3, list1_);
    command2->setDefault(true);
    auto* command1 = MakeButton(QStringLiteral("Command1"), closeCaption);
    SetCloseButton(command1);

    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(label3);
    layout->addWidget(list1_, 1);
    layout->addLayout(BuildActionRow({command2}, {command1}));
    resize(360, 320);

    connect(list1_, &ListBox::doubleClicked, this, [this] { Command2_Click(); });
    connect(command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(command1, &QPushButton::clicked, this, [this] { Unload(); });
}

void DatabaseListForm::Load() { ListDatabases(program(), *list1_); }
