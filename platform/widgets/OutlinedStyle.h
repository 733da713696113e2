// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

/// Fusion, whose outlines are a shade of the window's colour: on black nobody sees where a text box
/// is or a box that is not ticked. Here boxes and options stand out from every window, and at the
/// highest contrast whatever has an outline has it in the colour of the words.
class OutlinedStyle final : public QProxyStyle {
    Q_OBJECT
  public:
    OutlinedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};
