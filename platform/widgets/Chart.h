// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <QWidget>
#include <memory>
#include <optional>
#include <vector>

#include "platform/widgets/ChartFigures.h"

class ChartPlot;
class WindowShade;
class QAction;
class QPainter;

/// A chart of bars or lines whose figures can be read: by tests, by screen readers, by resting the
/// mouse over a place, and by copying (Ctrl+C and the context menu).
///
/// Rows and columns count from 1, others are a `Failure`; a column is a series, a row a place on
/// the horizontal axis. With one row each of several columns is a bar of its own with the column's
/// label below it; with more the bars of a row stand side by side above its label. Labels that do
/// not fit side by side are staggered. In a dark window the chart is dark; paper and copies are
/// light.
///
/// What is set shows with the next `Refresh`.
class Chart final : public QWidget {
    Q_OBJECT
  public:
    Chart(int rowCount, int columnCount, QWidget* parent = nullptr);
    ~Chart() override;

    Q_INVOKABLE QString title() const;
    Q_INVOKABLE int rowCount() const;
    Q_INVOKABLE int columnCount() const;
    Q_INVOKABLE QString rowLabel(int row) const;
    Q_INVOKABLE QString columnLabel(int column) const;
    Q_INVOKABLE double value(int row, int column) const;

    /// The labels below the axis at the chart's present width: all of them, unless it is so narrow
    /// that even staggered ones would overlap.
    Q_INVOKABLE QStringList shownLabels();

    /// The colours of the first series: of its pattern, and of what lies below the pattern. Without
    /// a pattern both are the colour of the series.
    Q_INVOKABLE QColor patternColour() const;
    Q_INVOKABLE QColor fillColour() const;

    void SetTitle(const QString& title);

    /// A line below the labels of the rows that says what they count; none where it is empty.
    void SetCaption(const QString& caption);

    /// Rows that stay keep their figures; new ones have the figure 0 and no label.
    void SetRowCount(int rowCount);

    void SetRowLabel(int row, const QString& label);

    /// What a row is called under the mouse, by screen readers and in the copied table, where its
    /// label is too short to tell.
    void SetRowName(int row, const QString& name);

    /// Names a series; the names of several stand below the title.
    void SetColumnLabel(int column, const QString& label);
    void SetValue(int row, int column, double value);

    /// Bars, as a new chart has, or lines through the figures of each series.
    void SetKind(ChartKind kind);
    void SetSeriesColour(int column, const QColor& colour);

    /// The look of a series' bars, in the legend too.
    void SetSeriesLook(int column, const BarLook& look);

    /// The look of the bars of one row, whatever that of their series.
    void SetRowLook(int row, const BarLook& look);

    /// Draws a thin line with the words "average 367" across the chart, or none.
    void SetAverage(std::optional<double> average);
    std::optional<double> Average() const { return figures_.average; }

    /// The rows above whose bars their figures stand; one that the chart does not have bears none.
    void SetRankedRows(const std::vector<int>& rows);
    const std::vector<int>& RankedRows() const { return figures_.ranked; }

    /// Ends of the vertical axis; without them it reaches from 0 to the furthest values.
    void SetRange(double lowest, double highest);

    /// Draws what has been set.
    void Refresh();

    /// Draws the chart into a rectangle of a page, a picture or whatever `painter` paints on. Its
    /// letters are as large beside its bars as on the screen.
    void Paint(QPainter& painter, const QRectF& rectangle);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    ChartPlot& Plot();
    void BuildMenu();
    void CheckRow(int row) const;
    void CheckColumn(int column) const;
    void CopyPicture();
    void CopyTable() const;
    void NameItself();
    void ShowFocus(bool focused);
    void TakeShade();

    ChartFigures figures_;
    std::unique_ptr<ChartPlot> plot_;  // none before the chart is seen
    WindowShade* shade_;
    QAction* copyPicture_;
    QAction* copyTable_;
    QString givenName_;  // the accessible name that the chart gave itself
};
