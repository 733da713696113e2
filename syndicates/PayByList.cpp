// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/PayByList.h"

#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "syndicates/members.h"

ComboList* MakePayByList() {
    auto* list = Named(new ComboList, QStringLiteral("Combo1"));
    for (const char* const method : payByMethods) list->addItem(QString::fromLatin1(method));
    list->SetIndex(0);
    return list;
}
