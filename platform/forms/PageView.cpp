// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/PageView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "platform/system/PageDrawing.h"

namespace {

constexpr int edge = 16;  // around the paper, in pixels
constexpr double pointsPerInch = 72;
constexpr double leastZoom = 0.1;
constexpr double mostZoom = 4;
constexpr double wheelStep = 1.15;
const QColor shadow(0, 0, 0, 60);

}  // namespace

PageView::PageView(PrintedSheets sheets, const QPageLayout& layout, QWidget* parent)
    : QScrollArea(parent), sheets_(std::move(sheets)), layout_(layout), paper_(new QWidget) {
    setAlignment(Qt::AlignCenter);
    setWidget(paper_);
    setFocusPolicy(Qt::StrongFocus);
    paper_->installEventFilter(this);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
    TakeZoom(1);
}

void PageView::ShowSheet(int sheet) {
    sheet_ = qBound(0, sheet, sheets_.count - 1);
    verticalScrollBar()->setValue(0);
    paper_->update();
}

void PageView::SetFit(Fit fit) {
    fit_ = fit;
    TakeFit();
}

void PageView::SetZoom(double zoom) {
    fit_ = Fit::None;
    TakeZoom(zoom);
}

void PageView::TakeFit() {
    if (fit_ == Fit::None) return;
    const QSizeF points = layout_.fullRectPoints().size();
    const QSize room = maximumViewportSize() - QSize(2 * edge, 2 * edge);
    const bool byWidth = fit_ == Fit::Width;
    const int bar = byWidth ? verticalScrollBar()->sizeHint().width() : 0;
    const double across = (room.width() - bar) * pointsPerInch / logicalDpiX() / points.width();
    const double down = room.height() * pointsPerInch / logicalDpiY() / points.height();
    TakeZoom(byWidth ? across : qMin(across, down));
}

void PageView::TakeZoom(double zoom) {
    const double wanted = qBound(leastZoom, zoom, mostZoom);
    if (wanted == zoom_) return;
    zoom_ = wanted;
    const QSizeF points = layout_.fullRectPoints().size();
    const double scale = zoom_ * logicalDpiX() / pointsPerInch;
    paper_->resize((points * scale).toSize() + QSize(2 * edge, 2 * edge));
    paper_->update();
    Q_EMIT zoomChanged();
}

void PageView::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    TakeFit();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QScrollArea::wheelEvent(event);
        return;
    }
    const double steps = event->angleDelta().y() / 120.0;
    SetZoom(zoom_ * std::pow(wheelStep, steps));
    event->accept();
}

// The keys that turn sheets are the window's.
void PageView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Home:
        case Qt::Key_End:
            event->ignore();
            break;
        default:
            QScrollArea::keyPressEvent(event);
    }
}

bool PageView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != paper_ || event->type() != QEvent::Paint) {
        return QScrollArea::eventFilter(watched, event);
    }
    PaintPaper();
    return true;
}

void PageView::PaintPaper() {
    QPainter painter(paper_);
    const QRect paper = paper_->rect().adjusted(edge, edge, -edge, -edge);
    painter.fillRect(paper.translated(3, 3), shadow);
    painter.fillRect(paper, Qt::white);
    if (sheets_.count == 0) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(paper, Qt::IntersectClip);
    painter.translate(paper.topLeft());
    const double scale = zoom_ * logicalDpiX() / twipsPerInch;
    painter.scale(scale, scale);
    const QPointF origin = layout_.paintRect(QPageLayout::Millimeter).topLeft();
    painter.translate(origin * twipsPerMillimetre);
    sheets_.paint(painter, sheet_);
}
