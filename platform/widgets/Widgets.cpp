// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Widgets.h"

#include <QEvent>
#include <QGuiApplication>
#include <QIconEngine>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QPushButton>
#include <QStandardPaths>
#include <algorithm>
#include <optional>

namespace {

constexpr int iconEdge = 22;
constexpr int buttonHeight = 32;

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

QIcon GlyphIcon(const QString& name, std::optional<QColor> colour) {
    FindThemes();
    const QIcon icon = QIcon::fromTheme(name);
    return icon.isNull() ? icon : QIcon(new GlyphEngine(icon, colour));
}

/// Keeps its icon in the colour of its own text, which a skin may change.
class IconButton final : public QPushButton {
  public:
    IconButton(const QString& icon, QWidget* parent) : QPushButton(parent), iconName_(icon) {
        setIconSize(QSize(iconEdge, iconEdge));
        ColourIcon();
    }

  protected:
    void changeEvent(QEvent* event) override {
        QPushButton::changeEvent(event);
        const bool colours = event->type() == QEvent::PaletteChange;
        if (colours || event->type() == QEvent::ThemeChange) ColourIcon();
    }

  private:
    void ColourIcon() {
        setIcon(GlyphIcon(iconName_, palette().color(QPalette::Active, QPalette::ButtonText)));
    }

    QString iconName_;
};

}  // namespace

QString Member(const QString& array, int index) {
    return QStringLiteral("%1(%2)").arg(array).arg(index);
}

QString ShownCaption(const QString& caption) {
    QString shown = caption;
    return shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QIcon ThemeIcon(const QString& name) { return GlyphIcon(name, std::nullopt); }

QPushButton* MakeButton(const QString& name, const QString& caption, QWidget* parent) {
    auto* button = Named(new QPushButton(ShownCaption(caption), parent), name);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMinimumHeight(buttonHeight);
    return button;
}

QPushButton* MakeIconButton(const QString& name, const QString& icon, const QString& toolTip,
                            QWidget* parent) {
    auto* button = Named<QPushButton>(new IconButton(icon, parent), name);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMinimumSize(buttonHeight + 8, buttonHeight);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip.trimmed());
    return button;
}

QLabel* MakeLabel(const QString& name, const QString& text, QWidget* parent) {
    auto* label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QLabel* MakeTitle(const QString& name, const QString& text, QWidget* parent) {
    QLabel* label = MakeLabel(name, text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel* MakeBody(const QString& name, const QString& text, QWidget* parent) {
    QLabel* label = MakeLabel(name, text, parent);
    label->setWordWrap(true);
    return label;
}
