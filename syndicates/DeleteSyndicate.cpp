// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/DeleteSyndicate.h"

#include <QPushButton>

#include "platform/system/MessageBoxes.h"
#include "platform/widgets/Commands.h"
#include "syndicates/syndicate_files.h"

DeleteSyndicate::DeleteSyndicate(Program& program, QWidget* parent)
    : SyndicateListForm(
          program, QStringLiteral("DeleteSyndicate"), tr("Delete syndicate"),
          MakeCommandButton(QStringLiteral("Command2"), Command::Delete, tr(" Delete syndicate ")),
          MakeCommandButton(QStringLiteral("Command1"), Command::Close, tr(" Close ")), parent) {}

void DeleteSyndicate::Act(const std::string& file) {
    const Answer answer = services().messages.Show(this, {.title = tr("Delete"),
                                                          .text = tr("Are you sure?    "),
                                                          .sign = Sign::Question,
                                                          .buttons = Buttons::YesNo,
                                                          .discards = true});
    if (answer == Answer::No) return;
    DeleteSyndicateFiles(folder(), file);
    LoadSyndicate(state(), folder());
    Unload();
}
