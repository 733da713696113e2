// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QFont>

/// The letters of the desktop, of that size in points while this lives.
class Letters {
  public:
    explicit Letters(int points) {
        QFont font = usual_;
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    ~Letters() { QApplication::setFont(usual_); }
    Letters(const Letters&) = delete;
    Letters& operator=(const Letters&) = delete;

  private:
    QFont usual_ = QApplication::font();
};

/// The sizes of letters that desktops come with and people choose.
constexpr int letterSizes[] = {9, 11, 12};
