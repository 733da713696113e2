// SPDX-License-Identifier: GPL-3.0-or-later
// How a page's millimetres become drawing. A painter of pages has the printer's origin and twips as
// its unit, twenty to a point, so that each size of letters is a whole number.
#pragma once

#include <QSizeF>

#include "printing/page.h"

class QPainter;

constexpr double twipsPerInch = 1440;
constexpr double twipsPerMillimetre = twipsPerInch / 25.4;

/// What a sheet has room for whose printable part is so large, in millimetres.
SheetRoom RoomOn(const QSizeF& millimetres);

/// Draws texts as texts and rectangles filled, all black.
void DrawSheet(QPainter& painter, const Sheet& sheet);
