// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// Paints the widget as a sheet on the background picture, on which words stay readable whatever
/// the picture, with corners of that radius. At extreme contrast no picture shines through, and
/// the edge has the colour of the words.
void PaintSheet(QWidget& widget, int radius);
