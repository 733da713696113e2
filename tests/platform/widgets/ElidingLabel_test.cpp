// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/ElidingLabel.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QToolTip>

#include "tests/support/form_test.h"

namespace {

const QString longName = QStringLiteral("A lottery of a very long name ").repeated(8);

struct AnElidingLabel : testing::Test {
    AnElidingLabel() {
        label.resize(120, 40);
        label.show();
    }

    ~AnElidingLabel() override { QToolTip::hideText(); }

    QString TipShown() {
        const QPoint place = label.rect().center();
        QHelpEvent help(QEvent::ToolTip, place, label.mapToGlobal(place));
        QApplication::sendEvent(&label, &help);
        return QToolTip::text();
    }

    QImage Shot() { return label.grab().toImage(); }

    ElidingLabel label;
};

TEST_F(AnElidingLabel, PaintsMegabytesAsItsFirstWords) {
    label.setText(QStringLiteral("word ").repeated(2'000'000));
    const QImage shot = Shot();
    label.setText(QStringLiteral("word ").repeated(60));
    EXPECT_EQ(shot, Shot());
}

TEST_F(AnElidingLabel, ShowsMarkupInItsTipAsItStands) {
    label.setText(QStringLiteral("<b>bold</b> ").repeated(20));
    EXPECT_TRUE(TipShown().contains(QStringLiteral("&lt;b&gt;bold"))) << TipShown().toStdString();
}

TEST_F(AnElidingLabel, AsksForNoWidthHoweverLongItsText) {
    label.setText(longName);
    EXPECT_LT(label.minimumSizeHint().width(), 20);
    EXPECT_EQ(label.text(), longName);
}

TEST_F(AnElidingLabel, AsksForTheHeightOfItsLines) {
    label.setText(QStringLiteral("Last update was\r\n24 Aug 05"));
    EXPECT_EQ(label.minimumSizeHint().height(), 2 * label.fontMetrics().lineSpacing());
}

TEST_F(AnElidingLabel, EndsWhatDoesNotFitInDots) {
    label.setText(longName);
    const QImage cut = Shot();
    const QString fitting = label.fontMetrics().elidedText(longName, Qt::ElideRight, label.width());
    ASSERT_NE(fitting, longName);
    label.setText(fitting);
    EXPECT_EQ(cut, Shot());
}

TEST_F(AnElidingLabel, CutsEachLineForItself) {
    label.setText(QStringLiteral("Last update was\r\n") + longName);
    const QImage cut = Shot();
    const QString fitting = label.fontMetrics().elidedText(longName, Qt::ElideRight, label.width());
    label.setText(QStringLiteral("Last update was\n") + fitting);
    EXPECT_EQ(cut, Shot());
}

TEST_F(AnElidingLabel, TellsTheWholeTextInATipWhereItIsCut) {
    label.setText(longName);
    EXPECT_EQ(TipShown(), longName);
}

TEST_F(AnElidingLabel, HasNoTipWhereAllIsSeen) {
    label.setText(QStringLiteral("UK Lotto"));
    EXPECT_EQ(TipShown(), QString());
}

}  // namespace
