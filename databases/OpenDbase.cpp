// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/OpenDbase.h"

#include <QPushButton>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

OpenDbase::OpenDbase(Program& program, QWidget* parent)
    : DatabaseListForm(program, QStringLiteral("OpenDbase"), tr("Open lottery database"),
                       MakeButton(QStringLiteral("Command2"), tr(" Open database ")),
                       tr(" Cancel "), parent) {}

void OpenDbase::Act() {
    state().DbaseFile = state().DbaseFiles(Lotteries().Index());
    services().openPage(ToQString(state().DbaseFile));
    Unload();
}
