// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QRect>
#include <QStringList>

class ChartFigures;
struct BarLook;
class QCPLayoutGrid;
class QCPLegend;
class QCPTextElement;
class QCustomPlot;
class QPainter;
class QWidget;

/// The drawing of a chart, by the plotting library, which this class keeps out of all others.
class ChartPlot {
  public:
    ChartPlot(const ChartFigures& figures, QWidget& chart);

    /// The widget that shows the drawing; it belongs to the chart.
    QWidget& Widget() const;

    /// Whether the widget is drawn for a dark window; pictures and paper are light all the same.
    void SetDark(bool dark) { dark_ = dark; }

    /// Draws the figures as they are now.
    void Draw();

    /// Lays the labels out for another size of the widget.
    void FitToWidget();

    /// The place on the horizontal axis at a point of the widget; it may lie outside the figures.
    int PlaceAt(const QPoint& point) const;

    /// The labels that stand below the axis.
    const QStringList& ShownLabels() const { return shownLabels_; }

    /// The drawing without anything around it, on white.
    QPixmap Picture(const QSize& size, double scale);

    /// Draws into a rectangle of any paint device, in lines and letters rather than pixels.
    void Paint(QPainter& painter, const QRectF& rectangle);

  private:
    void SetUp();
    void TakeColours(bool dark);
    QColor Shown(const QColor& told) const;
    BarLook ShownLook(int row, int column) const;
    void DrawAll();
    void DrawAverage();

    /// The width of the average's words at the right of the drawing.
    int RoomForAverage() const;
    void DrawRankedFigures();
    template <typename Drawing>
    auto InLight(const Drawing& drawing);
    void DrawHeading();
    void DrawLegend();
    void FillLegend(QCPLegend& legend);
    void DrawAxes();
    void DrawTicks();
    void DrawBars(int column);
    void DrawLine(int column);
    int FitLabels(int width);  ///< Returns in how many rows they stand.
    void FitTicks(int labelRows);

    const ChartFigures& figures_;
    QCustomPlot* plot_;
    QCPTextElement* heading_ = nullptr;
    QCPLayoutGrid* legendLine_ = nullptr;
    QStringList shownLabels_;
    bool dark_ = false;       // of the window
    bool drawnDark_ = false;  // of the drawing at this moment
};
