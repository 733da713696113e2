// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/IconButton.h"

#include <QEvent>

#include "platform/widgets/Contrast.h"
#include "platform/widgets/Icons.h"

namespace {

constexpr int iconEdge = 22;
// More than small text wants, as the style brightens what it fills.
constexpr double accentContrast = 6;

/// The colours of a button on the accent of its surroundings.
QPalette AccentOf(const QPalette& surroundings) {
    QPalette accent;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = surroundings.color(QPalette::Active, QPalette::HighlightedText);
        const QColor ground = surroundings.color(QPalette::Active, QPalette::Highlight);
        accent.setColor(group, QPalette::Button, StandingOut(ground, text, accentContrast));
        accent.setColor(group, QPalette::ButtonText, text);
    }
    return accent;
}

}  // namespace

IconButton::IconButton(const QString& icon, QWidget* parent)
    : QPushButton(parent), iconName_(icon) {
    setIconSize(QSize(iconEdge, iconEdge));
    TakeColours();
}

void IconButton::StandOut() {
    standsOut_ = true;
    TakeColours();
}

// Where its colours are those of the surroundings already, nothing changes and no event follows.
void IconButton::TakeColours() {
    if (standsOut_) setPalette(AccentOf(palette()));
    setIcon(ThemeIcon(iconName_, palette().color(QPalette::Active, QPalette::ButtonText)));
}

void IconButton::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    const bool colours = event->type() == QEvent::PaletteChange;
    if (colours || event->type() == QEvent::ThemeChange) TakeColours();
}
