// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/DesktopColours.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QLabel>

#include "tests/support/form_test.h"

namespace {

const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto colourScheme = QStringLiteral("color-scheme");

class DesktopThatTells : public testing::Test {
  protected:
    ~DesktopThatTells() override { QApplication::setPalette(before); }

    static bool WindowsAreDark() {
        const QLabel window;
        return window.palette().color(QPalette::Window).lightness() < 128;
    }

    const QPalette before = QApplication::palette();
    DesktopColours colours;
};

TEST_F(DesktopThatTells, DarkAndThenLightIsFollowedWhileWindowsAreOpen) {
    QLabel window(QStringLiteral("open"));
    window.show();
    colours.SettingChanged(appearance, colourScheme, QDBusVariant(1U));
    QApplication::processEvents();
    EXPECT_TRUE(WindowsAreDark());
    EXPECT_EQ(window.palette().color(QPalette::Window), DarkPalette().color(QPalette::Window));
    colours.SettingChanged(appearance, colourScheme, QDBusVariant(2U));
    QApplication::processEvents();
    EXPECT_EQ(QApplication::palette(), before);
    EXPECT_EQ(window.palette().color(QPalette::Window), before.color(QPalette::Window));
}

TEST_F(DesktopThatTells, NoPreferenceIsLight) {
    colours.Prefer(1);
    colours.Prefer(0);
    EXPECT_EQ(QApplication::palette(), before);
}

TEST_F(DesktopThatTells, TheAnswerIsUnwrapped) {
    const QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("a.b"), QStringLiteral("/"), QStringLiteral("a.b"), QStringLiteral("c"));
    const QVariant inner = QVariant::fromValue(QDBusVariant(1U));
    colours.Answered(question.createReply(QVariant::fromValue(QDBusVariant(inner))));
    EXPECT_TRUE(WindowsAreDark());
}

TEST_F(DesktopThatTells, AnErrorAndOtherSettingsChangeNothing) {
    colours.Answered(
        QDBusMessage::createError(QStringLiteral("a.b.c"), QStringLiteral("no portal")));
    colours.SettingChanged(appearance, QStringLiteral("contrast"), QDBusVariant(1U));
    colours.SettingChanged(QStringLiteral("a.b"), colourScheme, QDBusVariant(1U));
    EXPECT_EQ(QApplication::palette(), before);
}

TEST_F(DesktopThatTells, ColoursThatTheDesktopGaveAreLeftAlone) {
    QPalette own = DarkPalette();
    own.setColor(QPalette::Window, Qt::black);
    QApplication::setPalette(own);
    colours.Prefer(1);
    EXPECT_EQ(QApplication::palette(), own);
    colours.Prefer(2);
    EXPECT_EQ(QApplication::palette(), own);
}

}  // namespace
