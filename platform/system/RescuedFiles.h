// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// Where what could not be written to the program's folder goes, as `DiskFolder` takes it: the
/// user's data folder, else the temporary folder.
std::vector<QString> RescuePlaces();

/// The files of this user that were rescued to these places, the first place's first.
QStringList RescuedFiles(const std::vector<QString>& places);

/// Notes in the file `record` from which program's folder the rescued file came.
void NoteOrigin(const QString& file, const QString& folder, const QString& record);

/// Those of the files that came from that folder, by the same record, or from nobody knows where: a
/// folder that was not noted or is no longer there.
QStringList FromFolder(const QStringList& files, const QString& folder, const QString& record);

/// Those of the files of which the user has not been told, by the same record; from now on all of
/// them count as told.
QStringList FirstTold(const QStringList& files, const QString& record);
