// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/FindBox.h"

#include <QVBoxLayout>

#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"

namespace {

class AFindBox : public testing::Test {
  protected:
    AFindBox() {
        list_.addItems({QStringLiteral("UK Lotto"), QStringLiteral("UK Thunderball"),
                        QStringLiteral("US Powerball")});
        QObject::connect(&list_, &ListBox::clicked, &list_, [this] { ++choices_; });
        auto* layout = new QVBoxLayout(&form_);
        layout->addWidget(&box_);
        layout->addWidget(&list_);
        form_.show();
        box_.setFocus();
    }

    std::vector<int> Shown() const {
        std::vector<int> rows;
        for (int row = 0; row < list_.count(); ++row) {
            if (!list_.isRowHidden(row)) rows.push_back(row);
        }
        return rows;
    }

    QWidget form_;
    ListBox list_;
    FindBox box_{list_};
    int choices_ = 0;
};

TEST_F(AFindBox, ShowsTheEntriesInWhichTheTextStandsAnywhere) {
    QTest::keyClicks(&box_, QStringLiteral("BALL"));
    EXPECT_EQ(Shown(), (std::vector<int>{1, 2}));
    QTest::keyClicks(&box_, QStringLiteral("x"));
    EXPECT_EQ(Shown(), std::vector<int>());
    box_.setText(QStringLiteral(" uk "));
    EXPECT_EQ(Shown(), (std::vector<int>{0, 1}));
    box_.clear();
    EXPECT_EQ(Shown(), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(choices_, 0);
}

TEST_F(AFindBox, LeadsIntoTheListByDownAndByEnter) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter}) {
        list_.SetIndex(-1);
        box_.setFocus();
        box_.setText(QStringLiteral("ball"));
        QTest::keyClick(&box_, key);
        EXPECT_EQ(list_.Index(), 1);
        EXPECT_EQ(form_.focusWidget(), &list_);
    }
    EXPECT_EQ(choices_, 3);
    QTest::keyClick(&list_, Qt::Key_Down);
    EXPECT_EQ(list_.Index(), 2);
}

TEST_F(AFindBox, ThatFindsNothingStaysWhereItIs) {
    box_.setText(QStringLiteral("x"));
    QTest::keyClick(&box_, Qt::Key_Down);
    EXPECT_EQ(list_.Index(), -1);
    EXPECT_EQ(form_.focusWidget(), &box_);
}

TEST_F(AFindBox, KeepsWhatIsChosen) {
    list_.SetIndex(0);
    QTest::keyClicks(&box_, QStringLiteral("power"));
    EXPECT_EQ(list_.Index(), 0);
}

TEST_F(AFindBox, IsEmptiedByEsc) {
    QTest::keyClicks(&box_, QStringLiteral("uk"));
    QTest::keyClick(&box_, Qt::Key_Escape);
    EXPECT_EQ(box_.text(), QString());
    EXPECT_EQ(Shown().size(), 3U);
}

}  // namespace
