// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/OutlinedStyle.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>
#include <algorithm>

#include "platform/widgets/Contrast.h"
#include "tests/support/form_test.h"

namespace {

QPalette Colours(const QColor& window, const QColor& text) {
    QPalette palette(window, window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::Base, window);
    return palette;
}

const QPalette lightDesktop = Colours(QColor(0xef, 0xef, 0xef), Qt::black);
const QPalette darkDesktop = Colours(QColor(0x31, 0x36, 0x3b), QColor(0xef, 0xf0, 0xf1));
const QPalette blackDesktop = Colours(Qt::black, Qt::white);
const QPalette whiteDesktop = Colours(Qt::white, Qt::black);

struct AnOutline : testing::Test {
    QImage Shot(QWidget& widget, const QPalette& palette, QStyle& worn) {
        widget.setStyle(&worn);
        widget.setPalette(palette);
        widget.resize(120, 40);
        QImage image(widget.size(), QImage::Format_RGB32);
        image.fill(palette.color(QPalette::Window));
        widget.render(&image);
        return image;
    }

    /// How well the best seen pixel of the middle row stands out from the window, up to `width`.
    double Best(QWidget& widget, const QPalette& palette, int width) {
        const QImage image = Shot(widget, palette, style);
        double best = 1;
        for (int x = 0; x < width; ++x) {
            const QColor pixel = image.pixelColor(x, image.height() / 2);
            best = std::max(best, Contrast(pixel, palette.color(QPalette::Window)));
        }
        return best;
    }

    OutlinedStyle style;
};

TEST_F(AnOutline, OfABoxOrOptionThatIsNotSetStandsOutFromEveryWindow) {
    for (const QPalette& palette : {lightDesktop, darkDesktop, blackDesktop, whiteDesktop}) {
        QCheckBox box;
        QRadioButton option;
        constexpr int ofMark = 4;
        const std::string window = palette.color(QPalette::Window).name().toStdString();
        EXPECT_GE(Best(box, palette, ofMark), 2.9) << window;
        EXPECT_GE(Best(option, palette, ofMark), 2.5) << window;
    }
}

TEST_F(AnOutline, OfWhateverTakesTextOrClicksIsSeenAtTheHighestContrast) {
    for (const QPalette& palette : {blackDesktop, whiteDesktop}) {
        QLineEdit text;
        QPlainTextEdit note;
        QComboBox list;
        QDateEdit date;
        QPushButton button;
        for (QWidget* widget :
             std::initializer_list<QWidget*>{&text, &note, &list, &date, &button}) {
            EXPECT_GE(Best(*widget, palette, 4), 7) << widget->metaObject()->className();
        }
    }
}

TEST_F(AnOutline, OfTextBoxesAndButtonsIsThatOfTheDesktopOtherwise) {
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    QLineEdit text;
    QPushButton button;
    for (QWidget* widget : std::initializer_list<QWidget*>{&text, &button}) {
        for (const QPalette& palette : {lightDesktop, darkDesktop}) {
            EXPECT_EQ(Shot(*widget, palette, style), Shot(*widget, palette, *fusion));
        }
    }
}

}  // namespace
