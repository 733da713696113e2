// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class MessageBoxes;
class QWidget;

/// Tells the user of the files into which an earlier run put what it could not save, if there are
/// any.
void TellOfRescuedFiles(MessageBoxes& messages, QWidget* parent, const QStringList& files);
