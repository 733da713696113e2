// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/OutlinedStyle.h"

#include <QPainter>
#include <QStyleOption>

#include "platform/widgets/Contrast.h"

namespace {

constexpr double ofASymbol = 3;
constexpr qreal roundness = 2;

enum class Outline { None, Box, Option, Input };

Outline OutlineOf(QStyle::PrimitiveElement element) {
    switch (element) {
        case QStyle::PE_IndicatorCheckBox:
            return Outline::Box;
        case QStyle::PE_IndicatorRadioButton:
            return Outline::Option;
        case QStyle::PE_FrameLineEdit:
        case QStyle::PE_PanelButtonCommand:
        case QStyle::PE_Frame:
            return Outline::Input;
        default:
            return Outline::None;
    }
}

QColor ColourOf(Outline outline, const QStyleOption& option) {
    const QPalette& palette = option.palette;
    if (IsExtreme(palette)) return palette.color(QPalette::WindowText);
    if (outline == Outline::Input) return {};
    constexpr int fusionShade = 140;
    const QColor window = palette.color(QPalette::Window);
    return StandingOut(window.darker(fusionShade), window, ofASymbol);
}

/// What has the focus has an outline of its own.
bool ShowsFocus(const QStyleOption& option) {
    return (option.state & QStyle::State_HasFocus) != 0 &&
           (option.state & QStyle::State_KeyboardFocusChange) != 0;
}

void Draw(Outline outline, const QStyleOption& option, QPainter& painter) {
    if (outline == Outline::None || ShowsFocus(option)) return;
    const QColor colour = ColourOf(outline, option);
    if (!colour.isValid()) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour);
    painter.setBrush(Qt::NoBrush);
    const QRectF rect = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (outline == Outline::Option) {
        painter.drawEllipse(rect);
    } else if (outline == Outline::Box) {
        painter.drawRect(rect);
    } else {
        painter.drawRoundedRect(rect, roundness, roundness);
    }
    painter.restore();
}

/// The style marks a button that has the focus as it marks the default one, and lists, tables and
/// texts not at all.
void DrawFocus(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter) {
    const bool button = element == QStyle::PE_PanelButtonCommand;
    if (!ShowsFocus(option) || (!button && element != QStyle::PE_Frame)) return;
    const double inset = button ? 3.5 : 0.5;
    const QColor colour = option.palette.color(button ? QPalette::ButtonText : QPalette::Highlight);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour);
    painter.setBrush(Qt::NoBrush);
    const QRectF rect = QRectF(option.rect).adjusted(inset, inset, -inset, -inset);
    painter.drawRoundedRect(rect, roundness, roundness);
    painter.restore();
}

}  // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    Draw(OutlineOf(element), *option, *painter);
    DrawFocus(element, *option, *painter);
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox || control == CC_SpinBox) Draw(Outline::Input, *option, *painter);
}
