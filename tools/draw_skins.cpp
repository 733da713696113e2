// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the background pictures of the forms: `draw_skins FOLDER`.
//
// Pictures are very light, as black text is read on them everywhere: a soft gradient in the tint of
// the family with large faint lottery balls and curves. The same program draws the same pictures.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTextStream>
#include <random>

namespace {

constexpr int Width = 1600;
constexpr int Height = 1000;
constexpr int JpegQuality = 88;

struct Family {
    const char* file;
    int hue;
    unsigned seed;
};

constexpr Family Families[] = {
    {"SkinMain.jpg", 212, 1},    {"SkinPlay.jpg", 42, 2},  {"SkinDatabases.jpg", 190, 3},
    {"SkinAnalyse.jpg", 262, 4}, {"SkinFile.jpg", 222, 5}, {"SkinSyndicates.jpg", 140, 6},
    {"SkinHelp.jpg", 24, 7},
};

/// Uniform in [low, high), the same on every platform.
double Between(std::mt19937& engine, double low, double high) {
    return low + (high - low) * static_cast<double>(engine()) / 4294967296.0;
}

QColor Tint(int hue, int saturation, int lightness, int alpha) {
    return QColor::fromHsl(hue, saturation, lightness, alpha);
}

void PaintGround(QPainter& painter, int hue) {
    QLinearGradient ground(0, 0, Width, Height);
    ground.setColorAt(0.0, Tint(hue, 150, 251, 255));
    ground.setColorAt(1.0, Tint(hue, 120, 246, 255));
    painter.fillRect(0, 0, Width, Height, ground);
}

/// Wide bands that swing across the picture.
void PaintCurves(QPainter& painter, int hue, std::mt19937& engine) {
    for (int band = 0; band < 4; ++band) {
        const double level = Between(engine, 0.2, 0.9) * Height;
        const double swing = Between(engine, 120.0, 320.0);
        QPainterPath curve(QPointF(-50, level));
        curve.cubicTo(Width * 0.3, level - swing, Width * 0.6, level + swing, Width + 50,
                      level - swing / 2);
        painter.setPen(QPen(Tint(hue, 130, 228, 24), Between(engine, 60.0, 150.0)));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(curve);
    }
}

/// Blue and violet are darker to the eye than other tints of one lightness.
int BallLightness(int hue) { return hue > 200 && hue < 280 ? 235 : 226; }

/// A ball with a paler disc, as where its number stands.
void PaintBall(QPainter& painter, QPointF centre, double radius, int hue) {
    QRadialGradient body(centre, radius, centre - QPointF(radius, radius) * 0.4);
    body.setColorAt(0.0, QColor(255, 255, 255, 120));
    body.setColorAt(1.0, Tint(hue, 150, BallLightness(hue), 52));
    painter.setPen(Qt::NoPen);
    painter.setBrush(body);
    painter.drawEllipse(centre, radius, radius);
    painter.setBrush(QColor(255, 255, 255, 90));
    painter.drawEllipse(centre, radius * 0.5, radius * 0.5);
}

/// Balls keep to the rim of the picture, apart from each other.
void PaintBalls(QPainter& painter, int hue, std::mt19937& engine) {
    QList<QPair<QPointF, double>> placed;
    for (int attempt = 0; attempt < 400 && placed.size() < 9; ++attempt) {
        const double radius = Between(engine, 60.0, 190.0);
        const QPointF centre(Between(engine, -0.02, 1.02) * Width,
                             Between(engine, -0.02, 1.02) * Height);
        const QPointF fromMiddle((centre.x() - Width * 0.5) / (Width * 0.5),
                                 (centre.y() - Height * 0.5) / (Height * 0.5));
        bool free = QPointF::dotProduct(fromMiddle, fromMiddle) > 0.6;
        for (const auto& [other, otherRadius] : placed) {
            const double reach = radius + otherRadius + 20;
            free = free && QPointF::dotProduct(centre - other, centre - other) > reach * reach;
        }
        if (!free) continue;
        placed.append({centre, radius});
        PaintBall(painter, centre, radius, hue);
    }
}

QImage Picture(const Family& family) {
    std::mt19937 engine(family.seed);
    QImage picture(Width, Height, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(painter, family.hue);
    PaintCurves(painter, family.hue, engine);
    PaintBalls(painter, family.hue, engine);
    return picture;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    QGuiApplication application(argumentCount, arguments);
    if (argumentCount != 2) {
        QTextStream(stderr) << "usage: draw_skins FOLDER\n";
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(arguments[1]);
    for (const Family& family : Families) {
        const QString path = folder + QLatin1Char('/') + QLatin1String(family.file);
        if (Picture(family).save(path, "JPG", JpegQuality)) continue;
        QTextStream(stderr) << path << " could not be written\n";
        return 1;
    }
    return 0;
}
