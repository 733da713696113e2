// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/ColourDialog.h"

#include <QColorDialog>
#include <QDialog>

std::optional<QColor> ChooseColour(QWidget* parent, const QColor& current) {
    QColorDialog dialog(current, parent);
    dialog.setObjectName(QStringLiteral("CommonDialog1"));
    dialog.setOption(QColorDialog::ShowAlphaChannel, false);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.selectedColor().rgb();
}
