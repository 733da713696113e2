// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/RoundedBars.h"
// The plotting library comes first, as its header is written with Qt's keywords.

#include <QPicture>
#include <array>
#include <cmath>

#include "platform/widgets/ChartFigures.h"
#include "platform/widgets/ChartPlot.h"
#include "platform/widgets/ChartShades.h"
#include "platform/widgets/WindowShade.h"

namespace {

constexpr double roomForBars = 0.62;       // of the distance between two places on the axis
constexpr double roomForDenseBars = 0.74;  // the same with more than 12 places
constexpr int airBetweenLabels = 4;
constexpr int airAtSides = 16;  // of the drawing, together
constexpr int mostLabelRows = 3;
constexpr int readableOnDark = 110;
constexpr double airAbove = 0.06;  // of the height, more where figures stand above the bars
constexpr double airForFigures = 0.13;
constexpr int usualWidth = 900;  // of a chart that stands on no form

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

/// Every `rows`-th label starts in the first row, the others each a row lower than the one before.
QString Staggered(const QString& label, int place, int rows) {
    return QString((place - 1) % rows, QLatin1Char('\n')) + label;
}

}  // namespace

ChartPlot::ChartPlot(const ChartFigures& figures, QWidget& chart)
    : figures_(figures), plot_(new QCustomPlot(&chart)) {
    SetUp();
}

QWidget& ChartPlot::Widget() const { return *plot_; }

void ChartPlot::SetUp() {
    plot_->setFocusPolicy(Qt::NoFocus);
    plot_->setLocale(QLocale::c());
    for (QCPAxis* axis : {plot_->xAxis, plot_->yAxis}) {
        axis->setBasePen(Qt::NoPen);
        axis->setTickPen(Qt::NoPen);
        axis->setSubTickPen(Qt::NoPen);
        axis->setTickLabelPadding(6);
    }
    plot_->xAxis->grid()->setVisible(false);
    plot_->setAutoAddPlottableToLegend(false);
}

void ChartPlot::TakeColours(bool dark) {
    drawnDark_ = dark;
    const Shades shades = ShadesOf(dark);
    plot_->setBackground(QBrush(shades.background));
    for (QCPAxis* axis : {plot_->xAxis, plot_->yAxis}) axis->setTickLabelColor(shades.text);
    plot_->yAxis->grid()->setPen(QPen(shades.grid));
    plot_->yAxis->grid()->setZeroLinePen(QPen(shades.axis, 1.2));
}

QColor ChartPlot::Shown(const QColor& told) const {
    return drawnDark_ && told.lightness() < readableOnDark ? OnDark(told) : told;
}

BarLook ChartPlot::ShownLook(int row, int column) const {
    BarLook look = figures_.Look(row, column);
    look.fill = Shown(look.fill);
    return look;
}

void ChartPlot::Draw() {
    TakeColours(dark_);
    DrawAll();
    FitToWidget();
}

void ChartPlot::DrawAll() {
    plot_->clearPlottables();
    plot_->clearItems();
    plot_->axisRect()->setMinimumMargins(QMargins(8, 4, std::max(12, RoomForAverage()), 4));
    DrawHeading();
    DrawAxes();
    for (int column = 1; column <= figures_.Columns(); ++column) {
        if (figures_.kind == ChartKind::Bars) {
            DrawBars(column);
        } else {
            DrawLine(column);
        }
    }
    DrawAverage();
    DrawRankedFigures();
    DrawLegend();
}

void ChartPlot::DrawHeading() {
    if (heading_ == nullptr && !figures_.title.isEmpty()) {
        heading_ = new QCPTextElement(plot_);
        heading_->setMargins(QMargins(0, 4, 0, 4));
        plot_->plotLayout()->insertRow(0);
        plot_->plotLayout()->addElement(0, 0, heading_);
    }
    if (heading_ == nullptr) return;
    heading_->setTextColor(ShadesOf(drawnDark_).text);
    heading_->setFont(Bold(plot_->font()));
    heading_->setText(figures_.title);
    heading_->setVisible(!figures_.title.isEmpty());
}

// Names of series stand between title and drawing, in the middle of a line of their own.
void ChartPlot::DrawLegend() {
    if (legendLine_ != nullptr) {
        plot_->plotLayout()->remove(legendLine_);
        plot_->plotLayout()->simplify();
        legendLine_ = nullptr;
    }
    const bool named = std::ranges::any_of(figures_.columnLabels,
                                           [](const QString& name) { return !name.isEmpty(); });
    if (!named || figures_.ColumnsAreApart() || figures_.Columns() < 2) return;
    legendLine_ = new QCPLayoutGrid;
    const int row = heading_ == nullptr ? 0 : 1;
    plot_->plotLayout()->insertRow(row);
    plot_->plotLayout()->addElement(row, 0, legendLine_);
    auto* legend = new QCPLegend;
    legendLine_->addElement(0, 0, new QCPLayoutElement);
    legendLine_->addElement(0, 1, legend);
    legendLine_->addElement(0, 2, new QCPLayoutElement);
    FillLegend(*legend);
    legendLine_->setMaximumSize(QWIDGETSIZE_MAX, legend->minimumOuterSizeHint().height());
}

void ChartPlot::FillLegend(QCPLegend& legend) {
    const int height = QFontMetrics(plot_->font()).height();
    legend.setLayer(QStringLiteral("legend"));
    legend.setFillOrder(QCPLayoutGrid::foColumnsFirst);
    legend.setColumnSpacing(height);
    legend.setIconSize(2 * height, height);
    legend.setBorderPen(Qt::NoPen);
    legend.setBrush(Qt::NoBrush);
    legend.setFont(plot_->font());
    legend.setTextColor(ShadesOf(drawnDark_).text);
    for (int i = 0; i < plot_->plottableCount(); ++i) {
        legend.addItem(new QCPPlottableLegendItem(&legend, plot_->plottable(i)));
    }
    legend.setMaximumSize(legend.minimumOuterSizeHint());
}

void ChartPlot::DrawAxes() {
    plot_->xAxis->setRange(0.4, figures_.Places() + 0.6);
    auto [lowest, highest] = figures_.Extent();
    if (figures_.range) {
        plot_->yAxis->setRange(figures_.range->first, figures_.range->second);
    } else {
        if (lowest == highest) highest = lowest + 1;
        const double air =
            (highest - lowest) * (figures_.ranked.empty() ? airAbove : airForFigures);
        plot_->yAxis->setRange(lowest < 0 ? lowest - air : 0, highest > 0 ? highest + air : 0);
    }
    plot_->yAxis->setTickLabelFont(plot_->font());
    plot_->xAxis->setLabel(figures_.caption);
    plot_->xAxis->setLabelFont(SmallFont(plot_->font()));
    plot_->xAxis->setLabelColor(ShadesOf(drawnDark_).text);
    DrawTicks();
}

void ChartPlot::DrawBars(int column) {
    auto* bars = new RoundedBars(plot_->xAxis, plot_->yAxis);
    const int besides = figures_.ColumnsAreApart() ? 1 : figures_.Columns();
    const bool dense = figures_.Places() >= denseFrom;
    const double width = (dense ? roomForDenseBars : roomForBars) / besides;
    bars->setName(figures_.ColumnLabel(column));
    bars->setWidth(besides == 1 ? width : width * 0.9);
    bars->setAntialiasedFill(true);
    if (figures_.ColumnsAreApart()) {
        bars->AddBar(column, figures_.Value(1, column), ShownLook(1, column));
        return;
    }
    const double offset = (column - (besides + 1) / 2.0) * width;
    for (int row = 1; row <= figures_.Rows(); ++row) {
        bars->AddBar(row + offset, figures_.Value(row, column), ShownLook(row, column));
    }
}

// Series differ in their strokes too, as colours alone are not for every eye.
void ChartPlot::DrawLine(int column) {
    constexpr std::array strokes = {Qt::SolidLine, Qt::DashLine, Qt::DashDotLine, Qt::DotLine};
    QCPGraph* line = plot_->addGraph();
    const auto series = static_cast<std::size_t>(column - 1);
    line->setName(figures_.ColumnLabel(column));
    line->setPen(QPen(Shown(figures_.looks[series].fill), 2, strokes[series % strokes.size()]));
    for (int row = 1; row <= figures_.Rows(); ++row) {
        line->addData(row, figures_.Value(row, column));
    }
}

// All labels stand in one row where they have room, else in two or three, and where even these are
// too narrow only some are shown.
int ChartPlot::FitLabels(int width) {
    QFont font = plot_->font();
    if (figures_.Places() >= denseFrom) font = SmallFont(font);
    const QFontMetrics metrics(font);
    int widest = 0;
    for (int place = 1; place <= figures_.Places(); ++place) {
        widest = std::max(widest, metrics.horizontalAdvance(figures_.PlaceLabel(place)));
    }
    const int axisWidth = QFontMetrics(plot_->font()).horizontalAdvance(QStringLiteral("00000"));
    const int drawingWidth = width - axisWidth - airAtSides - RoomForAverage();
    const double room = std::max(1.0, drawingWidth / (figures_.Places() + 0.2));
    const int needed = static_cast<int>(std::ceil((widest + airBetweenLabels) / room));
    const int rows = std::clamp(needed, 1, mostLabelRows);
    const int step = std::max(1, (needed + mostLabelRows - 1) / mostLabelRows);
    const QSharedPointer<QCPAxisTickerText> labels(new QCPAxisTickerText);
    shownLabels_.clear();
    for (int place = 1; place <= figures_.Places(); place += step) {
        shownLabels_ += figures_.PlaceLabel(place);
        const auto shown = static_cast<int>(shownLabels_.size());
        labels->addTick(place, Staggered(shownLabels_.back(), shown, rows));
    }
    plot_->xAxis->setTickLabels(widest > 0);
    plot_->xAxis->setTickLabelFont(font);
    plot_->xAxis->setTicker(labels);
    return rows;
}

void ChartPlot::FitToWidget() {
    FitTicks(FitLabels(plot_->width()));
    plot_->replot(QCustomPlot::rpQueuedReplot);
}

int ChartPlot::PlaceAt(const QPoint& point) const {
    return static_cast<int>(std::lround(plot_->xAxis->pixelToCoord(point.x())));
}

/// What `drawing` makes of the chart in light colours, whatever the window's.
template <typename Drawing>
auto ChartPlot::InLight(const Drawing& drawing) {
    TakeColours(false);
    DrawAll();
    auto result = drawing();
    Draw();
    return result;
}

QPixmap ChartPlot::Picture(const QSize& size, double scale) {
    return InLight([&] {
        FitLabels(size.width());
        return plot_->toPixmap(size.width(), size.height(), scale);
    });
}

void ChartPlot::Paint(QPainter& painter, const QRectF& rectangle) {
    // Letters are as large beside the bars as on the screen.
    const int paintedWidth = plot_->isVisible() ? plot_->width() : usualWidth;
    const double factor = rectangle.width() / paintedWidth;
    const int height = static_cast<int>(std::lround(rectangle.height() / factor));
    const QPicture picture = InLight([&] {
        FitLabels(paintedWidth);
        QPicture recording;
        QCPPainter recorder(&recording);
        plot_->toPainter(&recorder, paintedWidth, height);
        recorder.end();
        return recording;
    });
    // A recording grows with the resolution of the device that plays it.
    const double growth = 1.0 * painter.device()->logicalDpiX() / picture.logicalDpiX();
    painter.save();
    painter.translate(rectangle.topLeft());
    painter.scale(factor / growth, factor / growth);
    painter.drawPicture(0, 0, picture);
    painter.restore();
}
