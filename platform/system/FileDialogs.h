// SPDX-License-Identifier: GPL-3.0-or-later
// Files that lie where the user says, and not in the program's folder.
#pragma once

#include <QByteArray>
#include <QString>

class QWidget;

/// Asks where a PDF is to go, at first the user's documents; ".pdf" is added where no suffix is
/// typed. Empty where the user has thought better of it.
QString AskForPdfFile(QWidget* parent, const QString& proposed);

/// Asks for a folder that there is, at first where the user's disks appear. Its path, or empty
/// where the user has thought better of it.
QString ChooseFolder(QWidget* parent, const QString& title);

/// Asks for a file that there is, at first in the user's downloads; `filter` is such as
/// "Texts (*.txt *.csv);;All files (*)". Its path, or empty where the user has thought better of
/// it.
QString ChooseFile(QWidget* parent, const QString& title, const QString& filter);

/// Writes the file whole, or leaves what was there. Returns the system's reason where it cannot,
/// nothing where it is written.
QString WriteUserFile(const QString& path, const QByteArray& bytes);
