// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Icons.h"

#include <gtest/gtest.h>

#include "platform/widgets/Widgets.h"
#include "tests/support/form_test.h"

namespace {

/// Mean grey of the pixels of an icon that are not transparent.
int Greyness(const QIcon& icon) {
    const QImage image = icon.pixmap(22, 22).toImage();
    int sum = 0;
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) < 200) continue;
            sum += qGray(image.pixel(x, y));
            ++count;
        }
    }
    return count == 0 ? -1 : sum / count;
}

struct AnIcon : testing::Test {
    ~AnIcon() override { QApplication::setPalette(QPalette()); }
};

TEST_F(AnIcon, IsDarkOnALightDesktopAndLightOnADarkOne) {
    const QIcon icon = ThemeIcon(QStringLiteral("document-print"));
    ASSERT_FALSE(icon.isNull());
    QApplication::setPalette(QPalette(QColor(240, 240, 240)));
    EXPECT_LT(Greyness(icon), 80);
    EXPECT_GE(Greyness(icon), 0);
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    EXPECT_GT(Greyness(icon), 180);
}

TEST_F(AnIcon, OfAButtonFollowsTheColoursOfASkin) {
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QWidget form;
    auto* button = MakeIconButton(QStringLiteral("Command6"), QStringLiteral("document-print"),
                                  QStringLiteral("Print"), &form);
    form.setPalette(QPalette(QColor(240, 240, 240)));
    EXPECT_LT(Greyness(button->icon()), 80);
    EXPECT_GE(Greyness(button->icon()), 0);
}

TEST_F(AnIcon, IsSharpOnAScreenOfTwoHundredPercent) {
    const QPixmap pixmap = ThemeIcon(QStringLiteral("document-save")).pixmap(QSize(22, 22), 2.0);
    EXPECT_EQ(pixmap.size(), QSize(44, 44));
}

TEST_F(AnIcon, IsFaintWhereItsButtonIsDisabled) {
    const QImage image =
        ThemeIcon(QStringLiteral("document-save")).pixmap(QSize(22, 22), QIcon::Disabled).toImage();
    int strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            strongest = std::max(strongest, qAlpha(image.pixel(x, y)));
        }
    }
    EXPECT_GT(strongest, 0);
    EXPECT_LT(strongest, 120);
}

TEST_F(AnIcon, IsNullWhereNoThemeHasIt) {
    EXPECT_TRUE(ThemeIcon(QStringLiteral("no-such-icon-anywhere")).isNull());
}

TEST_F(AnIcon, OfACrossIsDrawnAndInTheColourAskedFor) {
    const QIcon cross = ThemeIcon(QString::fromLatin1(crossIcon), QColor(Qt::blue));
    for (const double scale : {1.0, 2.0}) {
        const QImage image = cross.pixmap(QSize(22, 22), scale).toImage();
        ASSERT_EQ(image.width(), 22 * scale);
        EXPECT_EQ(image.pixelColor(image.rect().center()).rgb(), QColor(Qt::blue).rgb());
        EXPECT_EQ(image.pixelColor(image.width() / 2, 2).alpha(), 0) << "no frame around it";
    }
}

}  // namespace
