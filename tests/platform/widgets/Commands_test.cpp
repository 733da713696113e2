// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Commands.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "platform/widgets/Contrast.h"
#include "platform/widgets/Widgets.h"
#include "tests/support/form_test.h"

namespace {

QPushButton* MakeOne(Command command, QWidget* parent = nullptr) {
    return MakeCommandButton(QStringLiteral("Command2"), command, QStringLiteral(" Do it "),
                             parent);
}

TEST(ACommandsButton, HasAPictureAndOneWord) {
    const std::vector<std::pair<Command, const char*>> words = {{Command::Generate, "Generate"},
                                                                {Command::Save, "Save"},
                                                                {Command::Print, "Print"},
                                                                {Command::Close, "Close"},
                                                                {Command::Cancel, "Cancel"},
                                                                {Command::Delete, "Delete"},
                                                                {Command::Up, "Up"},
                                                                {Command::Down, "Down"}};
    for (const auto& [command, word] : words) {
        const std::unique_ptr<QPushButton> button(MakeOne(command));
        EXPECT_EQ(button->text(), QString::fromLatin1(word));
        EXPECT_FALSE(button->icon().isNull()) << word;
    }
}

TEST(ACommandsButton, KeepsTheToolTipOfTheDesignAndSpeaksIt) {
    const std::unique_ptr<QPushButton> button(MakeOne(Command::Save));
    EXPECT_EQ(button->objectName(), QStringLiteral("Command2"));
    EXPECT_EQ(button->toolTip(), QStringLiteral(" Do it "));
    EXPECT_EQ(button->accessibleName(), QStringLiteral("Do it"));
}

struct AWindowOfCommands : testing::Test {
    AWindowOfCommands() {
        auto* row = new QHBoxLayout(&window);
        row->addWidget(text);
        row->addWidget(button);
        QObject::connect(button, &QPushButton::clicked, &window, [this] { ++clicks; });
        window.show();
        window.activateWindow();
        text->setFocus();
        QApplication::processEvents();
    }

    QWidget window;
    QLineEdit* text = new QLineEdit;
    QPushButton* button = MakeButton(QStringLiteral("Command1"), QStringLiteral(" Save "));
    int clicks = 0;
};

TEST_F(AWindowOfCommands, GeneratesOnF5AndOnCtrlReturn) {
    WithKeysOf(Command::Generate, button);
    QTest::keyClick(text, Qt::Key_F5);
    QTest::keyClick(text, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(text, Qt::Key_Enter, Qt::ControlModifier);
    EXPECT_EQ(clicks, 3);
}

TEST_F(AWindowOfCommands, SavesOnCtrlSAndPrintsOnCtrlP) {
    WithKeysOf(Command::Save, button);
    QTest::keyClick(text, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(clicks, 1);
    QTest::keyClick(text, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(clicks, 1);
    WithKeysOf(Command::Print, button);
    QTest::keyClick(text, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(clicks, 2);
}

TEST_F(AWindowOfCommands, DoesNothingByKeysWhileTheButtonIsDisabled) {
    WithKeysOf(Command::Save, button);
    button->setEnabled(false);
    QTest::keyClick(text, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(clicks, 0);
}

/// The colours of the button that makes the lines, in a window of those colours.
QPalette ColoursOfGenerate(const QPalette& colours) {
    QWidget window;
    QPushButton* generate = MakeOne(Command::Generate, &window);
    window.setPalette(colours);
    return generate->palette();
}

TEST(TheGenerateButton, StandsOutInTheAccentOfDesktopOrSkin) {
    QPalette colours(QColor(240, 240, 240));
    colours.setColor(QPalette::Highlight, QColor(0x2a, 0x6f, 0xb8));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    const QPalette plain = ColoursOfGenerate(colours);
    EXPECT_EQ(plain.color(QPalette::Active, QPalette::ButtonText), QColor(Qt::white));
    EXPECT_GT(
        Contrast(plain.color(QPalette::Active, QPalette::Button), colours.color(QPalette::Button)),
        3);
    colours.setColor(QPalette::Highlight, QColor(0xff, 0xd0, 0x00));
    const QPalette yellow = ColoursOfGenerate(colours);
    EXPECT_NE(yellow.color(QPalette::Active, QPalette::Button),
              plain.color(QPalette::Active, QPalette::Button));
}

TEST(TheGenerateButton, CanBeReadWhateverTheAccent) {
    for (const QColor accent : {QColor(0x30, 0x8c, 0xc6), QColor(Qt::yellow), QColor(Qt::black)}) {
        QPalette colours(QColor(240, 240, 240));
        colours.setColor(QPalette::Highlight, accent);
        colours.setColor(QPalette::HighlightedText, Qt::white);
        const QPalette shown = ColoursOfGenerate(colours);
        EXPECT_GE(Contrast(shown.color(QPalette::Active, QPalette::Button),
                           shown.color(QPalette::Active, QPalette::ButtonText)),
                  4.5)
            << accent.name().toStdString();
    }
}

TEST(TheGenerateButton, LooksDisabledWhereItIs) {
    QPalette colours(QColor(240, 240, 240));
    EXPECT_EQ(ColoursOfGenerate(colours).color(QPalette::Disabled, QPalette::Button),
              colours.color(QPalette::Disabled, QPalette::Button));
}

TEST(ADeletingButton, HasItsCaptionAndTheDeleteIcon) {
    const std::unique_ptr<QPushButton> button(
        MakeDeletingButton(QStringLiteral("Command2"), QStringLiteral("Delete Draw")));
    EXPECT_EQ(button->text(), QStringLiteral("Delete Draw"));
    EXPECT_FALSE(button->icon().isNull());
}

TEST(ACommandButton, IsNeverTooNarrowForItsWord) {
    const QString name = QStringLiteral("Command2");
    for (QPushButton* made : {MakeCommandButton(name, Command::Down, QStringLiteral("Down")),
                              MakeDeletingButton(name, QStringLiteral("Delete Draw"))}) {
        const std::unique_ptr<QPushButton> button(made);
        QWidget window;
        auto* row = new QHBoxLayout(&window);
        row->addWidget(button.get());
        window.show();
        window.resize(window.minimumSize());
        QApplication::processEvents();
        EXPECT_GE(button->width(), button->sizeHint().width());
        button->setParent(nullptr);
    }
}

TEST(ADeletingButton, StandsApartFromItsNeighbour) {
    QWidget window;
    auto* row = new QHBoxLayout(&window);
    auto* update = MakeButton(QStringLiteral("Command3"), QStringLiteral("Update Draw"));
    auto* deleting = MakeDeletingButton(QStringLiteral("Command2"), QStringLiteral("Delete Draw"));
    row->addWidget(update);
    AddApart(*row, deleting);
    window.show();
    EXPECT_GE(deleting->x() - update->geometry().right(), 24);
}

}  // namespace
