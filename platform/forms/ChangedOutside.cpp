// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ChangedOutside.h"

#include <QCoreApplication>

#include "core/old_files.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/Services.h"
#include "platform/system/TextConversion.h"

bool ChangedOutside(Program& program, QWidget* form, const ShownFile& shown,
                    const std::string& unsaved) {
    if (!HoldsAnother(program.folder, shown.name, shown.bytes)) return false;
    QString text =
        QCoreApplication::translate("ChangedOutside",
                                    "%1 has been changed by another program since it was\r\n"
                                    "shown here. Nothing is saved now; the file is read anew.")
            .arg(ToQString(shown.name));
    if (!unsaved.empty()) {
        KeepUnsaved(program.folder, shown.name, unsaved);
        text += QCoreApplication::translate("ChangedOutside",
                                            "\r\nWhat you had here is kept in Backup/Undo.");
    }
    program.services.messages.Show(form, {.title = QStringLiteral("Lottery Quillon World"),
                                          .text = text,
                                          .sign = Sign::Exclamation});
    return true;
}
