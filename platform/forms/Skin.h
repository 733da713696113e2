// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

#include "core/colour.h"
#include "core/settings.h"
#include "platform/forms/Form.h"

class QPainter;
class QWidget;

/// The colour of a value: red in the low byte, or a system colour by its number. System colours are
/// those of a light desktop, as the system's own colours are made for it.
QColor ToQColor(Colour colour);

/// The value of a colour, whatever its transparency.
Colour ToColour(const QColor& colour);

/// The colour that a slot of the settings holds. A slot that holds none is a `Failure`.
QColor SettingColour(const State& state, setting::Slot slot);

/// The bits of `setting::SkinBits`.
struct SkinChoice {
    bool pictures = false;
    bool colours = false;
};
SkinChoice SkinChoiceOf(const State& state);

/// The picture, where pictures are chosen and the file exists; otherwise a null pixmap. A file that
/// holds no picture is a `Failure`.
QPixmap SkinPicture(const State& state, const ProgramFolder& folder, const QString& pictureFile);

/// All of a form's colours from its background, so that inputs and buttons fit to it whatever the
/// desktop's theme.
QPalette PaletteOn(const QColor& background);

/// Gives the form's palette the background colour of the settings, with text that can be read on
/// it, and the labels theirs; or takes both back where colours are switched off. A label that the
/// form does not have is a `Failure`.
void ApplySkinColours(const State& state, QWidget& form, const SkinLabels& labels);

/// Paints the picture over the whole of `area`, cut rather than distorted. On a dark desktop it is
/// toned down so that light text stays readable.
void PaintSkin(QPainter& painter, const QRect& area, const QPixmap& picture,
               const QPalette& palette);
