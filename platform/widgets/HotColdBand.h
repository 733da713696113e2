// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

/// The ten hottest or coldest numbers: a heading on the mode's colour, the numbers beside it in
/// that colour, red for hot and blue for cold. The numbers stand on white on every desktop.
class HotColdBand final : public QWidget {
    Q_OBJECT
  public:
    /// The names of the two labels.
    HotColdBand(const QString& headingName, const QString& numbersName, QWidget* parent = nullptr);

    QLabel& Heading() { return *heading_; }
    QLabel& Numbers() { return *numbers_; }

    /// Colours both labels.
    void SetCold(bool cold);

  private:
    QLabel* heading_;
    QLabel* numbers_;
};
