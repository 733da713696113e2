// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Form.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "core/settings.h"
#include "platform/widgets/Widgets.h"
#include "tests/support/form_test.h"

namespace {

/// A form with a question on closing, as the forms with unsaved rows have it.
class SampleForm final : public Form {
  public:
    explicit SampleForm(Program& program)
        : Form(program, QStringLiteral("SampleForm"), QStringLiteral("Sample"), nullptr) {
        auto* layout = new QVBoxLayout(this);
        text = Named(new QLineEdit, QStringLiteral("Text1"));
        generate = MakeButton(QStringLiteral("Command2"), QStringLiteral("Generate"));
        auto* close = MakeButton(QStringLiteral("Command1"), QStringLiteral("Close"));
        other = Named(new QPushButton, QStringLiteral("Command3"));
        for (QWidget* widget : std::initializer_list<QWidget*>{text, other, generate, close}) {
            layout->addWidget(widget);
        }
        generate->setDefault(true);
        SetCloseButton(close);
        connect(generate, &QPushButton::clicked, this, [this] { ++generated; });
        connect(other, &QPushButton::clicked, this, [this] { ++others; });
        connect(close, &QPushButton::clicked, this, [this] {
            ++questions;
            if (mayClose) Unload();
        });
    }

    using Form::SetHelpPage;
    using Form::Skinning;
    using Form::Unload;

    QLineEdit* text;
    QPushButton* generate;
    QPushButton* other;
    bool mayClose = true;
    int questions = 0;
    int generated = 0;
    int others = 0;
};

struct AForm : testing::Test {
    AForm() {
        form.show();
        QApplication::processEvents();
    }

    TestProgram test;
    SampleForm form{test.program};
};

TEST_F(AForm, BearsItsNameAndItsTitle) {
    EXPECT_EQ(form.objectName(), QStringLiteral("SampleForm"));
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Sample"));
}

TEST_F(AForm, ClicksItsCloseButtonOnEscape) {
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(form.questions, 1);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(AForm, StaysOpenOnEscapeWhereItsCloseButtonSaysSo) {
    form.mayClose = false;
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(form.questions, 1);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(AForm, ClicksItsCloseButtonOnTheTitleBarsCross) {
    form.mayClose = false;
    EXPECT_FALSE(form.close());
    EXPECT_EQ(form.questions, 1);
    EXPECT_TRUE(form.isVisible());
    form.mayClose = true;
    EXPECT_TRUE(form.close());
    EXPECT_EQ(form.questions, 2);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(AForm, ClosesForGoodWithoutItsQuestion) {
    form.Unload();
    EXPECT_EQ(form.questions, 0);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(AForm, EndsItsModalLoopWhenUnloaded) {
    form.hide();
    InDialog([this] { form.exec(); }, [](QDialog& dialog) { Click(dialog, "Command1"); });
    EXPECT_EQ(form.questions, 1);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(AForm, CanBeShownAgain) {
    form.Unload();
    form.show();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(form.questions, 1);
}

TEST_F(AForm, OpensItsPlaceInTheGeneralHelpOnF1) {
    QTest::keyClick(form.text, Qt::Key_F1);
    EXPECT_EQ(test.pages, std::vector<QString>{QStringLiteral("help.html#SampleForm")});
}

TEST_F(AForm, OpensItsPlaceInItsOwnHelpPageOnF1) {
    form.SetHelpPage(QStringLiteral("helpplay.html"));
    QTest::keyClick(&form, Qt::Key_F1);
    EXPECT_EQ(test.pages, std::vector<QString>{QStringLiteral("helpplay.html#SampleForm")});
}

TEST_F(AForm, RunsItsDefaultButtonOnEnter) {
    QTest::keyClick(form.text, Qt::Key_Return);
    EXPECT_EQ(form.generated, 1);
    EXPECT_EQ(form.questions, 0);
}

TEST_F(AForm, RunsTheButtonThatHasTheFocusOnEnter) {
    form.other->setFocus();
    QTest::keyClick(form.other, Qt::Key_Return);
    QTest::keyClick(form.other, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(form.others, 2);
    EXPECT_EQ(form.generated, 0);
}

TEST_F(AForm, RunsItsDefaultButtonOnEnterAgainOnceNoButtonHasTheFocus) {
    form.other->setFocus();
    form.text->setFocus();
    QTest::keyClick(form.text, Qt::Key_Return);
    EXPECT_EQ(form.others, 0);
    EXPECT_EQ(form.generated, 1);
}

TEST_F(AForm, RunsNoDisabledButtonOnEnter) {
    form.other->setFocus();
    form.other->setEnabled(false);
    QTest::keyClick(&form, Qt::Key_Return);
    EXPECT_EQ(form.others, 0);
}

TEST_F(AForm, RunsNothingOnEnterWithoutADefaultButton) {
    form.hide();
    form.generate->setDefault(false);
    form.show();
    form.other->setFocus();
    form.text->setFocus();
    QTest::keyClick(form.text, Qt::Key_Return);
    EXPECT_EQ(form.generated + form.others + form.questions, 0);
}

std::string RedPicture() {
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

/// A frame that opens small, with a text that wraps and a place for what a form on it adds.
class WrappingForm final : public Form {
  public:
    WrappingForm(Program& program, int boxes)
        : Form(program, QStringLiteral("WrappingForm"), QStringLiteral("Wrapping"), nullptr),
          place_(new QVBoxLayout) {
        auto* layout = new QVBoxLayout(this);
        auto* body = new QLabel(QStringLiteral("one two three four five ").repeated(8));
        body->setWordWrap(true);
        layout->addWidget(body);
        layout->addLayout(place_);
        SetOpeningSize({sizeHint().width(), 60});
        for (int box = 0; box < boxes; ++box) {
            auto* line = new QLineEdit;
            line->setMinimumSize(200, 30);
            place_->addWidget(line);
        }
    }

  private:
    QVBoxLayout* place_;
};

TEST(AFormOnAFrame, OpensWithRoomForAllThatWasAddedAndForEachLineOfItsText) {
    for (const int boxes : {0, 1, 5, 12}) {
        TestProgram test;
        WrappingForm form(test.program, boxes);
        form.show();
        EXPECT_GE(form.height(), form.layout()->totalHeightForWidth(form.width())) << boxes;
        EXPECT_LE(form.height(), form.screen()->availableSize().height());
    }
}

TEST(AFormOnAFrame, OpensNoHigherThanTheScreenWhereItCanBeLower) {
    TestProgram test;
    WrappingForm form(test.program, 0);
    auto* tall = new QLabel(QStringLiteral("tall\n").repeated(200));
    tall->setMinimumHeight(50);
    static_cast<QVBoxLayout*>(form.layout())->addWidget(tall);
    form.show();
    EXPECT_LE(form.height(), form.screen()->availableSize().height());
}

TEST_F(AForm, PaintsItsPictureOverAllOfItself) {
    test.state.Settings(setting::SkinBits) = "1 Skinning/colours";
    test.folder.Write("SkinPlay.jpg", RedPicture());
    form.Skinning(QStringLiteral("SkinPlay.jpg"), {});
    const QImage shot = form.grab().toImage();
    EXPECT_EQ(shot.pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(shot.pixelColor(shot.width() - 2, shot.height() - 2), QColor(Qt::red));
}

TEST_F(AForm, KeepsItsPictureWhereTheNewOneIsMissing) {
    test.state.Settings(setting::SkinBits) = "1";
    test.folder.Write("SkinPlay.jpg", RedPicture());
    form.Skinning(QStringLiteral("SkinPlay.jpg"), {});
    form.Skinning(QStringLiteral("SkinFile.jpg"), {});
    EXPECT_EQ(form.grab().toImage().pixelColor(1, 1), QColor(Qt::red));
}

TEST_F(AForm, LosesItsPictureWherePicturesAreSwitchedOff) {
    test.state.Settings(setting::SkinBits) = "1";
    test.folder.Write("SkinPlay.jpg", RedPicture());
    form.Skinning(QStringLiteral("SkinPlay.jpg"), {});
    test.state.Settings(setting::SkinBits) = "0";
    form.Skinning(QStringLiteral("SkinPlay.jpg"), {});
    EXPECT_NE(form.grab().toImage().pixelColor(1, 1), QColor(Qt::red));
}

}  // namespace
