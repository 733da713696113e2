// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Widgets.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include "tests/support/form_test.h"

namespace {

TEST(AName, OfAnArrayMemberHasItsIndexInParentheses) {
    EXPECT_EQ(Member(QStringLiteral("Text1"), 3), QStringLiteral("Text1(3)"));
}

TEST(ACaption, ShowsItsAmpersand) {
    EXPECT_EQ(ShownCaption(QStringLiteral("Cut & paste")), QStringLiteral("Cut && paste"));
}

TEST(AButton, HasItsNameAndCaptionAndDoesNotTakeEnter) {
    const std::unique_ptr<QPushButton> button(
        MakeButton(QStringLiteral("Command8"), QStringLiteral(" Help ")));
    EXPECT_EQ(button->objectName(), QStringLiteral("Command8"));
    EXPECT_EQ(button->text(), QStringLiteral(" Help "));
    EXPECT_FALSE(button->autoDefault());
}

TEST(AnIconButton, HasItsToolTipToTheLetterAndAnAccessibleName) {
    const std::unique_ptr<QPushButton> button(MakeIconButton(
        QStringLiteral("Command1"), QStringLiteral("dialog-close"), QStringLiteral(" Close ")));
    EXPECT_EQ(button->toolTip(), QStringLiteral(" Close "));
    EXPECT_EQ(button->accessibleName(), QStringLiteral("Close"));
    EXPECT_EQ(button->text(), QString());
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_EQ(button->focusPolicy(), Qt::StrongFocus);
}

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

TEST(ALabel, ShowsItsTextAsItStands) {
    const std::unique_ptr<QLabel> label(
        MakeLabel(QStringLiteral("Label7"), QStringLiteral("   <b>Biochart</b>:")));
    EXPECT_EQ(label->text(), QStringLiteral("   <b>Biochart</b>:"));
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_FALSE(label->autoFillBackground());
}

TEST(ALabel, IsLargeAsATitleAndWrapsAsABody) {
    const std::unique_ptr<QLabel> title(
        MakeTitle(QStringLiteral("Label7"), QStringLiteral("Lucky dip")));
    const std::unique_ptr<QLabel> body(MakeBody(QStringLiteral("Label2"), QStringLiteral("words")));
    EXPECT_TRUE(title->font().bold());
    EXPECT_GT(title->font().pointSizeF(), body->font().pointSizeF());
    EXPECT_TRUE(body->wordWrap());
}

}  // namespace
