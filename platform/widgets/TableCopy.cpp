// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/TableCopy.h"

#include <QAbstractItemView>
#include <QAction>

#include "platform/widgets/Grid.h"
#include "platform/widgets/Widgets.h"

void AddCopyMenu(QAbstractItemView& table, const std::function<void()>& copy) {
    auto* copying = Named(new QAction(Grid::tr("Copy"), &table), QStringLiteral("Copy"));
    auto* selecting =
        Named(new QAction(Grid::tr("Select all"), &table), QStringLiteral("SelectAll"));
    copying->setShortcut(QKeySequence::Copy);
    selecting->setShortcut(QKeySequence::SelectAll);
    QObject::connect(copying, &QAction::triggered, &table, copy);
    QObject::connect(selecting, &QAction::triggered, &table, &QAbstractItemView::selectAll);
    for (QAction* action : {copying, selecting}) action->setShortcutContext(Qt::WidgetShortcut);
    table.addActions({copying, selecting});
    table.setContextMenuPolicy(Qt::ActionsContextMenu);
}
