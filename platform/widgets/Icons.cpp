// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QStandardPaths>
#include <algorithm>

namespace {

bool IsGrey(QRgb pixel) {
    const auto [low, high] = std::minmax({qRed(pixel), qGreen(pixel), qBlue(pixel)});
    return high - low < 24;
}

/// Whether what is grey in the picture is all of one shade: a glyph, not a picture with shadows.
bool IsGlyph(const QImage& image) {
    int lightest = 0;
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) < 64 || !IsGrey(pixel)) continue;
            lightest = std::max(lightest, qGray(pixel));
            darkest = std::min(darkest, qGray(pixel));
        }
    }
    return lightest - darkest < 48;
}

/// The glyph in the given colour; what has a colour of its own, such as the red of a delete, stays.
QPixmap InColour(const QPixmap& pixmap, const QColor& colour) {
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    if (!IsGlyph(image)) return pixmap;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (!IsGrey(pixel)) continue;
            image.setPixel(x, y, qRgba(colour.red(), colour.green(), colour.blue(), qAlpha(pixel)));
        }
    }
    QPixmap result = QPixmap::fromImage(image);
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    return result;
}

QPixmap Faint(const QPixmap& pixmap) {
    QPixmap result(pixmap.size());
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(0.4);
    painter.drawPixmap(0, 0, pixmap);
    return result;
}

/// A theme's icon drawn in a text colour, as the glyphs of icon themes are black in themselves.
class GlyphEngine final : public QIconEngine {
  public:
    GlyphEngine(const QIcon& icon, std::optional<QColor> colour) : icon_(icon), colour_(colour) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        const QSize size = (QSizeF(rect.size()) * ratio).toSize();
        painter->drawPixmap(rect, scaledPixmap(size, mode, state, ratio));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override {
        const QSize plainSize = (QSizeF(size) / scale).toSize();
        const QPixmap plain = icon_.pixmap(plainSize, scale, QIcon::Normal, state);
        const QColor colour =
            colour_.value_or(QGuiApplication::palette().color(QPalette::ButtonText));
        const QPixmap coloured = InColour(plain, colour);
        return mode == QIcon::Disabled ? Faint(coloured) : coloured;
    }

    bool isNull() override { return icon_.isNull(); }
    QIconEngine* clone() const override { return new GlyphEngine(icon_, colour_); }

  private:
    QIcon icon_;
    std::optional<QColor> colour_;
};

/// Breeze stands in where the desktop has no theme; Qt's own platforms, such as VNC, do not even
/// know where themes lie.
void FindThemes() {
    if (QIcon::fallbackThemeName().isEmpty()) QIcon::setFallbackThemeName(QStringLiteral("breeze"));
    const QStringList known = QIcon::themeSearchPaths();
    QStringList paths = known;
    paths += QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("icons"),
                                       QStandardPaths::LocateDirectory);
    paths.removeDuplicates();
    if (paths != known) QIcon::setThemeSearchPaths(paths);
    if (QIcon::themeName().isEmpty()) QIcon::setThemeName(QStringLiteral("breeze"));
}

/// Two strokes, without the red and the frame that some themes give the icon of closing.
class CrossEngine final : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const qreal edge = std::min(rect.width(), rect.height());
        const qreal inset = edge * 0.27;
        const QRectF square = QRectF(rect).adjusted(inset, inset, -inset, -inset);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(Qt::black, edge * 0.07, Qt::SolidLine, Qt::RoundCap));
        painter->drawLine(square.topLeft(), square.bottomRight());
        painter->drawLine(square.topRight(), square.bottomLeft());
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }

    QIconEngine* clone() const override { return new CrossEngine; }
};

}  // namespace

QIcon ThemeIcon(const QString& name, std::optional<QColor> colour) {
    FindThemes();
    const QIcon icon =
        name == QLatin1String(crossIcon) ? QIcon(new CrossEngine) : QIcon::fromTheme(name);
    return icon.isNull() ? icon : QIcon(new GlyphEngine(icon, colour));
}
