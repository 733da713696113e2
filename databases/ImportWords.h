// SPDX-License-Identifier: GPL-3.0-or-later
// What the forms of the import say.
#pragma once

#include <QString>
#include <QStringList>

#include "databases/import_session.h"

/// "1 draw", "2,065 draws".
QString DrawsInWords(std::size_t draws);

/// "20 Nov 2021".
QString DayInWords(Date date);

/// What a column may be, in the order of `ColumnRole`.
QStringList RoleWords();

/// What was taken of the source in one sentence: how many draws, of which days, by which rules.
QString TakenInWords(const ImportSession& session);

/// What stands below the table of draws: what is a guess, what is not kept and what has no room.
QString RemarksOf(const ImportSession& session);

/// What an import into new lotteries would do.
QString NewInWords(const std::vector<PlannedLottery>& lotteries);

/// What an import into a lottery that is there would do.
QString MergeInWords(const MergedDatabase& merged);
