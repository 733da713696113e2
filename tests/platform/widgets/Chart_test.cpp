// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Chart.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QHelpEvent>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

#include "platform/widgets/Readable.h"
#include "platform/widgets/WindowShade.h"
#include "tests/core/failures.h"
#include "tests/support/form_test.h"

namespace {

struct ABiochart : testing::Test {
    ABiochart() {
        chart.setObjectName(QStringLiteral("MSChart1"));
        int column = 1;
        for (const char* name : {"Intellectual", "Emotional", "Intuition", "Luck"}) {
            chart.SetColumnLabel(column++, QString::fromLatin1(name));
        }
        chart.SetValue(1, 1, 9.5);
        chart.SetValue(1, 2, -4.25);
        chart.SetValue(1, 4, 1.75);
        chart.SetRange(-10, 10);
        chart.Refresh();
        chart.resize(500, 300);
        chart.show();
        QApplication::processEvents();
    }

    /// How many pixels of a column of the picture differ from white, from `top` down to `bottom`.
    int Inked(int x, int top, int bottom) {
        const QImage image = chart.grab().toImage();
        int count = 0;
        for (int y = top; y < bottom; ++y) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.hsvSaturation() > 60) ++count;
        }
        return count;
    }

    Chart chart{1, 4};
};

TEST_F(ABiochart, IsOneRowOfFourColumns) {
    EXPECT_EQ(chart.rowCount(), 1);
    EXPECT_EQ(chart.columnCount(), 4);
}

TEST_F(ABiochart, TellsItsFiguresToWhoeverAsksByName) {
    QString label;
    double value = 0;
    ASSERT_TRUE(QMetaObject::invokeMethod(&chart, "columnLabel", Q_RETURN_ARG(QString, label),
                                          Q_ARG(int, 2)));
    ASSERT_TRUE(QMetaObject::invokeMethod(&chart, "value", Q_RETURN_ARG(double, value),
                                          Q_ARG(int, 1), Q_ARG(int, 2)));
    EXPECT_EQ(label, QStringLiteral("Emotional"));
    EXPECT_EQ(value, -4.25);
}

TEST_F(ABiochart, CountsItsRowsAndColumnsFromOne) {
    EXPECT_THROW(chart.value(0, 1), Failure);
    EXPECT_THROW(chart.value(1, 5), Failure);
    EXPECT_THROW(chart.rowLabel(2), Failure);
    EXPECT_THROW(chart.columnLabel(0), Failure);
    EXPECT_THROW(chart.SetValue(2, 1, 0), Failure);
    EXPECT_THROW(chart.SetColumnLabel(5, QString()), Failure);
    EXPECT_THROW(chart.SetRowLabel(0, QString()), Failure);
}

TEST_F(ABiochart, NamesTheColumnItDoesNotHave) {
    EXPECT_EQ(FailureOf([&] { chart.columnLabel(5); }),
              "chart MSChart1: column 5 was asked for, but they count from 1 to 4");
}

TEST_F(ABiochart, TellsItsNameInWindows1252) {
    chart.setObjectName(QStringLiteral("Caf\u00E9"));
    EXPECT_TRUE(FailureOf([&] { chart.columnLabel(5); }).starts_with("chart Caf\xE9: column 5 "));
}

TEST_F(ABiochart, DescribesItsFiguresToScreenReaders) {
    EXPECT_EQ(chart.accessibleName(), QStringLiteral("Chart"));
    EXPECT_EQ(chart.accessibleDescription(),
              QStringLiteral("Intellectual: 9.5; Emotional: -4.25; Intuition: 0; Luck: 1.75"));
}

TEST_F(ABiochart, KeepsTheAccessibleNameThatItsFormGave) {
    chart.setAccessibleName(QStringLiteral("Biochart"));
    chart.Refresh();
    EXPECT_EQ(chart.accessibleName(), QStringLiteral("Biochart"));
}

TEST_F(ABiochart, CopiesItsFigures) {
    QTest::keyClick(&chart, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(
        QGuiApplication::clipboard()->text(),
        QStringLiteral("\tIntellectual\tEmotional\tIntuition\tLuck\n\t9.5\t-4.25\t0\t1.75\n"));
}

TEST_F(ABiochart, ShowsTheFigureUnderTheMouse) {
    QWidget* plot = chart.findChild<QWidget*>();
    ASSERT_NE(plot, nullptr);
    const QPoint place(plot->width() * 2 / 5, plot->height() / 2);
    QHelpEvent help(QEvent::ToolTip, place, plot->mapToGlobal(place));
    QApplication::sendEvent(plot, &help);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Emotional: -4.25"));
}

TEST_F(ABiochart, ShowsMarkupInANameAsItStands) {
    chart.SetColumnLabel(2, QStringLiteral("<img src='x'/>"));
    chart.Refresh();
    QWidget* plot = chart.findChild<QWidget*>();
    const QPoint place(plot->width() * 2 / 5, plot->height() / 2);
    QHelpEvent help(QEvent::ToolTip, place, plot->mapToGlobal(place));
    QApplication::sendEvent(plot, &help);
    EXPECT_EQ(QToolTip::text(), PlainTip(QStringLiteral("<img src='x'/>: -4.25")));
    EXPECT_NE(QToolTip::text(), QStringLiteral("<img src='x'/>: -4.25"));
}

TEST_F(ABiochart, DrawsBarsUpAndDownFromZero) {
    const int first = chart.width() / 5 + 10;
    const int second = chart.width() * 2 / 5 + 10;
    EXPECT_GT(Inked(first, 0, chart.height() / 2 - 20), 60);
    EXPECT_GT(Inked(second, chart.height() / 2, chart.height() - 30), 20);
    EXPECT_EQ(Inked(second, 5, chart.height() / 2 - 30), 0);
}

/// Notes what a menu offers that opens, and closes it.
class MenuWatch final : public QObject {
  public:
    MenuWatch() { QApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* menu = qobject_cast<QMenu*>(watched);
        if (menu != nullptr && event->type() == QEvent::Show) {
            actions = menu->actions();
            QTimer::singleShot(0, menu, &QMenu::close);
        }
        return false;
    }

    QList<QAction*> actions;
};

struct AChartInAWindow : testing::Test {
    void Show(const QColor& background) {
        window.setPalette(QPalette(background));
        window.resize(520, 320);
        chart.resize(500, 300);
        chart.SetRowCount(4);
        for (int row = 1; row <= 4; ++row) chart.SetValue(row, 1, row * 10);
        chart.SetSeriesColour(1, QColor(0, 0, 128));
        chart.Refresh();
        window.show();
        QApplication::processEvents();
    }

    /// How many pixels of the chart have this colour, but for rounding.
    int Count(const QColor& colour) {
        const QImage image = chart.grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                const int apart = std::abs(pixel.red() - colour.red()) +
                                  std::abs(pixel.green() - colour.green()) +
                                  std::abs(pixel.blue() - colour.blue());
                count += apart <= 3;
            }
        }
        return count;
    }

    QColor Corner() { return chart.grab().toImage().pixelColor(490, 8); }

    QWidget window;
    Chart chart{0, 1, &window};
};

TEST_F(AChartInAWindow, IsLightInALightOne) {
    Show(QColor(0xf0, 0xf0, 0xf0));
    EXPECT_EQ(Corner(), QColor(Qt::white));
    EXPECT_GT(Count(QColor(0, 0, 128)), 1000);
}

TEST_F(AChartInAWindow, IsDarkInADarkOneWithBarsThatCanBeSeen) {
    Show(QColor(0x20, 0x20, 0x20));
    EXPECT_LT(Corner().lightness(), 60);
    EXPECT_EQ(Count(QColor(0, 0, 128)), 0);
    const QColor light = OnDark(QColor(0, 0, 128));
    EXPECT_GT(light.lightness(), 180);
    EXPECT_GT(Count(light), 1000);
    EXPECT_EQ(chart.fillColour(), QColor(0, 0, 128)) << "the colour told stays";
}

TEST_F(AChartInAWindow, FollowsItsWindow) {
    Show(QColor(0x20, 0x20, 0x20));
    window.setPalette(QPalette(QColor(0xf0, 0xf0, 0xf0)));
    QApplication::processEvents();
    EXPECT_EQ(Corner(), QColor(Qt::white));
}

TEST_F(AChartInAWindow, CopiesALightPictureOfADarkChart) {
    Show(QColor(0x20, 0x20, 0x20));
    chart.findChild<QAction*>(QStringLiteral("CopyPicture"))->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->image().pixelColor(3, 3), QColor(Qt::white));
    QApplication::processEvents();
    EXPECT_LT(Corner().lightness(), 60) << "the chart itself stays dark";
}

TEST_F(AChartInAWindow, DrawsALineAtTheAverage) {
    Show(QColor(0xf0, 0xf0, 0xf0));
    chart.SetSeriesColour(1, QColor(0xc0, 0xd0, 0xff));
    chart.Refresh();
    QApplication::processEvents();
    const auto rowsWithInk = [&] {
        const QImage image = chart.grab().toImage();
        int longest = 0;
        for (int y = 30; y < image.height() - 40; ++y) {
            int dark = 0;
            for (int x = 60; x < 440; ++x) dark += qGray(image.pixel(x, y)) < 120;
            longest = std::max(longest, dark);
        }
        return longest;
    };
    const int without = rowsWithInk();
    chart.SetAverage(25);
    chart.Refresh();
    QApplication::processEvents();
    EXPECT_GT(rowsWithInk(), without + 50);
    chart.SetAverage(std::nullopt);
    chart.Refresh();
    QApplication::processEvents();
    EXPECT_EQ(rowsWithInk(), without);
}

TEST_F(AChartInAWindow, HasFewerFiguresAtItsAxisWhereItIsLow) {
    Show(QColor(0xf0, 0xf0, 0xf0));
    // The lines across the drawing, one for each figure.
    const auto figures = [this](int height) {
        chart.setMinimumHeight(height);
        chart.resize(500, height);
        QApplication::processEvents();
        const QImage image = chart.grab().toImage();
        int lines = 0;
        for (int y = 2; y < image.height() - 2; ++y) {
            int grey = 0;
            for (int x = 60; x < 480; ++x) grey += qGray(image.pixel(x, y)) < 240;
            lines += grey > 380 ? 1 : 0;
        }
        return lines;
    };
    const int high = figures(300);
    const int low = figures(90);
    EXPECT_GT(high, low);
    EXPECT_GE(low, 1);
}

TEST_F(AChartInAWindow, WritesTheAverageBesideTheBarsAndCoversNone) {
    Show(QColor(0xf0, 0xf0, 0xf0));
    const QColor series(0xc0, 0xd0, 0xff);
    chart.SetSeriesColour(1, series);
    const auto inkBesideTheBars = [&] {
        chart.Refresh();
        QApplication::processEvents();
        const QImage image = chart.grab().toImage();
        int lastBar = 0;
        int ink = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height() - 60; ++y) {
                if (image.pixelColor(x, y) == series) lastBar = x;
            }
        }
        for (int x = lastBar + 20; x < image.width() - 2; ++x) {
            for (int y = 40; y < image.height() - 60; ++y) ink += qGray(image.pixel(x, y)) < 120;
        }
        return ink;
    };
    EXPECT_EQ(inkBesideTheBars(), 0);
    chart.SetAverage(25);
    EXPECT_GT(inkBesideTheBars(), 40);
}

TEST_F(AChartInAWindow, WritesTheFiguresOfRankedBarsAboveThem) {
    Show(QColor(0xf0, 0xf0, 0xf0));
    const auto inkAbove = [this](int row) {
        const QImage image = chart.grab().toImage();
        const int middle = 40 + (chart.width() - 60) * (2 * row - 1) / 8;
        int dark = 0;
        for (int x = middle - 30; x < middle + 30; ++x) {
            for (int y = 0; y < image.height() - 40; ++y) dark += qGray(image.pixel(x, y)) < 90;
        }
        return dark;
    };
    const int before = inkAbove(2);
    chart.SetRankedRows({2});
    chart.Refresh();
    QApplication::processEvents();
    const int figures = inkAbove(2);
    EXPECT_NE(figures, before);
    chart.SetRankedRows({2, 5});
    chart.Refresh();
    QApplication::processEvents();
    EXPECT_EQ(inkAbove(2), figures) << "a row that is not there bears no figure";
}

TEST_F(AChartInAWindow, OpensItsMenuByARightClickOnTheDrawing) {
    Show(QColor(0xf0, 0xf0, 0xf0));
    MenuWatch menus;
    QTest::mouseClick(chart.findChild<QWidget*>(), Qt::RightButton);
    EXPECT_EQ(menus.actions, chart.actions());
}

TEST(AChart, IsDrawnOnlyOnceItIsToBeSeen) {
    QWidget window;
    auto* chart = new Chart(1, 1, &window);
    chart->hide();
    window.show();
    EXPECT_TRUE(chart->findChildren<QWidget*>().isEmpty()) << "nobody sees it yet";
    chart->show();
    EXPECT_FALSE(chart->findChildren<QWidget*>().isEmpty());
}

TEST(AChart, HasATitleAndRowsWithSeveralSeries) {
    Chart chart(2, 2);
    chart.SetTitle(QStringLiteral(" Odd and even "));
    chart.SetRowLabel(1, QStringLiteral("May"));
    chart.SetRowLabel(2, QStringLiteral("June"));
    chart.SetColumnLabel(1, QStringLiteral("odd"));
    chart.SetColumnLabel(2, QStringLiteral("even"));
    chart.SetValue(2, 1, 7);
    chart.Refresh();
    EXPECT_EQ(chart.title(), QStringLiteral(" Odd and even "));
    EXPECT_EQ(chart.rowLabel(2), QStringLiteral("June"));
    EXPECT_EQ(chart.accessibleName(), QStringLiteral("Odd and even"));
    EXPECT_EQ(chart.accessibleDescription(),
              QStringLiteral("May: odd 0, even 0; June: odd 7, even 0"));
}

TEST(AChart, ChangesAndDropsItsTitle) {
    Chart chart(1, 1);
    for (const char* title : {"first", "second", "", "third"}) {
        chart.SetTitle(QString::fromLatin1(title));
        chart.Refresh();
        EXPECT_EQ(chart.title(), QString::fromLatin1(title));
    }
}

TEST(AChart, MayHaveNoRowsAtAll) {
    Chart chart(0, 1);
    chart.Refresh();
    EXPECT_THROW(chart.value(1, 1), Failure);
    EXPECT_EQ(chart.accessibleDescription(), QString());
}

/// A chart of how often each of `numbers` numbers was drawn.
std::unique_ptr<Chart> FrequencyChart(int numbers, int width = 500) {
    auto chart = std::make_unique<Chart>(numbers, 1);
    for (int number = 1; number <= numbers; ++number) {
        chart->SetRowLabel(number, QString::number(number));
        chart->SetValue(number, 1, 200 + number % 9);
    }
    chart->Refresh();
    chart->resize(width, 300);
    chart->show();
    QApplication::processEvents();
    return chart;
}

bool IsInk(const QColor& colour) { return colour.hsvSaturation() > 60; }

/// The smallest rectangle around all that is coloured.
QRect InkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (IsInk(image.pixelColor(x, y))) ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

TEST(AChart, ShowsAllFortyNineAndAllSixtyNumbersAtTheWidthOfAForm) {
    for (const int numbers : {49, 60}) {
        for (const int width : {460, 680, 1150}) {
            const auto chart = FrequencyChart(numbers, width);
            EXPECT_EQ(chart->shownLabels().size(), numbers) << width;
            EXPECT_EQ(chart->shownLabels().back(), QString::number(numbers));
        }
    }
}

TEST(AChart, ShowsOnlySomeNumbersWhereAllWouldOverlap) {
    const auto chart = FrequencyChart(60, 240);
    EXPECT_GE(chart->shownLabels().size(), 15);
    EXPECT_LT(chart->shownLabels().size(), 60);
    EXPECT_EQ(chart->rowLabel(60), QStringLiteral("60"));
}

TEST(AChart, KeepsTheFiguresOfRowsThatStay) {
    const auto chart = FrequencyChart(3);
    chart->SetRowCount(5);
    EXPECT_EQ(chart->rowCount(), 5);
    EXPECT_EQ(chart->value(3, 1), 203);
    EXPECT_EQ(chart->value(5, 1), 0);
    EXPECT_EQ(chart->rowLabel(5), QString());
    chart->SetRowCount(2);
    EXPECT_THROW(chart->value(3, 1), Failure);
    chart->SetRowCount(3);
    EXPECT_EQ(chart->value(3, 1), 0);
}

TEST(AChart, KeepsTheSeriesOfARowTogetherWhenRowsAreAdded) {
    Chart chart(2, 2);
    chart.SetValue(2, 1, 7);
    chart.SetValue(2, 2, 8);
    chart.SetRowCount(4);
    EXPECT_EQ(chart.value(2, 1), 7);
    EXPECT_EQ(chart.value(2, 2), 8);
}

TEST(AChart, DrawsBarsInTheTwoColoursOfAPattern) {
    const auto chart = FrequencyChart(6);
    chart->SetSeriesLook(
        1, {.fill = QColor(128, 0, 0), .pattern = QBrush(QColor(255, 0, 0), Qt::BDiagPattern)});
    chart->Refresh();
    QApplication::processEvents();
    EXPECT_EQ(chart->patternColour(), QColor(255, 0, 0));
    EXPECT_EQ(chart->fillColour(), QColor(128, 0, 0));
    const QImage image = chart->grab().toImage();
    int pattern = 0;
    int fill = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(255, 0, 0)) ++pattern;
            if (image.pixelColor(x, y) == QColor(128, 0, 0)) ++fill;
        }
    }
    EXPECT_GT(pattern, 500);
    EXPECT_GT(fill, 1000);
}

TEST(AChart, OfOneSeriesHasOneColourWithoutAPattern) {
    Chart chart(3, 1);
    EXPECT_EQ(chart.patternColour(), chart.fillColour());
    chart.SetSeriesColour(1, QColor(1, 2, 3));
    EXPECT_EQ(chart.fillColour(), QColor(1, 2, 3));
}

/// How many pixels of the chart have exactly this colour, in the part of it that `area` is.
int PixelsOf(const QColor& colour, Chart& chart, const QRect& area) {
    const QImage image = chart.grab().toImage().copy(area);
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour;
    }
    return count;
}

/// Two series of two rows: the first plain, the second with a pattern.
struct AChartOfTwoSeries : testing::Test {
    AChartOfTwoSeries() {
        chart.SetSeriesLook(1, {.fill = plain});
        chart.SetSeriesLook(2, {.fill = ground, .pattern = QBrush(lines, Qt::HorPattern)});
        for (int row = 1; row <= 2; ++row) {
            chart.SetValue(row, 1, 10);
            chart.SetValue(row, 2, 10);
        }
        chart.SetRange(0, 20);
        chart.resize(500, 300);
        Show();
    }

    void Show() {
        chart.Refresh();
        chart.show();
        QApplication::processEvents();
    }

    int Pixels(const QColor& colour, const QRect& area) { return PixelsOf(colour, chart, area); }

    const QColor plain{0, 0, 200};
    const QColor ground{0, 200, 0};
    const QColor lines{0, 90, 0};
    const QRect top{0, 0, 500, 24};
    const QRect all{0, 0, 500, 300};
    Chart chart{2, 2};
};

TEST_F(AChartOfTwoSeries, DrawsEachInItsOwnLook) {
    EXPECT_GT(Pixels(plain, all), 5000);
    EXPECT_GT(Pixels(ground, all), 3000);
    EXPECT_GT(Pixels(lines, all), 500);
    chart.SetSeriesLook(2, {.fill = ground});
    Show();
    EXPECT_EQ(Pixels(lines, all), 0) << "the first series has no pattern";
}

TEST_F(AChartOfTwoSeries, ShowsTheSameLooksInTheLegend) {
    EXPECT_EQ(Pixels(plain, top), 0) << "no names, no legend";
    chart.SetColumnLabel(1, QStringLiteral("Odd"));
    chart.SetColumnLabel(2, QStringLiteral("Even"));
    Show();
    EXPECT_GT(Pixels(plain, top), 50);
    EXPECT_GT(Pixels(ground, top), 30);
    EXPECT_GT(Pixels(lines, top), 10);
}

TEST_F(AChartOfTwoSeries, MayGiveTheBarsOfARowALookOfTheirOwn) {
    const QColor own(200, 0, 0);
    chart.SetRowLook(2, {.fill = own});
    Show();
    const QRect left(0, 0, 250, 300);
    const QRect right(250, 0, 250, 300);
    EXPECT_EQ(Pixels(own, left), 0);
    EXPECT_GT(Pixels(own, right), 10000);
    EXPECT_EQ(Pixels(plain, right) + Pixels(ground, right), 0);
    EXPECT_THROW(chart.SetRowLook(3, {}), Failure);
    EXPECT_THROW(chart.SetSeriesLook(3, {}), Failure);
}

TEST_F(AChartOfTwoSeries, CallsARowByItsNameWhereItsLabelIsTooShort) {
    chart.SetRowLabel(1, QStringLiteral("1"));
    chart.SetRowLabel(2, QStringLiteral("2"));
    chart.SetRowName(1, QStringLiteral("draw 1, the newest"));
    chart.SetColumnLabel(1, QStringLiteral("Odd"));
    chart.SetColumnLabel(2, QStringLiteral("Even"));
    Show();
    EXPECT_EQ(chart.rowLabel(1), QStringLiteral("1"));
    EXPECT_EQ(chart.shownLabels(), (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
    EXPECT_EQ(chart.accessibleDescription(),
              QStringLiteral("draw 1, the newest: Odd 10, Even 10; 2: Odd 10, Even 10"));
    QWidget* plot = chart.findChild<QWidget*>();
    const QPoint place(plot->width() / 4, plot->height() / 2);
    QHelpEvent help(QEvent::ToolTip, place, plot->mapToGlobal(place));
    QApplication::sendEvent(plot, &help);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("draw 1, the newest: Odd 10, Even 10"));
    chart.findChild<QAction*>(QStringLiteral("CopyTable"))->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("\tOdd\tEven\ndraw 1, the newest\t10\t10\n2\t10\t10\n"));
    EXPECT_THROW(chart.SetRowName(3, QString()), Failure);
}

TEST_F(AChartOfTwoSeries, SaysBelowTheRowsWhatTheyCount) {
    const auto lettersAtTheBottom = [this] {
        const QImage image = chart.grab().toImage();
        int dark = 0;
        for (int y = image.height() - 36; y < image.height() - 2; ++y) {
            for (int x = 5; x < image.width() - 5; ++x) {
                const QColor colour = image.pixelColor(x, y);
                dark += !IsInk(colour) && colour.lightness() < 140;
            }
        }
        return dark;
    };
    const int without = lettersAtTheBottom();
    chart.SetCaption(QStringLiteral("draws, the newest first"));
    Show();
    EXPECT_GT(lettersAtTheBottom(), without + 50);
    chart.SetCaption(QString());
    Show();
    EXPECT_EQ(lettersAtTheBottom(), without);
}

TEST(AChart, DrawsALineForEachSeriesInItsColour) {
    Chart chart(28, 2);
    chart.SetKind(ChartKind::Lines);
    chart.SetSeriesColour(1, QColor(255, 0, 0));
    chart.SetSeriesColour(2, QColor(0, 0, 255));
    for (int row = 1; row <= 28; ++row) {
        chart.SetValue(row, 1, row);
        chart.SetValue(row, 2, 30 - row);
    }
    chart.Refresh();
    chart.resize(500, 300);
    const QImage image = chart.grab().toImage();
    int first = 0;
    int second = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(255, 0, 0)) ++first;
            if (image.pixelColor(x, y) == QColor(0, 0, 255)) ++second;
        }
    }
    EXPECT_GT(first, 100);
    EXPECT_GT(second, 100);
}

TEST(AChart, TellsTheFigureUnderTheMouseByItsNumber) {
    const auto chart = FrequencyChart(9);
    QWidget* plot = chart->findChild<QWidget*>();
    const QPoint place(plot->width() - 24, plot->height() / 2);
    QHelpEvent help(QEvent::ToolTip, place, plot->mapToGlobal(place));
    QApplication::sendEvent(plot, &help);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("9: 200"));
}

TEST(AChart, CopiesItsTableFromTheContextMenu) {
    const auto chart = FrequencyChart(2);
    ASSERT_EQ(chart->contextMenuPolicy(), Qt::ActionsContextMenu);
    chart->findChild<QAction*>(QStringLiteral("CopyTable"))->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("\t\n1\t201\n2\t202\n"));
}

TEST(AChart, CopiesItsPictureFromTheContextMenu) {
    const auto chart = FrequencyChart(9);
    chart->findChild<QAction*>(QStringLiteral("CopyPicture"))->trigger();
    const QImage image = QGuiApplication::clipboard()->image();
    EXPECT_EQ(image.size(), chart->size() * 2);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
    EXPECT_GT(InkOf(image).width(), image.width() / 2);
}

TEST(AChart, FillsItsPlaceOnAPageOfAnyResolution) {
    const auto chart = FrequencyChart(49);
    for (const int dotsPerMeter : {2835, 11811, 23622}) {
        QImage page(1400, 700, QImage::Format_RGB32);
        page.setDotsPerMeterX(dotsPerMeter);
        page.setDotsPerMeterY(dotsPerMeter);
        page.fill(QColor(120, 120, 120));
        QPainter painter(&page);
        chart->Paint(painter, QRectF(100, 50, 1200, 600));
        painter.end();
        EXPECT_EQ(page.pixelColor(98, 300), QColor(120, 120, 120));
        EXPECT_EQ(page.pixelColor(1302, 300), QColor(120, 120, 120));
        EXPECT_EQ(page.pixelColor(700, 652), QColor(120, 120, 120));
        EXPECT_EQ(page.pixelColor(102, 52), QColor(Qt::white));
        EXPECT_EQ(page.pixelColor(1297, 52), QColor(Qt::white));
        const QRect ink = InkOf(page);
        EXPECT_GT(ink.width(), 1000) << dotsPerMeter;
        EXPECT_GT(ink.height(), 350) << dotsPerMeter;
        EXPECT_TRUE(QRect(100, 50, 1200, 600).contains(ink)) << dotsPerMeter;
    }
}

TEST(AChart, KeepsTheSizeOfItsLettersOnPaper) {
    for (const int width : {300, 1100}) {
        const auto chart = FrequencyChart(3, width);
        const QImage shown = chart->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QImage page(2 * width, 600, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        chart->Paint(painter, page.rect());
        painter.end();
        // The labels below the bars: the lowest dark rows.
        const auto letters = [](const QImage& image) {
            QRect dark;
            for (int y = image.height() * 9 / 10; y < image.height() - 4; ++y) {
                for (int x = image.width() / 4; x < image.width() * 3 / 4; ++x) {
                    if (qGray(image.pixel(x, y)) < 100) dark |= QRect(x, y, 1, 1);
                }
            }
            return dark.height();
        };
        EXPECT_GT(letters(shown), 5) << width;
        EXPECT_NEAR(letters(page), 2 * letters(shown), 3) << width;
    }
}

TEST(AChart, IsLightOnPaperOnADarkDesktop) {
    QApplication::setPalette(QPalette(QColor(30, 30, 30)));
    const auto chart = FrequencyChart(9);
    QImage page(900, 400, QImage::Format_RGB32);
    page.fill(Qt::black);
    QPainter painter(&page);
    chart->Paint(painter, QRectF(0, 0, 900, 400));
    painter.end();
    EXPECT_EQ(page.pixelColor(3, 3), QColor(Qt::white));
    QApplication::setPalette(QPalette());
}

}  // namespace
