// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/AddressTip.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QPushButton>
#include <QTextDocument>
#include <QToolTip>

namespace {

const QString words = QStringLiteral(" Go there ");

TEST(AddressTip, ShowsTheAddressBelowItsWords) {
    EXPECT_EQ(TipWithAddress(words, QStringLiteral("http://www.lotto.example")),
              QStringLiteral(" Go there \nhttp://www.lotto.example"));
}

TEST(AddressTip, IsTheAddressWhereThereAreNoWords) {
    EXPECT_EQ(TipWithAddress({}, QStringLiteral(" http://www.lotto.example ")),
              QStringLiteral("http://www.lotto.example"));
}

TEST(AddressTip, IsTheWordsAloneWhereNobodyHasEnteredAnAddress) {
    EXPECT_EQ(TipWithAddress(words, {}), words);
    EXPECT_EQ(TipWithAddress(words, QStringLiteral("  ")), words);
    EXPECT_EQ(TipWithAddress(words, QStringLiteral("http://")), words);
}

TEST(AddressTip, ShowsAnAddressThatIsNoneAsItStands) {
    EXPECT_EQ(TipWithAddress({}, QStringLiteral("file:///etc/passwd")),
              QStringLiteral("file:///etc/passwd"));
}

TEST(AddressTip, LeavesTheToolTipOfTheButtonAsItIs) {
    QPushButton button;
    button.setToolTip(words);
    auto* tip = new AddressTip(&button);
    tip->SetAddress(QStringLiteral("http://www.lotto.example"));
    EXPECT_EQ(button.toolTip(), words);
    EXPECT_EQ(button.accessibleDescription(), QStringLiteral("Go there http://www.lotto.example"));
    button.show();
    QHelpEvent hover(QEvent::ToolTip, {}, button.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&button, &hover);
    EXPECT_EQ(QToolTip::text(), QStringLiteral(" Go there \nhttp://www.lotto.example"));
    QToolTip::hideText();
}

TEST(AddressTip, ShowsMarkupAsItStands) {
    const QString address = QStringLiteral("<b>http://www.bank.example</b><img src=\"file:///x\">");
    const QString tip = TipWithAddress({}, address);
    ASSERT_TRUE(Qt::mightBeRichText(tip)) << "or it would show what escapes the markup";
    QTextDocument shown;
    shown.setHtml(tip);
    EXPECT_EQ(shown.toPlainText(), address);
    EXPECT_FALSE(Qt::mightBeRichText(TipWithAddress(words, address)))
        << "only what stands in the first line makes a text rich";
}

}  // namespace
