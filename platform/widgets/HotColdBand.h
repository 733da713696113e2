// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class WindowShade;

/// The ten hottest or coldest numbers: a heading on the mode's colour, the numbers beside it in
/// that colour, red for hot and blue for cold. The numbers stand on white; in a dark window the
/// band is dark and the numbers light, while the labels' palettes keep the colours told.
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
    void TakeShade();

    QLabel* heading_;
    QLabel* numbers_;
    WindowShade* shade_;
};
