// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Skin.h"

#include <QLabel>
#include <QPainter>
#include <QPixmapCache>
#include <array>
#include <optional>
#include <string>

#include "core/failure.h"
#include "core/program_folder.h"
#include "core/text.h"
#include "platform/system/TextConversion.h"

namespace {

/// System colours of a light desktop by their numbers: scroll bar, desktop, captions, menu, window
/// and its frame and texts, borders, work space, highlight, button and its shades, tool-tip.
constexpr std::array<QRgb, 25> systemColours = {
    0xffc8c8c8, 0xff000000, 0xff99b4d1, 0xffbfcddb, 0xfff0f0f0, 0xffffffff, 0xff646464,
    0xff000000, 0xff000000, 0xff000000, 0xffb4b4b4, 0xfff4f7fc, 0xffababab, 0xff0078d7,
    0xffffffff, 0xfff0f0f0, 0xffa0a0a0, 0xff6d6d6d, 0xff000000, 0xff000000, 0xffffffff,
    0xff696969, 0xffe3e3e3, 0xff000000, 0xffffffe1};

std::optional<QColor> Known(Colour colour) {
    if ((colour & systemColourBit) != 0) {
        const Colour number = colour & ~systemColourBit;
        if (number >= systemColours.size()) return std::nullopt;
        return QColor::fromRgb(systemColours[number]);
    }
    if (colour > 0xffffffU) return std::nullopt;
    const auto part = [colour](unsigned shift) {
        return static_cast<int>(colour >> shift & 0xffU);
    };
    return QColor(part(0), part(8), part(16));
}

constexpr const char* colourWanted =
    "expected a colour of 24 bits, or a system colour from &H80000000 to &H80000018, but ";

bool IsDark(const QColor& colour) { return qGray(colour.rgb()) < 128; }

QLabel& LabelOf(const QWidget& form, const QString& name) {
    auto* label = form.findChild<QLabel*>(name);
    if (label == nullptr) {
        throw Failure("The form " + FromQString(form.objectName()) + " has no label " +
                      FromQString(name));
    }
    return *label;
}

void ColourLabels(const QWidget& form, const QStringList& names, const State& state,
                  setting::Slot slot, bool coloured) {
    if (names.empty()) return;
    QPalette palette;
    if (coloured) palette.setColor(QPalette::WindowText, SettingColour(state, slot));
    for (const QString& name : names) LabelOf(form, name).setPalette(palette);
}

/// The picture as large as covers `size`, cut to it, toned by `veil`.
QPixmap Covering(const QPixmap& picture, const QSize& size, qreal ratio, const QColor& veil) {
    const QSize wanted = (QSizeF(size) * ratio).toSize();
    const QPixmap scaled =
        picture.scaled(wanted, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    QPixmap result =
        scaled.copy((scaled.width() - wanted.width()) / 2, (scaled.height() - wanted.height()) / 2,
                    wanted.width(), wanted.height());
    if (veil.alpha() > 0) {
        QPainter painter(&result);
        painter.fillRect(result.rect(), veil);
    }
    result.setDevicePixelRatio(ratio);
    return result;
}

}  // namespace

QPalette PaletteOn(const QColor& background) {
    const bool dark = IsDark(background);
    const QColor text = dark ? QColor(0xf2, 0xf2, 0xf2) : QColor(0x1a, 0x1a, 0x1a);
    const QColor base = dark ? background.darker(130) : QColor(Qt::white);
    QPalette palette(background, background);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        QColor faint = text;
        faint.setAlpha(120);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, background);
    palette.setColor(QPalette::Disabled, QPalette::Base, background);
    palette.setColor(QPalette::BrightText, text);
    QColor placeholder = text;
    placeholder.setAlpha(140);
    palette.setColor(QPalette::PlaceholderText, placeholder);
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x6f, 0xb8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, dark ? QColor(0x8a, 0xbf, 0xff) : QColor(0x1b, 0x5e, 0xa8));
    return palette;
}

QColor ToQColor(Colour colour) {
    const auto known = Known(colour);
    if (!known) throw Failure(colourWanted + ColourText(colour) + " was asked for");
    return *known;
}

Colour ToColour(const QColor& colour) {
    const auto part = [](int value, unsigned shift) { return static_cast<Colour>(value) << shift; };
    return part(colour.red(), 0) | part(colour.green(), 8) | part(colour.blue(), 16);
}

QColor SettingColour(const State& state, setting::Slot slot) {
    const std::string& text = state.Settings(slot);
    const auto known = Known(ColourFromText(text, PlaceOf(slot)));
    if (!known) {
        throw FailureInFile(settingsFile, slot, colourWanted + ("\"" + text) + "\" stands there");
    }
    return *known;
}

SkinChoice SkinChoiceOf(const State& state) {
    const int bits = LeadingWhole(state.Settings(setting::SkinBits));
    return {.pictures = (bits & 1) != 0, .colours = (bits & 2) != 0};
}

QPixmap SkinPicture(const State& state, const ProgramFolder& folder, const QString& pictureFile) {
    const std::string name = FromQString(pictureFile);
    if (!SkinChoiceOf(state).pictures || !folder.Exists(name)) return {};
    const std::string bytes = folder.Read(name);
    QPixmap picture;
    if (!picture.loadFromData(QByteArray::fromStdString(bytes))) {
        throw Failure(name + ": expected a picture, but the file holds none that can be read.");
    }
    return picture;
}

void ApplySkinColours(const State& state, QWidget& form, const SkinLabels& labels) {
    const bool coloured = SkinChoiceOf(state).colours;
    form.setPalette(coloured ? PaletteOn(SettingColour(state, setting::BackgroundColour))
                             : QPalette());
    ColourLabels(form, labels.title, state, setting::TitleColour, coloured);
    ColourLabels(form, labels.body, state, setting::BodyColour, coloured);
    ColourLabels(form, labels.small, state, setting::SmallLabelColour, coloured);
    ColourLabels(form, labels.status, state, setting::StatusColour, coloured);
}

void PaintSkin(QPainter& painter, const QRect& area, const QPixmap& picture,
               const QPalette& palette) {
    if (picture.isNull() || area.isEmpty()) return;
    QColor veil = palette.color(QPalette::Window);
    veil.setAlpha(veil.lightness() < 128 ? 215 : 0);
    const qreal ratio = painter.device()->devicePixelRatioF();
    // A status line repaints its piece of the form many times a second.
    const QString key = QStringLiteral("skin:%1:%2x%3:%4:%5")
                            .arg(picture.cacheKey())
                            .arg(area.width())
                            .arg(area.height())
                            .arg(ratio)
                            .arg(veil.name(QColor::HexArgb));
    QPixmap covering;
    if (!QPixmapCache::find(key, &covering)) {
        covering = Covering(picture, area.size(), ratio, veil);
        QPixmapCache::insert(key, covering);
    }
    painter.drawPixmap(area.topLeft(), covering);
}
