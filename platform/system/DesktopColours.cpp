// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/DesktopColours.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QVariant>

namespace {

const auto portal = QStringLiteral("org.freedesktop.portal.Desktop");
const auto place = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settings = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto colourScheme = QStringLiteral("color-scheme");

constexpr uint preferDark = 1;

/// A value comes wrapped once by the signal and twice by the answer.
uint SchemeIn(QVariant value) {
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

}  // namespace

QPalette DarkPalette() {
    const QColor window(0x31, 0x36, 0x3b);
    const QColor base(0x23, 0x26, 0x29);
    const QColor text(0xef, 0xf0, 0xf1);
    QPalette palette(text, window, window.lighter(130), window.darker(150), window.darker(120),
                     text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    palette.setColor(QPalette::HighlightedText, base);
    palette.setColor(QPalette::Link, QColor(0x5d, 0xbe, 0xf9));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x7f, 0x86, 0x8c));
    }
    return palette;
}

DesktopColours::DesktopColours(QObject* parent) : QObject(parent) {}

void DesktopColours::Follow() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(portal, place, settings, QStringLiteral("SettingChanged"), this,
                SLOT(SettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(portal, place, settings, QStringLiteral("Read"));
    question << appearance << colourScheme;
    bus.callWithCallback(question, this, SLOT(Answered(QDBusMessage)));
}

void DesktopColours::Answered(const QDBusMessage& answer) {
    if (!answer.arguments().isEmpty()) Prefer(SchemeIn(answer.arguments().constFirst()));
}

void DesktopColours::SettingChanged(const QString& group, const QString& key,
                                    const QDBusVariant& value) {
    if (group == appearance && key == colourScheme) Prefer(SchemeIn(value.variant()));
}

// Colours that the desktop gave are left alone.
void DesktopColours::Prefer(uint scheme) {
    if (scheme == preferDark && !madeDark_ && !IsDark(QApplication::palette())) {
        light_ = QApplication::palette();
        madeDark_ = true;
        QApplication::setPalette(DarkPalette());
    } else if (scheme != preferDark && madeDark_) {
        madeDark_ = false;
        QApplication::setPalette(light_);
    }
}
