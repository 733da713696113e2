// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/CommaWarning.h"

#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>

#include "platform/widgets/Icons.h"

void WarnOfCommas(QLineEdit& name) {
    QAction* mark =
        name.addAction(ThemeIcon(QStringLiteral("dialog-warning")), QLineEdit::TrailingPosition);
    mark->setObjectName(QStringLiteral("CommaWarning"));
    mark->setVisible(false);
    const QString warning =
        QCoreApplication::translate("CommaWarning",
                                    "A comma divides the fields of an entry: the part of the name "
                                    "behind it would be read as the "
                                    "name of the draw database, and the check would end the "
                                    "program. Write the name without it.");
    mark->setToolTip(warning);
    QObject::connect(&name, &QLineEdit::textChanged, &name,
                     [&name, mark, warning, tip = name.toolTip(),
                      description = name.accessibleDescription()](const QString& text) {
                         const bool comma = text.contains(QLatin1Char(','));
                         if (comma == mark->isVisible()) return;
                         mark->setVisible(comma);
                         name.setToolTip(comma ? warning : tip);
                         name.setAccessibleDescription(comma ? warning : description);
                     });
}
