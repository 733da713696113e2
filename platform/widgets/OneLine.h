// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

/// The text with a blank for the line ends within it, and without those at its ends.
QString OnOneLine(const QString& text);

/// Lets no line end into the text boxes of one line below `parent`: of what is pasted, line ends
/// become a blank, and none at the end of the text. The files keep such a text within a line, and a
/// line more would shift all that follows. Boxes that check their text themselves are left alone.
void KeepTextBoxesToOneLine(const QWidget& parent);
