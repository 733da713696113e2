// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SyndicateListForm.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "syndicates/syndicate_files.h"

SyndicateListForm::SyndicateListForm(Program& program, const QString& name, const QString& caption,
                                     QPushButton* act, QPushButton* close, QWidget* parent)
    : Form(program, name, caption, parent),
      names_(Named(new ListBox, QStringLiteral("List1"))),
      files_(Named(new ListBox(this), QStringLiteral("List2"))) {
    auto* title = MakeLabel(QStringLiteral("ListTitle"), tr("Select a syndicate:"));
    Titled(title, names_);
    files_->hide();
    SetCloseButton(close);

    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(title);
    layout->addWidget(names_, 1);
    layout->addLayout(BuildActionRow({act}, {close}));
    SetOpeningSize({480, 360});

    names_->SetTips([this](int row) { return files_->item(row)->text(); });
    connect(names_, &ListBox::itemSelectionChanged, this,
            [this] { ChoiceChanged(names_->Index() >= 0); });
    connect(names_, &ListBox::doubleClicked, this, [this] { ActOnChosen(); });
    connect(act, &QPushButton::clicked, this, [this] { ActOnChosen(); });
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
}

void SyndicateListForm::Load() {
    for (const ListedSyndicate& syndicate : ListSyndicates(folder())) {
        names_->addItem(ToQString(syndicate.name));
        files_->addItem(ToQString(syndicate.file));
    }
}

void SyndicateListForm::ActOnChosen() {
    const int chosen = names_->Index();
    if (chosen >= 0) Act(FromQString(files_->item(chosen)->text()));
}
