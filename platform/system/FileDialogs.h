// SPDX-License-Identifier: GPL-3.0-or-later
// Files that lie where the user says, and not in the program's folder.
#pragma once

#include <QByteArray>
#include <QString>

class QWidget;

/// Asks where a PDF is to go, at first the user's documents; ".pdf" is added where no suffix is
/// typed. Empty where the user has thought better of it.
QString AskForPdfFile(QWidget* parent, const QString& proposed);

/// Writes the file whole, or leaves what was there. Returns the system's reason where it cannot,
/// nothing where it is written.
QString WriteUserFile(const QString& path, const QByteArray& bytes);
