// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPalette>

class QDBusMessage;
class QDBusVariant;

/// The colours of a dark window, for desktops that say "dark" and give no colours.
QPalette DarkPalette();

/// Follows what the desktop says of light and dark, also while the program runs.
///
/// Some desktops hand Qt their colours, which then change by themselves; others only tell, through
/// the desktop portal, that dark windows are preferred. Of these the program's windows take
/// `DarkPalette`, and their light colours again. Where there is no portal nothing happens.
class DesktopColours final : public QObject {
    Q_OBJECT
  public:
    explicit DesktopColours(QObject* parent = nullptr);

    /// Asks the portal, and listens to it from now on.
    void Follow();

    /// What the portal tells: 1 prefers dark, 2 light, anything else neither.
    void Prefer(uint scheme);

  public Q_SLOTS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void Answered(const QDBusMessage& answer);

  private:
    bool madeDark_ = false;
    QPalette light_;
};
