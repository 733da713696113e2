// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/AppendShownLines.h"

#include <QCoreApplication>
#include <vector>

#include "core/saved_entries.h"
#include "core/settings.h"
#include "core/text.h"
#include "entries/SaveEntries.h"
#include "platform/forms/Form.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Grid.h"

namespace {

int CountLines(const Grid& grid) {
    int count = 0;
    while (!grid.Cell(count + 1, 1).isEmpty()) ++count;
    return count;
}

SavedEntry EntryOf(const State& state, const Grid& grid, int row, const std::string& player) {
    SavedEntry entry;
    entry[entry_column::date] = state.Settings(setting::DrawDate);
    for (int column = 1; column <= entry_column::extraBall; ++column) {
        entry[static_cast<std::size_t>(column)] = FromQString(grid.Cell(row, column));
    }
    entry[entry_column::lottery] = state.LotteryName;
    entry[entry_column::player] = player;
    entry[entry_column::database] = state.DbaseFile;
    return entry;
}

/// Such as "10 lines saved for Wed 11 Jun 2025, Anna".
QString WhatWasSaved(std::size_t lines, const SaveEntries& dialog) {
    const auto words = [](const char* text) {
        return QCoreApplication::translate("AppendShownLines", text);
    };
    const QString what =
        lines == 1 ? words("1 line saved for ") : words("%1 lines saved for ").arg(lines);
    const QString player = ToQString(Trim(dialog.PlayerName()));
    return what % dialog.ShownDrawDate() %
           (player.isEmpty() ? QString() : QStringLiteral(", ") % player);
}

}  // namespace

void SaveLines(Program& program, Form* form, Grid& grid) {
    grid.SetCurrentCell(1, 1);
    if (grid.Cell(1, 1).isEmpty()) return;
    SaveEntries dialog(program, form);
    dialog.Load();
    dialog.SetLineCount(CountLines(grid));
    dialog.exec();
    const int wanted = dialog.LineCount();
    if (wanted == 0) return;

    std::vector<SavedEntry> entries;
    int row = 1;
    do {
        entries.push_back(EntryOf(program.state, grid, row, dialog.PlayerName()));
        ++row;
    } while (row <= wanted && !grid.Cell(row, 1).isEmpty());
    AppendEntries(program.folder, entries);
    form->Say(WhatWasSaved(entries.size(), dialog));
}
