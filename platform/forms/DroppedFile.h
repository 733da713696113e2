// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QMimeData;
class QWidget;

/// The path of the one file of this computer that is dragged; empty where it is none, or several.
QString DroppedFile(const QMimeData& dragged);

/// Makes the window take files dropped on it, also where one of its text boxes lies, which would
/// take the file's name for a text.
void TakeDroppedFiles(QWidget& window);
