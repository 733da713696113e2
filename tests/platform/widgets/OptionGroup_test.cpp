// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/OptionGroup.h"

#include <QRadioButton>
#include <QVBoxLayout>

#include "tests/support/form_test.h"

namespace {

struct Options : testing::Test {
    Options() {
        auto* column = new QVBoxLayout(&window);
        for (const char* name : {"Hot", "Cold", "Hot & cold"}) {
            column->addWidget(group.Add(QString::fromLatin1(name), QString::fromLatin1(name)));
        }
        QObject::connect(&group, &OptionGroup::clicked, &window,
                         [this] { choices.push_back(group.Index()); });
        window.show();
    }

    QWidget window;
    OptionGroup group{&window};
    std::vector<int> choices;  // what is chosen at each click
};

TEST_F(Options, BeginWithTheFirstChosenAndNoClick) {
    EXPECT_EQ(group.Index(), 0);
    EXPECT_TRUE(choices.empty());
}

TEST_F(Options, TellOfAClickOnceForAnotherOption) {
    Click(window, "Cold");
    EXPECT_EQ(choices, std::vector<int>{1});
}

TEST_F(Options, TellOfAClickOnceForTheOptionChosenAlready) {
    Click(window, "Hot");
    EXPECT_EQ(choices, std::vector<int>{0});
    Click(window, "Cold");
    Click(window, "Cold");
    EXPECT_EQ(choices, (std::vector<int>{0, 1, 1}));
}

TEST_F(Options, TellOfAChoiceByTheKeyboardOnce) {
    window.activateWindow();
    QApplication::processEvents();
    group.Option(0).setFocus();
    QTest::keyClick(&group.Option(0), Qt::Key_Down);
    EXPECT_EQ(choices, std::vector<int>{1});
    QTest::keyClick(&group.Option(1), Qt::Key_Space);
    EXPECT_EQ(choices, (std::vector<int>{1, 1}));
}

TEST_F(Options, TellOfAChoiceInCodeOnceAndOfNoneThatChangesNothing) {
    group.Option(1).setChecked(true);
    group.Option(1).setChecked(true);
    EXPECT_EQ(choices, std::vector<int>{1});
}

TEST_F(Options, ShowAnAmpersand) {
    EXPECT_EQ(group.Option(2).text(), QStringLiteral("Hot && cold"));
}

}  // namespace
