// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSettings>
#include <QSize>
#include <optional>

/// How large a window was left by its user.
struct WindowState {
    QSize size;
    bool maximized = false;
    bool operator==(const WindowState&) const = default;
};

/// The sizes of windows by their names, in a file of the user's own configuration: they belong to
/// the computer and its screen, not to the program's folder. What cannot be read or written there
/// goes unnoticed, as a window then opens in its usual size.
class WindowStates {
  public:
    explicit WindowStates(const QString& path) : file_(path, QSettings::IniFormat) {}

    std::optional<WindowState> Of(const QString& window) const;

    /// Writes it to disk at once.
    void Keep(const QString& window, const WindowState& state);

  private:
    QSettings file_;
};
