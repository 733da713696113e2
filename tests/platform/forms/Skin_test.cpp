// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Skin.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QLabel>
#include <QPainter>

#include "core/settings.h"
#include "platform/widgets/Widgets.h"
#include "tests/core/failures.h"
#include "tests/support/form_test.h"

namespace {

TEST(AColourValue, HasRedInItsLowByte) {
    EXPECT_EQ(ToQColor(160).name(), QStringLiteral("#a00000"));
    EXPECT_EQ(ToQColor(0x800000).name(), QStringLiteral("#000080"));
    EXPECT_EQ(ToQColor(0xffffff).name(), QStringLiteral("#ffffff"));
}

TEST(AColourValue, IsASystemColourOfALightDesktopWithItsHighestBitSet) {
    EXPECT_EQ(ToQColor(0x8000000F).name(), QStringLiteral("#f0f0f0"));
    EXPECT_EQ(ToQColor(0x80000005).name(), QStringLiteral("#ffffff"));
    EXPECT_EQ(ToQColor(0x80000008).name(), QStringLiteral("#000000"));
    EXPECT_EQ(ToQColor(0x80000018).name(), QStringLiteral("#ffffe1"));
}

TEST(AColourValue, IsAFailureBeyondTheSystemColours) {
    EXPECT_EQ(FailureOf([] { ToQColor(0x80000019); }),
              "expected a colour of 24 bits, or a system colour from &H80000000 to &H80000018, but "
              "&H80000019 was asked for");
}

TEST(AColourValue, IsAFailureBeyond24Bits) { EXPECT_THROW(ToQColor(0x1000000), Failure); }

struct TheSkin : testing::Test {
    TheSkin() {
        test.state.Settings(setting::TitleColour) = "&H0000FF";
        test.state.Settings(setting::BodyColour) = "&H00FF00";
        test.state.Settings(setting::SmallLabelColour) = "&HFF0000";
        test.state.Settings(setting::StatusColour) = "&H000080";
        test.state.Settings(setting::BackgroundColour) = "&H8000000F";
        test.state.Settings(setting::SkinBits) = "3";
    }

    void Apply() { ApplySkinColours(test.state, form, labels); }
    static QString TextColour(const QLabel& label) {
        return label.palette().color(QPalette::WindowText).name();
    }

    TestProgram test;
    QWidget form;
    QLabel& title = *MakeLabel(QStringLiteral("Label7"), {}, &form);
    QLabel& body = *MakeLabel(QStringLiteral("Label2"), {}, &form);
    QLabel& small = *MakeLabel(QStringLiteral("Label1"), {}, &form);
    QLabel& status = *MakeLabel(QStringLiteral("Label5"), {}, &form);
    SkinLabels labels{{QStringLiteral("Label7")},
                      {QStringLiteral("Label2")},
                      {QStringLiteral("Label1")},
                      {QStringLiteral("Label5")}};
};

TEST_F(TheSkin, IsChosenByTwoBitsOfEntry10) {
    const auto choice = [this](const char* text) {
        test.state.Settings(setting::SkinBits) = text;
        const SkinChoice made = SkinChoiceOf(test.state);
        return std::pair(made.pictures, made.colours);
    };
    EXPECT_EQ(choice("1 Skinning/colours"), std::pair(true, false));
    EXPECT_EQ(choice("0"), std::pair(false, false));
    EXPECT_EQ(choice("2"), std::pair(false, true));
    EXPECT_EQ(choice("3"), std::pair(true, true));
    EXPECT_EQ(choice("blue"), std::pair(false, false));
    EXPECT_EQ(choice(""), std::pair(false, false));
}

TEST_F(TheSkin, GivesEachKindOfLabelItsColour) {
    Apply();
    EXPECT_EQ(TextColour(title), QStringLiteral("#ff0000"));
    EXPECT_EQ(TextColour(body), QStringLiteral("#00ff00"));
    EXPECT_EQ(TextColour(small), QStringLiteral("#0000ff"));
    EXPECT_EQ(TextColour(status), QStringLiteral("#800000"));
}

TEST_F(TheSkin, GivesTheFormItsBackground) {
    Apply();
    EXPECT_EQ(form.palette().color(QPalette::Window).name(), QStringLiteral("#f0f0f0"));
}

TEST_F(TheSkin, LeavesOnlyTextThatCanBeReadOnTheBackground) {
    for (const char* background : {"&H8000000F", "&H0", "&H400000", "&HFFFFFF", "&H00FFFF"}) {
        test.state.Settings(setting::BackgroundColour) = background;
        Apply();
        const QPalette palette = form.palette();
        const auto contrast = [&palette](QPalette::ColorRole text, QPalette::ColorRole under) {
            return std::abs(qGray(palette.color(text).rgb()) - qGray(palette.color(under).rgb()));
        };
        EXPECT_GT(contrast(QPalette::WindowText, QPalette::Window), 100) << background;
        EXPECT_GT(contrast(QPalette::Text, QPalette::Base), 100) << background;
        EXPECT_GT(contrast(QPalette::ButtonText, QPalette::Button), 100) << background;
        EXPECT_GT(contrast(QPalette::HighlightedText, QPalette::Highlight), 100) << background;
    }
}

TEST_F(TheSkin, TakesItsColoursBackWhereTheyAreSwitchedOff) {
    const QString before = TextColour(title);
    const QString background = form.palette().color(QPalette::Window).name();
    Apply();
    test.state.Settings(setting::SkinBits) = "1";
    Apply();
    EXPECT_EQ(TextColour(title), before);
    EXPECT_EQ(form.palette().color(QPalette::Window).name(), background);
}

TEST_F(TheSkin, ReportsTheLineOfAColourThatIsNoNumber) {
    test.state.Settings(setting::SmallLabelColour) = "blue";
    EXPECT_EQ(FailureOf([this] { Apply(); }).substr(0, 20), "quillon.ini, line 3:");
    test.state.Settings(setting::SmallLabelColour) = "&H0";
    test.state.Settings(setting::BackgroundColour) = "";
    EXPECT_EQ(FailureOf([this] { Apply(); }).substr(0, 20), "quillon.ini, line 5:");
}

TEST_F(TheSkin, ReportsTheLineOfAColourThatThereIsNot) {
    test.state.Settings(setting::StatusColour) = "&H80000020";
    EXPECT_EQ(
        FailureOf([this] { Apply(); }),
        "quillon.ini, line 4: expected a colour of 24 bits, or a system colour from &H80000000 "
        "to &H80000018, but \"&H80000020\" stands there");
}

TEST_F(TheSkin, AsksNothingOfColoursWhereTheyAreSwitchedOff) {
    test.state.Settings(setting::SmallLabelColour) = "blue";
    test.state.Settings(setting::BackgroundColour) = "";
    test.state.Settings(setting::SkinBits) = "1";
    EXPECT_NO_THROW(Apply());
}

TEST_F(TheSkin, AsksNothingOfColoursForLabelsThatAFormDoesNotHave) {
    test.state.Settings(setting::TitleColour) = "no colour";
    EXPECT_NO_THROW(ApplySkinColours(test.state, form, {}));
}

TEST_F(TheSkin, IsAFailureForALabelThatTheFormDoesNotHave) {
    form.setObjectName(QStringLiteral("PLuckyDip"));
    labels.status = {QStringLiteral("Label55")};
    EXPECT_EQ(FailureOf([this] { Apply(); }), "The form PLuckyDip has no label Label55");
}

std::string Picture(int width, int height, const char* format) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes.toStdString();
}

TEST_F(TheSkin, FindsItsPictureInTheProgramFolder) {
    test.folder.Write("skinplay.JPG", Picture(30, 20, "JPG"));
    EXPECT_EQ(SkinPicture(test.state, test.folder, QStringLiteral("SkinPlay.jpg")).size(),
              QSize(30, 20));
}

TEST_F(TheSkin, HasNoPictureWhereTheFileIsMissing) {
    EXPECT_TRUE(SkinPicture(test.state, test.folder, QStringLiteral("SkinPlay.jpg")).isNull());
}

TEST_F(TheSkin, HasNoPictureWherePicturesAreSwitchedOff) {
    test.folder.Write("SkinPlay.jpg", Picture(30, 20, "JPG"));
    test.state.Settings(setting::SkinBits) = "2";
    EXPECT_TRUE(SkinPicture(test.state, test.folder, QStringLiteral("SkinPlay.jpg")).isNull());
}

TEST_F(TheSkin, ReportsAFileThatIsNoPicture) {
    const std::string half = Picture(30, 20, "JPG").substr(0, 20);
    for (const std::string& bytes : {std::string("this is no picture"), std::string(), half}) {
        test.folder.Write("SkinPlay.jpg", bytes);
        EXPECT_EQ(FailureOf([this] {
                      SkinPicture(test.state, test.folder, QStringLiteral("SkinPlay.jpg"));
                  }),
                  "SkinPlay.jpg: expected a picture, but the file holds none that can be read.");
    }
}

TEST_F(TheSkin, DoesNotReadAPictureWherePicturesAreSwitchedOff) {
    test.folder.Write("SkinPlay.jpg", "this is no picture");
    test.state.Settings(setting::SkinBits) = "2";
    EXPECT_NO_THROW(SkinPicture(test.state, test.folder, QStringLiteral("SkinPlay.jpg")));
}

QPixmap Halves() {
    QPixmap picture(200, 100);
    picture.fill(Qt::red);
    QPainter painter(&picture);
    painter.fillRect(100, 0, 100, 100, Qt::blue);
    return picture;
}

QImage Painted(const QPixmap& picture, const QSize& size, const QColor& window) {
    QPixmap canvas(size);
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    PaintSkin(painter, canvas.rect(), picture, QPalette(window));
    painter.end();
    return canvas.toImage();
}

TEST(ASkinPicture, CoversTheAreaCutAndNotDistorted) {
    const QImage shot = Painted(Halves(), QSize(100, 100), Qt::white);
    EXPECT_EQ(shot.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(shot.pixelColor(40, 99), QColor(Qt::red));
    EXPECT_EQ(shot.pixelColor(60, 0), QColor(Qt::blue));
    EXPECT_EQ(shot.pixelColor(99, 99), QColor(Qt::blue));
}

TEST(ASkinPicture, GrowsWithTheArea) {
    const QImage shot = Painted(Halves(), QSize(400, 300), Qt::white);
    EXPECT_EQ(shot.pixelColor(2, 297), QColor(Qt::red));
    EXPECT_EQ(shot.pixelColor(397, 2), QColor(Qt::blue));
}

TEST(ASkinPicture, IsTonedDownOnADarkDesktop) {
    QPixmap white(10, 10);
    white.fill(Qt::white);
    EXPECT_LT(Painted(white, QSize(50, 50), QColor(30, 30, 30)).pixelColor(25, 25).lightness(), 90);
    EXPECT_EQ(Painted(white, QSize(50, 50), QColor(240, 240, 240)).pixelColor(25, 25),
              QColor(Qt::white));
}

TEST(ASkinPicture, LeavesTheAreaAloneWhereThereIsNone) {
    EXPECT_EQ(Painted(QPixmap(), QSize(10, 10), Qt::white).pixelColor(5, 5), QColor(Qt::black));
}

}  // namespace
