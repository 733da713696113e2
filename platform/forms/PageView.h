// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageLayout>
#include <QScrollArea>

#include "platform/system/PrintTask.h"

/// Shows one sheet of what is to be printed, as large as wanted.
class PageView final : public QScrollArea {
    Q_OBJECT
  public:
    enum class Fit { WholePage, Width, None };

    PageView(PrintedSheets sheets, const QPageLayout& layout, QWidget* parent = nullptr);

    /// The sheet that is shown, from 0; one that there is not is brought to the nearest.
    void ShowSheet(int sheet);
    int Sheet() const { return sheet_; }
    int SheetCount() const { return sheets_.count; }

    /// Fits the sheet into the view, now and whenever the view changes.
    void SetFit(Fit fit);
    Fit FitNow() const { return fit_; }

    /// Shows the sheet in its size on paper times this.
    void SetZoom(double zoom);
    double Zoom() const { return zoom_; }

  Q_SIGNALS:
    void zoomChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void TakeFit();
    void TakeZoom(double zoom);
    void PaintPaper();

    PrintedSheets sheets_;
    QPageLayout layout_;
    QWidget* paper_;
    int sheet_ = 0;
    Fit fit_ = Fit::WholePage;
    double zoom_ = 0;
};
