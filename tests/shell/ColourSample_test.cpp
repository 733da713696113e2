// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ColourSample.h"

#include <QSignalSpy>

#include "platform/widgets/Contrast.h"
#include "tests/support/form_test.h"

namespace {

class ASample : public testing::Test {
  protected:
    void Show(const QString& words) {
        sample_ = new ColourSample(QStringLiteral("Label5"), words,
                                   QStringLiteral(" Change title color "));
        sample_->setParent(&around_);
        sample_->resize(120, 30);
        clicks_ = std::make_unique<QSignalSpy>(sample_, &ColourSample::clicked);
        around_.resize(200, 60);
        around_.show();
        QApplication::processEvents();
    }

    void Send(QEvent::Type type, quint64 time) {
        const QPointF place(20, 10);
        const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, sample_->mapToGlobal(place), Qt::LeftButton, held,
                          Qt::NoModifier);
        event.setTimestamp(time);
        QApplication::sendEvent(sample_, &event);
    }

    /// The colour in the middle, and beside all words.
    QColor Ground() { return sample_->grab().toImage().pixelColor(6, 15); }

    QWidget around_;
    ColourSample* sample_ = nullptr;
    std::unique_ptr<QSignalSpy> clicks_;
};

TEST_F(ASample, TellsOfAClick) {
    Show(QStringLiteral("Title"));
    QTest::mouseClick(sample_, Qt::LeftButton);
    EXPECT_EQ(clicks_->count(), 1);
    QTest::mouseClick(sample_, Qt::RightButton);
    EXPECT_EQ(clicks_->count(), 1);
}

TEST_F(ASample, TellsOfADoubleClickOnce) {
    Show(QStringLiteral("Title"));
    for (int time = 1; time <= 2; ++time) {
        const quint64 start = 10000 * static_cast<quint64>(time);
        Send(QEvent::MouseButtonPress, start);
        Send(QEvent::MouseButtonRelease, start + 50);
        Send(QEvent::MouseButtonDblClick, start + 120);
        Send(QEvent::MouseButtonRelease, start + 170);
        EXPECT_EQ(clicks_->count(), time);
    }
}

TEST_F(ASample, TellsOfADoubleClickThatComesAlone) {
    Show(QStringLiteral("Title"));
    QTest::mouseDClick(sample_, Qt::LeftButton);
    EXPECT_EQ(clicks_->count(), 1);
    QTest::mouseClick(sample_, Qt::LeftButton);
    QTest::mouseDClick(sample_, Qt::LeftButton);
    EXPECT_EQ(clicks_->count(), 3);
}

TEST_F(ASample, IgnoresAButtonLetGoOutside) {
    Show(QStringLiteral("Title"));
    QTest::mousePress(sample_, Qt::LeftButton);
    QTest::mouseRelease(sample_, Qt::LeftButton, Qt::NoModifier, {150, 15});
    QTest::mouseRelease(sample_, Qt::LeftButton);
    EXPECT_EQ(clicks_->count(), 0);
}

TEST_F(ASample, TellsOfSpaceAndEnter) {
    Show(QStringLiteral("Title"));
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        clicks_->clear();
        QTest::keyClick(sample_, key);
        EXPECT_EQ(clicks_->count(), 1) << key;
    }
    QTest::keyClick(sample_, Qt::Key_A);
    EXPECT_EQ(clicks_->count(), 1);
    EXPECT_EQ(sample_->focusPolicy(), Qt::StrongFocus);
}

TEST_F(ASample, ShowsItsColourInItsWords) {
    Show(QStringLiteral("Title"));
    sample_->ShowColour(QColor(1, 2, 3));
    EXPECT_EQ(sample_->Colour(), QColor(1, 2, 3));
    EXPECT_EQ(sample_->palette().color(QPalette::WindowText), QColor(1, 2, 3));
    EXPECT_EQ(sample_->accessibleDescription(), QStringLiteral("#010203"));
}

TEST_F(ASample, LetsWordsOfEveryColourBeRead) {
    Show(QStringLiteral("Title"));
    for (const QColor& colour : {QColor(Qt::white), QColor(Qt::black), QColor(Qt::yellow),
                                 QColor(Qt::darkBlue), QColor(128, 128, 128)}) {
        sample_->ShowColour(colour);
        EXPECT_GE(Contrast(Ground(), colour), 3.5) << colour.name().toStdString();
    }
}

TEST_F(ASample, IsFilledWithItsColourWhereItHasNoWords) {
    Show({});
    sample_->ShowColour(QColor(10, 200, 30));
    EXPECT_EQ(Ground(), QColor(10, 200, 30));
    EXPECT_EQ(sample_->palette().color(QPalette::Window), QColor(10, 200, 30));
}

TEST_F(ASample, ShowsWhereTheFocusIs) {
    Show(QStringLiteral("Title"));
    sample_->clearFocus();
    const QImage without = sample_->grab().toImage();
    sample_->setFocus(Qt::TabFocusReason);
    EXPECT_NE(sample_->grab().toImage(), without);
}

TEST_F(ASample, IsSpokenByItsToolTip) {
    Show({});
    EXPECT_EQ(sample_->accessibleName(), QStringLiteral("Change title color"));
    EXPECT_EQ(sample_->toolTip(), QStringLiteral(" Change title color "));
}

}  // namespace
