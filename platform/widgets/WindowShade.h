// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QObject>
#include <functional>

class QWidget;

/// The counterpart, on a dark background, of a colour made for white: the same hue, light enough to
/// be read.
QColor OnDark(const QColor& colour);

/// Watches whether a widget stands in a dark window, which the desktop's theme and the skin decide.
class WindowShade final : public QObject {
    Q_OBJECT
  public:
    /// `changed` is called after each change; a widget that is not shown yet stands in a light one.
    WindowShade(QWidget& widget, std::function<void()> changed);

    bool IsDark() const { return dark_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Look();

    QWidget& widget_;
    std::function<void()> changed_;
    bool dark_ = false;
};
