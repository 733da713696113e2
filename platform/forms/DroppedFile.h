// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QMimeData;

/// The path of the one file of this computer that is dragged; empty where it is none, or several.
QString DroppedFile(const QMimeData& dragged);
