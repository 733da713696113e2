// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/FormPicture.h"

#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include "core/settings.h"
#include "platform/forms/ScrollingBody.h"
#include "platform/system/PrintTask.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/Widgets.h"
#include "tests/support/form_test.h"
#include "tests/support/pdf_reading.h"

namespace {

/// A form with a heading of the skin and a chart.
class ChartForm final : public Form {
  public:
    explicit ChartForm(Program& program)
        : Form(program, QStringLiteral("ChartForm"), QStringLiteral("Charts"), nullptr) {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(MakeTitle(QStringLiteral("Label1"), QStringLiteral("Heading")));
        auto* chart = new Chart(3, 1, this);
        chart->SetTitle(QStringLiteral("Frequency"));
        for (int row = 1; row <= 3; ++row) chart->SetValue(row, 1, row * 10);
        chart->Refresh();
        layout->addWidget(chart);
        resize(600, 400);
    }
    void Load() override {
        Skinning(QString(),
                 {.title = {QStringLiteral("Label1")}, .body = {}, .small = {}, .status = {}});
    }
};

QImage Painted(const PictureJob& job) {
    QImage image(600, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    job.paint(painter, QRectF(0, 0, 600, 400));
    return image;
}

int DarkPixels(const QImage& image, const QRect& area) {
    int count = 0;
    for (int x = area.left(); x <= area.right(); ++x) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            if (image.pixelColor(x, y).lightness() < 120) ++count;
        }
    }
    return count;
}

struct FormPictureTest : testing::Test {
    FormPictureTest() {
        test.state.Settings(setting::SkinBits) = "2";
        test.state.Settings(setting::TitleColour) = "&H00FFFF";  // yellow
        test.state.Settings(setting::BackgroundColour) = "&H400000";
        for (int slot = setting::BodyColour; slot <= setting::StatusColour; ++slot) {
            test.state.Settings(slot) = "&H00FFFF";
        }
        form = std::make_unique<ChartForm>(test.program);
        form->Load();
        form->show();
        QApplication::processEvents();
    }

    TestProgram test;
    std::unique_ptr<ChartForm> form;
};

TEST_F(FormPictureTest, IsLandscapeInMediumQualityAndNamedAsTheForm) {
    const PictureJob job = PictureOf(*form);
    EXPECT_EQ(job.title, QStringLiteral("Charts"));
    EXPECT_EQ(job.options.orientation, Orientation::Landscape);
    EXPECT_EQ(job.options.quality, PrintQuality::Medium);
    EXPECT_FALSE(job.options.paper.has_value());
    EXPECT_EQ(job.size, QSizeF(600, 400));
}

TEST_F(FormPictureTest, IsWhiteWithDarkTextWhateverTheSkin) {
    const QImage image = Painted(PictureOf(*form));
    EXPECT_EQ(image.pixelColor(3, 3), QColor(Qt::white));
    const QLabel* heading = Find<QLabel>(*form, "Label1");
    EXPECT_GT(DarkPixels(image, heading->geometry()), 50);
}

TEST_F(FormPictureTest, TheFormItselfKeepsItsColours) {
    const QPalette before = form->palette();
    const QColor heading = Find<QLabel>(*form, "Label1")->palette().color(QPalette::WindowText);
    PictureOf(*form);
    EXPECT_EQ(form->palette(), before);
    EXPECT_EQ(Find<QLabel>(*form, "Label1")->palette().color(QPalette::WindowText), heading);
    EXPECT_EQ(heading, QColor(255, 255, 0));
}

TEST_F(FormPictureTest, FitsWholeOnTheSheetInItsProportionsWithTextsOfChartsAsTexts) {
    const QByteArray pdf = PdfOf(TaskOf(PictureOf(*form)), {});
    const auto sheets = ReadPdfWords(pdf);
    ASSERT_EQ(sheets.size(), 1U);
    EXPECT_NEAR(sheets[0].size.width(), 297, 0.2);
    // 600 by 400 fills 210 mm of height: the chart is drawn, not copied.
    const QRectF title = sheets[0].Word(QStringLiteral("Frequency"));
    EXPECT_GT(title.left(), 0);
    EXPECT_LT(title.right(), 297);
    // Letters of charts are as large beside the form's as on the screen.
    const double millimetresPerPixel = 297.0 / 600;
    EXPECT_NEAR(title.height() / millimetresPerPixel, form->fontMetrics().height(), 3);
}

/// A form of so many labels that no screen has the room for it.
class LongForm final : public Form {
  public:
    explicit LongForm(Program& program)
        : Form(program, QStringLiteral("LongForm"), QStringLiteral("Long"), nullptr) {
        auto* layout = new QVBoxLayout(this);
        for (int label = 0; label < 20; ++label) {
            layout->addWidget(MakeLabel(Member(QStringLiteral("Label1"), label), QString()));
            Label(label)->setMinimumSize(100, 100);
        }
        Label(19)->setAutoFillBackground(true);
        Label(19)->setPalette(QPalette(Qt::black, Qt::black));
    }

    QLabel* Label(int index) { return Find<QLabel>(*this, qPrintable(Name(index))); }

  private:
    static QString Name(int index) { return Member(QStringLiteral("Label1"), index); }
};

TEST(APictureOfAFormThatScrolls, ShowsAllOfItAndLeavesItAsItWas) {
    TestProgram test;
    LongForm form(test.program);
    form.show();
    QApplication::processEvents();
    QScrollBar* bar = form.findChild<ScrollingBody*>()->verticalScrollBar();
    bar->setValue(77);
    const QSize size = form.size();
    const PictureJob job = PictureOf(form);
    EXPECT_GT(job.size.height(), 2000);
    EXPECT_EQ(form.size(), size);
    EXPECT_EQ(bar->value(), 77);
    QImage image(job.size.toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    job.paint(painter, QRectF(QPointF(), job.size));
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() - 50), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() - 150), QColor(Qt::white));
}

TEST_F(FormPictureTest, WhatIsScrolledOutOfSightIsOnItToo) {
    auto tall = std::make_unique<ChartForm>(test.program);
    Find<QLabel>(*tall, "Label1")->setMinimumHeight(2000);
    tall->Load();
    tall->show();
    QApplication::processEvents();
    ASSERT_LT(tall->height(), 2000);
    const PictureJob job = PictureOf(*tall);
    EXPECT_GT(job.size.height(), 2100) << "the heading and the chart below it";
    const auto words = ReadPdfWords(PdfOf(TaskOf(job), {})).at(0);
    const QRectF title = words.Word(QStringLiteral("Frequency"));
    EXPECT_GT(title.top(), words.size.height() * 0.8);
    EXPECT_LT(title.bottom(), words.size.height());
}

TEST(TaskOfPicture, APictureFillsTheRoomInItsProportions) {
    QRectF place;
    const PictureJob job = {.title = {},
                            .options = {},
                            .size = {300, 100},
                            .paint = [&place](QPainter&, const QRectF& given) { place = given; }};
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    const PrintedSheets wide = TaskOf(job).layOut({254, 200}, {});
    EXPECT_EQ(wide.count, 1);
    wide.paint(painter, 0);
    EXPECT_NEAR(place.width(), 14400, 1e-6);
    EXPECT_NEAR(place.height(), 4800, 1e-6);
    EXPECT_NEAR(place.left(), 0, 1e-6);
    TaskOf(job).layOut({254, 25.4}, {}).paint(painter, 0);
    EXPECT_NEAR(place.height(), 1440, 1e-6);
    EXPECT_NEAR(place.width(), 4320, 1e-6);
    EXPECT_NEAR(place.center().x(), 7200, 1e-6);
}

}  // namespace
