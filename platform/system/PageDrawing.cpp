// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/PageDrawing.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <map>
#include <memory>
#include <utility>

#include "platform/system/TextConversion.h"

namespace {

constexpr int twipsPerPoint = 20;

QFont FontOf(const TextLook& look) {
    // Behind the font's own name those of the same widths, for systems that do not have it.
    static const QStringList families = {QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                                         QStringLiteral("Arimo"), QStringLiteral("Helvetica")};
    QFont font;
    font.setFamilies(families);
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(look.points * twipsPerPoint);
    font.setBold(look.bold);
    font.setUnderline(look.underlined);
    return font;
}

/// Fonts and their figures, as a report has thousands of texts in three looks.
class Fonts {
  public:
    struct Entry {
        QFont font;
        QFontMetricsF metrics;
    };

    const Entry& Of(const TextLook& look) {
        const auto key = std::pair(look.points, look.bold * 2 + look.underlined * 1);
        const auto found = entries_.find(key);
        if (found != entries_.end()) return found->second;
        const QFont font = FontOf(look);
        return entries_.emplace(key, Entry{font, QFontMetricsF(font)}).first->second;
    }

  private:
    std::map<std::pair<int, int>, Entry> entries_;
};

}  // namespace

SheetRoom RoomOn(const QSizeF& millimetres) {
    const auto fonts = std::make_shared<Fonts>();
    return {.width = millimetres.width(),
            .height = millimetres.height(),
            .lineHeight =
                [fonts](const TextLook& look) {
                    return fonts->Of(look).metrics.lineSpacing() / twipsPerMillimetre;
                },
            .textWidth =
                [fonts](std::string_view text, const TextLook& look) {
                    const QFontMetricsF& metrics = fonts->Of(look).metrics;
                    return metrics.horizontalAdvance(ToQString(text)) / twipsPerMillimetre;
                }};
}

void DrawSheet(QPainter& painter, const Sheet& sheet) {
    painter.setPen(Qt::black);
    Fonts fonts;
    const Fonts::Entry* current = nullptr;
    for (const PlacedText& text : sheet.texts) {
        const Fonts::Entry& entry = fonts.Of(text.look);
        if (&entry != current) painter.setFont(entry.font);
        current = &entry;
        const QPointF corner(text.across, text.down);
        painter.drawText(corner * twipsPerMillimetre + QPointF(0, entry.metrics.ascent()),
                         ToQString(text.text));
    }
    for (const FilledRectangle& rectangle : sheet.rectangles) {
        painter.fillRect(
            QRectF(rectangle.across * twipsPerMillimetre, rectangle.down * twipsPerMillimetre,
                   rectangle.width * twipsPerMillimetre, rectangle.height * twipsPerMillimetre),
            Qt::black);
    }
}
