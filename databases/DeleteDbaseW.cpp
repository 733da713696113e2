// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DeleteDbaseW.h"

#include <QPushButton>

#include "core/old_files.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

DeleteDbaseW::DeleteDbaseW(Program& program, QWidget* parent)
    : DatabaseListForm(
          program, QStringLiteral("DeleteDbaseW"), tr("Delete lottery database"),
          MakeCommandButton(QStringLiteral("Command2"), Command::Delete, tr(" Delete database ")),
          tr(" Close "), parent) {}

void DeleteDbaseW::Act() {
    if (Lotteries().Index() < 0) return;
    const Answer answer =
        services().messages.Show(this, {.title = tr("Delete database"),
                                        .text = tr("  Are you sure?    ") % ToQString(state().Crlf),
                                        .sign = Sign::Question,
                                        .buttons = Buttons::YesNo,
                                        .discards = true});
    if (answer == Answer::No) return;
    state().DbaseFile = state().DbaseFiles(Lotteries().Index());
    DeleteKeepingOld(folder(), state().DbaseFile);
    Unload();
}
