// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The plotting library's header is written with Qt's keywords; include this one before any of Qt's.
#undef QT_NO_KEYWORDS
#undef QT_NO_FOREACH
#include <qcustomplot.h>
#define QT_NO_KEYWORDS
#define QT_NO_FOREACH

#include <algorithm>

/// Bars with softened corners.
class RoundedBars final : public QCPBars {
  public:
    using QCPBars::QCPBars;

  protected:
    void draw(QCPPainter* painter) override {
        applyFillAntialiasingHint(painter);
        painter->setBrush(brush());
        painter->setPen(pen());
        for (const QCPBarsData& bar : *data()) {
            const QRectF rectangle = getBarRect(bar.key, bar.value).normalized();
            const double radius = std::min({3.0, rectangle.width() / 2, rectangle.height() / 2});
            painter->drawRoundedRect(rectangle, radius, radius);
        }
    }
};
