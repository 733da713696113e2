// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/AddressTip.h"

#include <gtest/gtest.h>

#include <QTextDocument>

namespace {

const QString words = QStringLiteral(" Go there ");

TEST(AddressTip, ShowsTheAddressBelowItsWords) {
    EXPECT_EQ(AddressTip(words, QStringLiteral("http://www.lotto.example")),
              QStringLiteral(" Go there \nhttp://www.lotto.example"));
}

TEST(AddressTip, IsTheAddressWhereThereAreNoWords) {
    EXPECT_EQ(AddressTip({}, QStringLiteral(" http://www.lotto.example ")),
              QStringLiteral("http://www.lotto.example"));
}

TEST(AddressTip, IsTheWordsAloneWhereNobodyHasEnteredAnAddress) {
    EXPECT_EQ(AddressTip(words, {}), words);
    EXPECT_EQ(AddressTip(words, QStringLiteral("  ")), words);
    EXPECT_EQ(AddressTip(words, QStringLiteral("http://")), words);
}

TEST(AddressTip, ShowsAnAddressThatIsNoneAsItStands) {
    EXPECT_EQ(AddressTip({}, QStringLiteral("file:///etc/passwd")),
              QStringLiteral("file:///etc/passwd"));
}

TEST(AddressTip, ShowsMarkupAsItStands) {
    const QString address = QStringLiteral("<b>http://www.bank.example</b><img src=\"file:///x\">");
    const QString tip = AddressTip({}, address);
    ASSERT_TRUE(Qt::mightBeRichText(tip)) << "or it would show what escapes the markup";
    QTextDocument shown;
    shown.setHtml(tip);
    EXPECT_EQ(shown.toPlainText(), address);
    EXPECT_FALSE(Qt::mightBeRichText(AddressTip(words, address)))
        << "only what stands in the first line makes a text rich";
}

}  // namespace
