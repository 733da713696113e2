// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/OpenDbase.h"

#include <QPushButton>

#include "core/failure.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

OpenDbase::OpenDbase(Program& program, QWidget* parent)
    : OpenDbase(program, MakeButton(QStringLiteral("Command2"), tr(" Open database ")), parent) {}

OpenDbase::OpenDbase(Program& program, QPushButton* open, QWidget* parent)
    : DatabaseListForm(program, QStringLiteral("OpenDbase"), tr("Open lottery database"), open,
                       tr(" Cancel "), parent),
      open_(open) {}

// Enter opens only what was chosen.
void OpenDbase::ChoiceChanged() { open_->setDefault(Lotteries().Index() >= 0); }

void OpenDbase::Act() {
    if (Lotteries().Index() < 0) throw Failure("No lottery was chosen in the list.");
    state().DbaseFile = state().DbaseFiles(Lotteries().Index());
    services().openPage(ToQString(state().DbaseFile));
    Unload();
}
