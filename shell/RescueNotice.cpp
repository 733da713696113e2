// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/RescueNotice.h"

#include <QCoreApplication>

#include "platform/system/MessageBoxes.h"

void TellOfRescuedFiles(MessageBoxes& messages, QWidget* parent, const QStringList& files) {
    if (files.isEmpty()) return;
    constexpr qsizetype most = 10;
    QStringList lines = {QCoreApplication::translate(
        "RescueNotice", "What could not be saved in the program's folder was kept here:")};
    lines += files.mid(0, most);
    if (files.size() > most) {
        lines += QCoreApplication::translate("RescueNotice", "and in %1 files more beside them")
                     .arg(files.size() - most);
    }
    lines += QCoreApplication::translate(
        "RescueNotice",
        "To use such a file, close the program and copy it into the program's folder, under the "
        "name that follows the date and time. One that ends with \"(new lines)\" holds nothing but "
        "what was to be added: put its lines into the file of that name. When you no longer need "
        "it, delete it.");
    messages.Show(parent, {.title = QStringLiteral("Lottery Quillon World"),
                           .text = lines.join(QStringLiteral("\r\n\r\n")),
                           .sign = Sign::Information});
}
