// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>
#include <memory>
#include <optional>

class QSettings;

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
    explicit WindowStates(const QString& path);
    ~WindowStates();
    WindowStates(const WindowStates&) = delete;
    WindowStates& operator=(const WindowStates&) = delete;

    std::optional<WindowState> Of(const QString& window) const;

    /// Writes it to disk at once.
    void Keep(const QString& window, const WindowState& state);

  private:
    std::unique_ptr<QSettings> file_;
};
