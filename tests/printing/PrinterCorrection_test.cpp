// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrinterCorrection.h"

#include <QLabel>
#include <QLineEdit>

#include "tests/support/form_test.h"

namespace {

const QString office = QStringLiteral("Office");

class AdjustingAPrinter : public testing::Test {
  protected:
    void Open() {
        form_ = std::make_unique<PrinterCorrection>(test_.program, nullptr);
        form_->Load();
        form_->show();
    }
    QString Text(const char* name) { return Find<QLineEdit>(*form_, name)->text(); }

    TestProgram test_;
    std::unique_ptr<PrinterCorrection> form_;
};

TEST_F(AdjustingAPrinter, ShowsWhatIsKeptForIt) {
    test_.printers.corrections[office] = {-0.5, 1.25, 99.8, 100};
    Open();
    EXPECT_EQ(Find<QLabel>(*form_, "FormTitle")->text(), office);
    EXPECT_EQ(Text("MoveAcross"), QStringLiteral("-0.5"));
    EXPECT_EQ(Text("MoveDown"), QStringLiteral("1.25"));
    EXPECT_EQ(Text("ScaleAcross"), QStringLiteral("99.8"));
    EXPECT_EQ(Text("ScaleDown"), QStringLiteral("100"));
}

TEST_F(AdjustingAPrinter, KeepsWhatWasTypedWithAPointOrAComma) {
    Open();
    Type(*form_, "MoveAcross", QStringLiteral("1,5"));
    Type(*form_, "ScaleDown", QStringLiteral("100.4"));
    QTest::keyClick(form_.get(), Qt::Key_Return);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(test_.printers.corrections[office],
              (PageCorrection{.moveAcross = 1.5, .scaleDown = 100.4}));
}

TEST_F(AdjustingAPrinter, NoCorrectionIsKeptOnlyWithOk) {
    const PageCorrection before{1, 2, 101, 102};
    test_.printers.corrections[office] = before;
    Open();
    Click(*form_, "NoCorrection");
    EXPECT_EQ(Text("MoveDown"), QStringLiteral("0"));
    EXPECT_EQ(Text("ScaleAcross"), QStringLiteral("100"));
    Click(*form_, "CancelButton");
    EXPECT_EQ(test_.printers.corrections[office], before);
    Open();
    Click(*form_, "NoCorrection");
    Click(*form_, "OKButton");
    EXPECT_EQ(test_.printers.corrections[office], PageCorrection());
}

TEST_F(AdjustingAPrinter, RefusesWhatOnlyASlipOfTheKeyCanMean) {
    Open();
    for (const auto& [box, text] : {std::pair("MoveAcross", "51"),
                                    {"MoveDown", "-51"},
                                    {"ScaleAcross", "0"},
                                    {"ScaleDown", "151"}}) {
        const QString before = Text(box);
        Find<QLineEdit>(*form_, box)->setText(QString::fromLatin1(text));
        test_.messages.Expect(
            {.title = QStringLiteral("Error"),
             .text = QStringLiteral("Please move by at most 50 mm and scale from 50 to 150 %.    "),
             .sign = Sign::Exclamation});
        Click(*form_, "OKButton");
        EXPECT_TRUE(form_->isVisible()) << box;
        Find<QLineEdit>(*form_, box)->setText(before);
    }
    EXPECT_TRUE(test_.printers.corrections.empty() ||
                test_.printers.corrections[office] == PageCorrection());
}

}  // namespace
