// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/NewSyndicate.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/forms/FormLayout.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Widgets.h"
#include "syndicates/SyndicateBoxes.h"
#include "syndicates/SyndicateReadAnew.h"

NewSyndicate::NewSyndicate(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("NewSyndicate"), tr("Create syndicate"), parent),
      boxes_(new SyndicateBoxes(SyndicateBoxes::Columns::One)) {
    auto* body = new QVBoxLayout;
    body->addWidget(boxes_);
    body->addStretch(1);
    for (QLineEdit* box : {boxes_->Syndicate(), boxes_->Manager().Name()}) {
        box->setToolTip(tr(" Essential information "));
    }
    LayOutForm(this, MakeTitle(QStringLiteral("Label1"), tr("New syndicate")),
               MakeBody(QStringLiteral("Label3"),
                        tr("A new lottery syndicate is created by giving it a name and manager. "
                           "The other details are optional, but useful. Create as many lottery "
                           "syndicates as you need.")),
               body, BuildActions());
    TabInReadingOrder();
    SetOpeningSize({520, 400});
}

QLayout* NewSyndicate::BuildActions() {
    QPushButton* save =
        MakeCommandButton(QStringLiteral("Command1"), Command::Save, tr(" Save the syndicate "));
    QPushButton* close =
        MakeCommandButton(QStringLiteral("Command3"), Command::Close, tr(" Close "));
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    save->setDefault(true);
    SetCloseButton(close);
    return BuildActionRow({save}, {close});
}

void NewSyndicate::Load() {
    Skinning(QStringLiteral("SkinSyndicates.jpg"), {.title = {QStringLiteral("Label1")},
                                                    .body = {QStringLiteral("Label3")},
                                                    .small = SyndicateBoxes::Labels(),
                                                    .status = {}});
}

void NewSyndicate::Save() {
    const SyndicateDetails details = Trimmed(boxes_->Typed());
    if (!HasNames(details)) {
        services().messages.Show(this, NamesMissing(tr("Cannot create a syndicate without    \r\n"
                                                       "a manager and a syndicate name...    ")));
        return;
    }
    // What is open is saved with the new one, unless somebody else has changed its file.
    if (SyndicateReadAnew(program(), this)) return;
    StartSyndicate(state(), folder(), details);
    services().messages.Show(this,
                             {.title = tr("New syndicate"),
                              .text = tr(" Syndicate created...      ") % ToQString(state().Crlf) %
                                      tr(" Syndicate opened...      "),
                              .sign = Sign::Information});
    Unload();
}
