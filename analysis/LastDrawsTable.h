// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGridLayout>
#include <array>

#include "analysis/recent_draws.h"

class QLabel;

/// The names of the labels of one of the last draws.
struct LastDrawNames {
    const char* numbers;
    const char* ratio;
};

/// The last four draws, one below the other, each with its ratio beside it.
class LastDrawsTable final : public QGridLayout {
    Q_OBJECT
  public:
    /// `heading` stands above them.
    LastDrawsTable(QLabel* heading, const std::array<LastDrawNames, 4>& names);

    void Show(const LastDraws& draws);

  private:
    struct Row {
        QLabel* numbers;
        QLabel* ratio;
    };
    std::array<Row, 4> rows_{};
};
