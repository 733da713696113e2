// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Dirty.h"

#include <QCoreApplication>

bool Dirty::MayClose(MessageBoxes& messages, QWidget* form, const Message& warning) const {
    if (!IsSet()) return true;
    const Answer answer = messages.Show(form, warning);
    return answer != Answer::Cancel && answer != Answer::No;
}

Message UnsavedWarning() {
    return {.title = QCoreApplication::translate("Dirty", "Warning!"),
            .text = QCoreApplication::translate("Dirty",
                                                "If you have made changes you should    \r\n"
                                                "click Save to save them. If you        \r\n"
                                                "continue, any changes will be lost.    "),
            .sign = Sign::Exclamation,
            .buttons = Buttons::OkCancel,
            .discards = true};
}
