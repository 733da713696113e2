// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Chart.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QHelpEvent>
#include <QToolTip>

#include "core/failure.h"
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
    try {
        chart.columnLabel(5);
        FAIL() << "there is no column 5";
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(),
                     "chart MSChart1: column 5 was asked for, but they count from 1 to 4");
    }
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

TEST_F(ABiochart, DrawsBarsUpAndDownFromZero) {
    const int first = chart.width() / 5 + 10;
    const int second = chart.width() * 2 / 5 + 10;
    EXPECT_GT(Inked(first, 0, chart.height() / 2 - 20), 60);
    EXPECT_GT(Inked(second, chart.height() / 2, chart.height() - 30), 20);
    EXPECT_EQ(Inked(second, 5, chart.height() / 2 - 30), 0);
}

TEST_F(ABiochart, IsLightOnADarkDesktop) {
    QApplication::setPalette(QPalette(QColor(30, 30, 30)));
    chart.Refresh();
    const QImage image = chart.grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() - 8, 8), QColor(Qt::white));
    QApplication::setPalette(QPalette());
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

}  // namespace
