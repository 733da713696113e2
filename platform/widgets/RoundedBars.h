// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The plotting library's header is written with Qt's keywords; include this one before any of Qt's.
#undef QT_NO_KEYWORDS
#undef QT_NO_FOREACH
#include <qcustomplot.h>
#define QT_NO_KEYWORDS
#define QT_NO_FOREACH

#include <algorithm>

/// Bars with softened corners, and with a pattern over their colour where one is set.
class RoundedBars final : public QCPBars {
  public:
    using QCPBars::QCPBars;

    void SetPattern(const QBrush& pattern) { pattern_ = pattern; }

  protected:
    void draw(QCPPainter* painter) override {
        applyFillAntialiasingHint(painter);
        painter->setPen(Qt::NoPen);
        for (const QCPBarsData& bar : *data()) {
            const QRectF rectangle = getBarRect(bar.key, bar.value).normalized();
            const double radius = std::min({2.5, rectangle.width() / 4, rectangle.height() / 2});
            for (const QBrush& layer : {brush(), pattern_}) {
                if (layer.style() == Qt::NoBrush) continue;
                painter->setBrush(layer);
                painter->drawRoundedRect(rectangle, radius, radius);
            }
        }
    }

  private:
    QBrush pattern_;
};
