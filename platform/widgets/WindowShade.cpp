// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/WindowShade.h"

#include <QEvent>
#include <QPalette>
#include <QWidget>
#include <utility>

namespace {

constexpr float readableLightness = 0.75F;
constexpr int halfLight = 128;

}  // namespace

QColor OnDark(const QColor& colour) {
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    colour.getHslF(&hue, &saturation, &lightness);
    return QColor::fromHslF(hue, saturation, qMax(lightness, readableLightness)).toRgb();
}

WindowShade::WindowShade(QWidget& widget, std::function<void()> changed)
    : QObject(&widget), widget_(widget), changed_(std::move(changed)) {
    widget_.installEventFilter(this);
}

// A widget may move to another window between two showings.
bool WindowShade::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &widget_ && event->type() == QEvent::Show) {
        if (widget_.window() != &widget_) widget_.window()->installEventFilter(this);
        Look();
    }
    if (watched == widget_.window() && event->type() == QEvent::PaletteChange) Look();
    return false;
}

// A widget that is its own window chooses its colours itself.
void WindowShade::Look() {
    const QWidget* window = widget_.window();
    const QPalette around = window == &widget_ ? QPalette() : window->palette();
    const bool dark = qGray(around.color(QPalette::Window).rgb()) < halfLight;
    if (dark == dark_) return;
    dark_ = dark;
    changed_();
}
