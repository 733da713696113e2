// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/FormPicture.h"

#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QScrollBar>
#include <QWidget>
#include <utility>
#include <vector>

#include "platform/forms/ScrollingBody.h"
#include "platform/forms/Skin.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/Contrast.h"

namespace {

constexpr double pixelsPerPixel = 3;  // of the screen, so that letters are smooth on paper
constexpr double readable = 4.5;

/// Gives the form the colours of paper while it lives.
class PaperColours {
  public:
    explicit PaperColours(QWidget& form) {
        Change(form, PaletteOn(Qt::white));
        const auto labels = form.findChildren<QLabel*>();
        for (QLabel* label : labels) Darken(*label);
    }
    ~PaperColours() {
        for (auto change = changes_.rbegin(); change != changes_.rend(); ++change) {
            change->first->setPalette(change->second);
        }
    }
    PaperColours(const PaperColours&) = delete;
    PaperColours& operator=(const PaperColours&) = delete;

  private:
    void Change(QWidget& widget, const QPalette& palette) {
        changes_.emplace_back(&widget, widget.palette());
        widget.setPalette(palette);
    }

    /// The skin's colours are made for its pictures.
    void Darken(QLabel& label) {
        if (!label.testAttribute(Qt::WA_SetPalette)) return;
        QPalette palette = label.palette();
        const QColor ground =
            label.autoFillBackground() ? palette.color(label.backgroundRole()) : QColor(Qt::white);
        const QColor text = palette.color(QPalette::WindowText);
        const QColor dark = StandingOut(text, ground, readable);
        if (dark == text) return;
        palette.setColor(QPalette::WindowText, dark);
        Change(label, palette);
    }

    std::vector<std::pair<QWidget*, QPalette>> changes_;
};

/// Gives a form that scrolls the room for all that stands on it while it lives.
class WholeForm {
  public:
    explicit WholeForm(QWidget& form)
        : form_(form), size_(form.size()), body_(form.findChild<ScrollingBody*>()) {
        if (body_ == nullptr) return;
        across_ = body_->horizontalScrollBar()->value();
        down_ = body_->verticalScrollBar()->value();
        form_.resize(size_ + body_->Content().size() - body_->viewport()->size());
    }
    ~WholeForm() {
        if (body_ == nullptr) return;
        form_.resize(size_);
        body_->horizontalScrollBar()->setValue(across_);
        body_->verticalScrollBar()->setValue(down_);
    }
    WholeForm(const WholeForm&) = delete;
    WholeForm& operator=(const WholeForm&) = delete;

  private:
    QWidget& form_;
    QSize size_;
    ScrollingBody* body_;
    int across_ = 0;
    int down_ = 0;
};

/// What stands on the form, without the skin behind it.
QImage ImageOf(QWidget& form) {
    QImage image((QSizeF(form.size()) * pixelsPerPixel).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelsPerPixel);
    image.fill(Qt::white);
    QPainter painter(&image);
    const PaperColours colours(form);
    const auto widgets = form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* widget : widgets) {
        if (widget->isVisible() && !widget->isWindow()) widget->render(&painter, widget->pos());
    }
    return image;
}

using PlacedChart = std::pair<QPointer<Chart>, QRectF>;

std::vector<PlacedChart> ChartsOn(const QWidget& form) {
    std::vector<PlacedChart> charts;
    const auto found = form.findChildren<Chart*>();
    for (Chart* chart : found) {
        if (!chart->isVisible()) continue;
        // The frame around the chart stays as it is on the form.
        const QPoint corner = chart->mapTo(&form, QPoint(0, 0));
        charts.emplace_back(chart, QRectF(corner, chart->size()).adjusted(1, 1, -1, -1));
    }
    return charts;
}

}  // namespace

PictureJob PictureOf(QWidget& form) {
    const WholeForm whole(form);
    const QImage image = ImageOf(form);
    const QSizeF size = form.size();
    const auto charts = ChartsOn(form);
    return {.title = form.windowTitle(),
            .options = {.quality = PrintQuality::Medium,
                        .orientation = Orientation::Landscape,
                        .paper = {}},
            .size = size,
            .paint = [image, size, charts](QPainter& painter, const QRectF& place) {
                painter.setRenderHint(QPainter::SmoothPixmapTransform);
                painter.drawImage(place, image);
                const double scale = place.width() / size.width();
                for (const auto& [chart, rectangle] : charts) {
                    if (chart == nullptr) continue;
                    const QRectF target(place.topLeft() + rectangle.topLeft() * scale,
                                        rectangle.size() * scale);
                    painter.fillRect(target, Qt::white);
                    chart->Paint(painter, target);
                }
            }};
}
