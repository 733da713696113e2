// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ColourSample.h"

#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleHints>

#include "platform/widgets/Contrast.h"

namespace {

constexpr int airBeside = 10;
constexpr int airAbove = 7;
constexpr int plainWidth = 64;  // of a field without words
constexpr qreal corner = 4;

/// The ground on which words of that colour are read best.
QColor GroundFor(const QColor& words) {
    const QColor light(0xfc, 0xfc, 0xfc);
    const QColor dark(0x20, 0x20, 0x20);
    return Contrast(words, light) >= Contrast(words, dark) ? light : dark;
}

}  // namespace

ColourSample::ColourSample(const QString& name, const QString& words, const QString& toolTip)
    : QLabel(words) {
    setObjectName(name);
    setToolTip(toolTip);
    setAccessibleName(toolTip.trimmed());
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAlignment(Qt::AlignCenter);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

void ColourSample::ShowColour(const QColor& colour) {
    colour_ = colour;
    QPalette shown;
    shown.setColor(text().isEmpty() ? QPalette::Window : QPalette::WindowText, colour);
    setPalette(shown);
    setAccessibleDescription(colour.name());
    update();
}

QSize ColourSample::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int width = text().isEmpty() ? plainWidth : metrics.horizontalAdvance(text());
    return {width + 2 * airBeside, metrics.height() + 2 * airAbove};
}

bool ColourSample::event(QEvent* event) {
    const bool hovered = event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave;
    if (hovered) update();
    return QLabel::event(event);
}

void ColourSample::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!event->isAutoRepeat()) Q_EMIT clicked();
            break;
        default:
            QLabel::keyPressEvent(event);
    }
}

void ColourSample::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
}

void ColourSample::mouseReleaseEvent(QMouseEvent* event) {
    const bool inside = rect().contains(event->position().toPoint());
    const bool clickedHere = pressed_ && inside && event->button() == Qt::LeftButton;
    pressed_ = false;
    if (!clickedHere) return;
    toldAt_ = event->timestamp();
    Q_EMIT clicked();
}

// Mostly the first click of the two has told it already.
void ColourSample::mouseDoubleClickEvent(QMouseEvent* event) {
    pressed_ = false;
    const auto interval =
        static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    if (toldAt_ == 0 || event->timestamp() > toldAt_ + interval) Q_EMIT clicked();
}

void ColourSample::paintEvent(QPaintEvent*) {
    const QPalette& around = parentWidget()->palette();
    const bool marked = hasFocus() || underMouse();
    const QColor edge =
        marked ? around.color(QPalette::Highlight)
               : StandingOut(around.color(QPalette::Mid), around.color(QPalette::Window), 3);
    const qreal line = hasFocus() ? 2 : 1;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, line));
    painter.setBrush(text().isEmpty() ? colour_ : GroundFor(colour_));
    const qreal inset = line / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), corner, corner);
    painter.setPen(colour_);
    painter.drawText(rect(), Qt::AlignCenter, text());
}
