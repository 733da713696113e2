// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The plotting library's header is written with Qt's keywords; include this one before any of Qt's.
#undef QT_NO_KEYWORDS
#undef QT_NO_FOREACH
#include <qcustomplot.h>
#define QT_NO_KEYWORDS
#define QT_NO_FOREACH

#include <algorithm>

#include "platform/widgets/ChartFigures.h"

/// Bars with softened corners, each with a look of its own, and with the same in the legend.
class RoundedBars final : public QCPBars {
  public:
    using QCPBars::QCPBars;

    /// Adds the next bar, further right than all before; the legend shows the first one's look.
    void AddBar(double place, double value, const BarLook& look) {
        addData(place, value);
        looks_.push_back(look);
    }

  protected:
    void draw(QCPPainter* painter) override {
        auto look = looks_.begin();
        for (const QCPBarsData& bar : *data()) {
            DrawBar(painter, getBarRect(bar.key, bar.value).normalized(), *look++);
        }
    }

    void drawLegendIcon(QCPPainter* painter, const QRectF& place) const override {
        if (!looks_.empty()) DrawBar(painter, place.adjusted(0, 2, 0, -2), looks_.front());
    }

  private:
    void DrawBar(QCPPainter* painter, const QRectF& rectangle, const BarLook& look) const {
        applyFillAntialiasingHint(painter);
        painter->setPen(Qt::NoPen);
        const double radius = std::min({2.5, rectangle.width() / 4, rectangle.height() / 2});
        for (const QBrush& layer : {QBrush(look.fill), look.pattern}) {
            if (layer.style() == Qt::NoBrush) continue;
            painter->setBrush(layer);
            painter->drawRoundedRect(rectangle, radius, radius);
        }
    }

    std::vector<BarLook> looks_;
};
