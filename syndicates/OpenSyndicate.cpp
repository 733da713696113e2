// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/OpenSyndicate.h"

#include <QPushButton>

#include "core/settings.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Widgets.h"

namespace {

QPushButton* MakeOpenButton() {
    QPushButton* button =
        MakeIconButton(QStringLiteral("Command2"), QStringLiteral("document-open"),
                       OpenSyndicate::tr(" Open syndicate "));
    button->setText(OpenSyndicate::tr("Open"));
    return button;
}

}  // namespace

OpenSyndicate::OpenSyndicate(Program& program, QWidget* parent)
    : OpenSyndicate(program, MakeOpenButton(), parent) {}

OpenSyndicate::OpenSyndicate(Program& program, QPushButton* open, QWidget* parent)
    : SyndicateListForm(
          program, QStringLiteral("OpenSyndicate"), tr("Open syndicate"), open,
          MakeCommandButton(QStringLiteral("Command1"), Command::Cancel, tr(" Cancel ")), parent),
      open_(open) {}

// Enter opens only what was chosen.
void OpenSyndicate::ChoiceChanged(bool chosen) { open_->setDefault(chosen); }

void OpenSyndicate::Act(const std::string& file) {
    state().Settings(setting::SyndicateFile) = file;
    Unload();
}
