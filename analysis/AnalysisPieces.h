// SPDX-License-Identifier: GPL-3.0-or-later
// What the charts of several analysis forms have in common.
#pragma once

#include <QString>

#include "platform/widgets/Chart.h"

class QLabel;

/// Whether the places of draws stand below their bars.
enum class DrawLabels { Shown, None };

/// Calls the rows of a chart by their draws, the newest first; rows behind the `draws` that there
/// are say so.
void NameDraws(Chart& chart, int draws, DrawLabels labels);

/// A label for a figure that is read first; what it shows can be copied.
QLabel* MakeFigure(const QString& name);

/// Row i + 1 of eight: "i:j", of which `counts` says how many there are; what is left of the rows
/// is empty. `words` is the ratio in words, "%1 low, %2 high".
template <typename Counts>
void SetRatios(Chart& chart, const Counts& counts, int picks, const QString& words) {
    std::vector<int> inUse;
    for (int row = 1; row <= chart.rowCount(); ++row) {
        chart.SetRowLabel(row, {});
        chart.SetRowName(row, {});
        chart.SetValue(row, 1, 0);
    }
    for (int first = 0; first <= picks; ++first) {
        const int row = first + 1;
        chart.SetRowLabel(row, QStringLiteral("%1:%2").arg(first).arg(picks - first));
        chart.SetRowName(row, words.arg(first).arg(picks - first));
        chart.SetValue(row, 1, counts(first));
        inUse.push_back(row);
    }
    chart.SetRankedRows(inUse);
}

/// A row for each number from 1 to `highest`. Where the counts do not go so far the failure comes
/// first, as a chart of a thousand million rows takes all memory.
template <typename Counts>
void SetNumbers(Chart& chart, const Counts& counts, int highest) {
    if (highest > 0) static_cast<void>(counts(highest));
    chart.SetRowCount(highest);
    for (int number = 1; number <= highest; ++number) {
        chart.SetRowLabel(number, QString::number(number));
        chart.SetValue(number, 1, counts(number));
    }
}
