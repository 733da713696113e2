// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/About.h"

#include <QLabel>
#include <QPushButton>

#include "core/settings.h"
#include "platform/system/OpenPage.h"
#include "shell/own_addresses.h"
#include "shell/program_version.h"
#include "tests/support/form_test.h"

namespace {

constexpr const char* webAddress = "Label3";
constexpr const char* supportAddress = "Label9";
constexpr const char* generalAddress = "Label10";
constexpr const char* closeButton = "cmdOK";

class AboutForm : public testing::Test {
  protected:
    AboutForm() { MakeDefaultSettings(test_.state, test_.folder); }

    void Open() {
        form_ = std::make_unique<About>(test_.program, nullptr);
        form_->Load();
        form_->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form_.get()));
    }

    std::string Text(const char* label) {
        return Find<QLabel>(*form_, label)->text().toStdString();
    }

    TestProgram test_;
    std::unique_ptr<About> form_;
};

TEST_F(AboutForm, TellsTitleAndVersion) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("About Lottery Quillon World"));
    EXPECT_EQ(Text("lblTitle"), "Lottery Quillon World");
    EXPECT_EQ(Text("lblVersion"), "Version " + ProgramVersion());
}

TEST_F(AboutForm, TellsTheAddressesOfTheMakers) {
    Open();
    EXPECT_EQ(Text("Label11"), "Web:");
    EXPECT_EQ(Text(webAddress), "http://www.lotteryquillon.example");
    EXPECT_EQ(Text("Label14"), "Support:");
    EXPECT_EQ(Text(supportAddress), "support@lotteryquillon.example");
    EXPECT_EQ(Text("Label15"), "General:");
    EXPECT_EQ(Text(generalAddress), "info@lotteryquillon.example");
    for (const char* line : {"Label5", "Label17", "Label20"}) EXPECT_NE(Text(line), "") << line;
}

TEST_F(AboutForm, EachAddressOpensOnAClick) {
    Open();
    Click(*form_, webAddress);
    Click(*form_, supportAddress);
    Click(*form_, generalAddress);
    EXPECT_EQ(test_.pages,
              (std::vector<QString>{QStringLiteral("http://www.lotteryquillon.example"),
                                    QStringLiteral("mailto:support@lotteryquillon.example"),
                                    QStringLiteral("mailto:info@lotteryquillon.example")}));
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(AboutForm, EachAddressOpensByKeys) {
    Open();
    for (const char* address : {webAddress, supportAddress, generalAddress}) {
        auto* link = Find<QLabel>(*form_, address);
        link->setFocus();
        QTest::keyClick(link, Qt::Key_Return);
        QTest::keyClick(link, Qt::Key_Space);
    }
    EXPECT_EQ(test_.pages.size(), 6U);
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(AboutForm, TheWebAddressIsTheOneOfTheSettings) {
    test_.state.Settings(setting::LinkAddresses) = "https://www.other.example/?a&b";
    Open();
    EXPECT_EQ(Text(webAddress), "https://www.other.example/?a&b");
    Click(*form_, webAddress);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("https://www.other.example/?a&b")});
}

TEST_F(AboutForm, TheAddressesAreOfTheReservedKind) {
    for (const char* address : {alternativeSite, supportMail, generalMail}) {
        EXPECT_TRUE(std::string(address).ends_with(".example")) << address;
    }
    EXPECT_NE(std::string(alternativeSite), test_.state.Settings(setting::LinkAddresses));
    EXPECT_TRUE(WebAddress(QString::fromLatin1(alternativeSite)).isValid());
}

TEST_F(AboutForm, ClosesByItsButtonByEnterAndByEsc) {
    Open();
    EXPECT_EQ(Find<QPushButton>(*form_, closeButton)->toolTip(), QStringLiteral(" Close "));
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
    Open();
    QTest::keyClick(form_.get(), Qt::Key_Return);
    EXPECT_FALSE(form_->isVisible());
    Open();
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(AboutForm, TakesNoSkin) {
    test_.state.Settings(setting::SkinBits) = "3";
    test_.state.Settings(setting::BackgroundColour) = "no colour";
    Open();
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(AboutForm, HasNoButtonBesideTheCloseButton) {
    Open();
    EXPECT_EQ(form_->findChildren<QPushButton*>().size(), 1);
}

}  // namespace
