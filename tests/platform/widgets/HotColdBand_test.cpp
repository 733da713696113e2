// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/HotColdBand.h"

#include <QLabel>
#include <QVBoxLayout>

#include "platform/widgets/Contrast.h"
#include "platform/widgets/NumberColours.h"
#include "tests/support/form_test.h"

namespace {

struct TheBandOfNumbers : testing::Test {
    TheBandOfNumbers() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&band);
        band.Numbers().setText(QString(30, QChar(0x2588)));  // full blocks
        band.Heading().setText(QStringLiteral("Hot numbers"));
    }
    ~TheBandOfNumbers() override { window.layout()->removeWidget(&band), band.setParent(nullptr); }

    void ShowIn(const QColor& colour) {
        window.setPalette(QPalette(colour, colour));
        window.show();
        QApplication::processEvents();
    }

    QColor Ground() { return band.grab().toImage().pixelColor(band.width() - 3, 2); }
    QColor Letters() {
        const QLabel& numbers = band.Numbers();
        return band.grab().toImage().pixelColor(numbers.x() + 40, numbers.geometry().center().y());
    }

    QWidget window;
    HotColdBand band{QStringLiteral("Label8"), QStringLiteral("Label5")};
};

TEST_F(TheBandOfNumbers, StandsOnWhiteInALightWindowInTheColourTold) {
    ShowIn(QColor(0xef, 0xef, 0xef));
    EXPECT_EQ(Ground(), QColor(Qt::white));
    EXPECT_EQ(Letters(), ColoursOfMode(false).words);
}

TEST_F(TheBandOfNumbers, IsDarkAndReadableInADarkWindowAndKeepsTheColoursTold) {
    ShowIn(QColor(0x31, 0x36, 0x3b));
    for (const bool cold : {false, true}) {
        band.SetCold(cold);
        EXPECT_LT(Ground().lightness(), 60);
        EXPECT_GE(Contrast(Letters(), Ground()), 4.5) << cold;
        const QColor told = ColoursOfMode(cold).words;
        EXPECT_EQ(band.grab().toImage().pixelColor(2, 2), told) << "the ground of the heading";
        EXPECT_EQ(band.Numbers().palette().color(QPalette::WindowText), told);
        EXPECT_EQ(band.Heading().palette().color(QPalette::Window), told);
    }
}

TEST_F(TheBandOfNumbers, TurnsLightWithItsWindow) {
    ShowIn(QColor(0x31, 0x36, 0x3b));
    ShowIn(QColor(0xef, 0xef, 0xef));
    EXPECT_EQ(Ground(), QColor(Qt::white));
}

}  // namespace
