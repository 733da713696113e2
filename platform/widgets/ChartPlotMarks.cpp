// SPDX-License-Identifier: GPL-3.0-or-later
// What a chart says beyond its bars: the figures of the axis, the average, those of ranked bars.
#include "platform/widgets/RoundedBars.h"
// The plotting library comes first, as its header is written with Qt's keywords.
#include <QCoreApplication>
#include <algorithm>
#include <cmath>

#include "platform/widgets/ChartFigures.h"
#include "platform/widgets/ChartPlot.h"
#include "platform/widgets/ChartShades.h"

namespace {

constexpr int airBesideWords = 4;
constexpr int mostTicks = 4;

/// In two lines, as they stand at the side.
QString WordsOf(double average) {
    return QCoreApplication::translate("Chart", "average\n%1").arg(std::lround(average));
}

}  // namespace

void ChartPlot::DrawTicks() {
    constexpr double fewSteps = 20;
    if (figures_.AllWhole() && plot_->yAxis->range().size() < fewSteps) {
        const QSharedPointer<QCPAxisTickerFixed> steps(new QCPAxisTickerFixed);
        steps->setTickStep(1);
        steps->setScaleStrategy(QCPAxisTickerFixed::ssMultiples);
        steps->setTickCount(mostTicks);
        plot_->yAxis->setTicker(steps);
        return;
    }
    const QSharedPointer<QCPAxisTicker> steps(new QCPAxisTicker);
    steps->setTickCount(mostTicks);
    plot_->yAxis->setTicker(steps);
}

// In a low chart the figures of the axis would stand upon each other.
void ChartPlot::FitTicks(int labelRows) {
    constexpr int linesForTick = 2;
    const int headings = (heading_ != nullptr ? 1 : 0) + (legendLine_ != nullptr ? 1 : 0) +
                         (plot_->xAxis->label().isEmpty() ? 0 : 1);
    const int lines = plot_->height() / QFontMetrics(plot_->font()).height();
    const int ticks = (lines - labelRows - headings - 1) / linesForTick;
    plot_->yAxis->ticker()->setTickCount(std::clamp(ticks, 1, mostTicks));
}

int ChartPlot::RoomForAverage() const {
    if (!figures_.average) return 0;
    const QFontMetrics metrics(SmallFont(plot_->font()));
    return metrics.size(0, WordsOf(*figures_.average)).width() + 2 * airBesideWords;
}

// The words stand beside the bars, which they would hide.
void ChartPlot::DrawAverage() {
    if (!figures_.average) return;
    const QColor colour = ShadesOf(drawnDark_).text;
    auto* line = new QCPItemStraightLine(plot_);
    line->point1->setCoords(0, *figures_.average);
    line->point2->setCoords(1, *figures_.average);
    line->setPen(QPen(colour, 1, Qt::DashLine));
    auto* words = new QCPItemText(plot_);
    words->setText(WordsOf(*figures_.average));
    words->setFont(SmallFont(plot_->font()));
    words->setColor(colour);
    words->setClipToAxisRect(false);
    words->setPadding(QMargins(airBesideWords, 0, 0, 0));
    words->setTextAlignment(Qt::AlignLeft);
    words->setPositionAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    words->position->setTypeX(QCPItemPosition::ptAxisRectRatio);
    words->position->setTypeY(QCPItemPosition::ptPlotCoords);
    words->position->setCoords(1, *figures_.average);
}

// Where bars stand closer than figures are wide, the figures stand upright.
void ChartPlot::DrawRankedFigures() {
    const QFont font = SmallFont(plot_->font());
    for (const int row : figures_.ranked) {
        if (row > figures_.Rows()) continue;
        const double value = figures_.Value(row, 1);
        auto* figure = new QCPItemText(plot_);
        figure->setText(QString::number(value));
        figure->setFont(font);
        figure->setColor(ShadesOf(drawnDark_).text);
        const bool upright = figures_.Places() >= denseFrom;
        figure->setRotation(upright ? -90 : 0);
        figure->setPositionAlignment(upright ? Qt::AlignLeft | Qt::AlignVCenter
                                             : Qt::AlignHCenter | Qt::AlignBottom);
        figure->setPadding(upright ? QMargins(3, 0, 0, 0) : QMargins(0, 0, 0, 2));
        figure->position->setCoords(row, value);
    }
}
