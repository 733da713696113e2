// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/LotteryList.h"

#include "core/draw_database.h"
#include "core/failure.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"

void ListDatabases(Program& program, ListBox& list) {
    for (const std::string& name : ListDatabases(program.state, program.folder)) {
        list.addItem(ToQString(name));
    }
    list.SetIndex(-1);
}

void ChooseFirstLottery(ListBox& list) {
    if (list.count() == 0) {
        throw Failure(
            "There is no lottery to choose: no draw database (dbase*.txt) was found in the "
            "program's folder. Start the program again and make one with Databases, Create lottery "
            "database, or put one there.");
    }
    list.SetIndex(0);
}
