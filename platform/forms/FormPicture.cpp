// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/FormPicture.h"

#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QPointer>
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

/// Where things stand in a picture of the whole form, what is scrolled out of sight included.
class WholeForm {
  public:
    explicit WholeForm(QWidget& form)
        : form_(form),
          body_(form.findChild<ScrollingBody*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (body_ == nullptr) return;
        const QSize shown = body_->viewport()->size();
        growth_ = body_->Content().size().expandedTo(shown) - shown;
    }

    QSize Size() const { return form_.size() + growth_; }

    QPoint PlaceOf(const QWidget& widget) const {
        if (body_ != nullptr && body_->Content().isAncestorOf(&widget)) {
            return body_->pos() + widget.mapTo(&body_->Content(), QPoint(0, 0));
        }
        const QPoint place = widget.mapTo(&form_, QPoint(0, 0));
        const bool below = body_ != nullptr && place.y() > body_->geometry().bottom();
        return below ? place + QPoint(0, growth_.height()) : place;
    }

    /// Paints what stands on the form, without the skin behind it.
    void Paint(QPainter& painter) const {
        const auto widgets = form_.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget* widget : widgets) {
            if (!widget->isVisible() || widget->isWindow()) continue;
            QWidget* shown = widget == body_ ? &body_->Content() : widget;
            shown->render(&painter, PlaceOf(*widget));
        }
    }

  private:
    QWidget& form_;
    ScrollingBody* body_;
    QSize growth_ = {0, 0};
};

QImage ImageOf(QWidget& form, const WholeForm& whole) {
    QImage image((QSizeF(whole.Size()) * pixelsPerPixel).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelsPerPixel);
    image.fill(Qt::white);
    QPainter painter(&image);
    const PaperColours colours(form);
    whole.Paint(painter);
    return image;
}

using PlacedChart = std::pair<QPointer<Chart>, QRectF>;

std::vector<PlacedChart> ChartsOn(const QWidget& form, const WholeForm& whole) {
    std::vector<PlacedChart> charts;
    const auto found = form.findChildren<Chart*>();
    for (Chart* chart : found) {
        if (!chart->isVisible()) continue;
        // The frame around the chart stays as it is on the form.
        const QRectF place(whole.PlaceOf(*chart), chart->size());
        charts.emplace_back(chart, place.adjusted(1, 1, -1, -1));
    }
    return charts;
}

}  // namespace

PictureJob PictureOf(QWidget& form) {
    const WholeForm whole(form);
    const QImage image = ImageOf(form, whole);
    const QSizeF size = whole.Size();
    const auto charts = ChartsOn(form, whole);
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
