// SPDX-License-Identifier: GPL-3.0-or-later
// A machine without a printer is the rule here: what the system's printers do is not for tests.
#include "platform/system/DesktopPrinters.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "platform/system/SystemPrinter.h"

namespace {

PrintJob Job(bool empty) {
    return {.title = "Test", .options = {}, .compose = [empty](const SheetRoom&) {
                Document document;
                if (!empty) document.sheets.emplace_back();
                return document;
            }};
}

struct DesktopPrintersTest : testing::Test {
    std::vector<QString> previewed;
    DesktopPrinters printers{
        [this](QWidget*, const PrintTask& task) { previewed.push_back(task.title); }};
};

TEST_F(DesktopPrintersTest, OurOwnIsTheLastOfAll) {
    const QStringList names = printers.Names();
    ASSERT_FALSE(names.isEmpty());
    EXPECT_EQ(names.last(), QStringLiteral("Preview and PDF"));
    EXPECT_EQ(names.mid(0, names.size() - 1), SystemPrinterNames());
}

TEST_F(DesktopPrintersTest, TheSystemsDefaultIsCurrentAtFirstAndOursWhereThereIsNone) {
    const QString usual = DefaultSystemPrinter();
    EXPECT_EQ(printers.Current(), usual.isEmpty() ? QStringLiteral("Preview and PDF") : usual);
}

TEST_F(DesktopPrintersTest, OursShowsADocumentInAWindow) {
    printers.Choose(DesktopPrinters::OwnName());
    printers.Print(nullptr, Job(false));
    EXPECT_EQ(previewed, std::vector<QString>{QStringLiteral("Test")});
}

TEST_F(DesktopPrintersTest, ADocumentWithoutSheetsIsNotShown) {
    printers.Choose(DesktopPrinters::OwnName());
    printers.Print(nullptr, Job(true));
    EXPECT_TRUE(previewed.empty());
}

TEST_F(DesktopPrintersTest, AChoiceStaysUntilThePrinterIsGone) {
    printers.Choose(DesktopPrinters::OwnName());
    printers.Names();
    EXPECT_EQ(printers.Current(), DesktopPrinters::OwnName());
    printers.Choose(QStringLiteral("Gone with the wind"));
    EXPECT_EQ(printers.Current(), QStringLiteral("Gone with the wind"));
    printers.Names();
    EXPECT_NE(printers.Current(), QStringLiteral("Gone with the wind"));
}

TEST_F(DesktopPrintersTest, APrinterThatIsGoneIsReportedWithItsName) {
    printers.Choose(QStringLiteral("Gone with the wind"));
    try {
        printers.Print(nullptr, Job(false));
        FAIL() << "nothing was said";
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(),
                     "The printer \"Gone with the wind\" does not print: the system has no such "
                     "printer any more.");
    }
}

TEST_F(DesktopPrintersTest, ACorrectionIsKeptForEachPrinter) {
    const PageCorrection correction = {
        .moveAcross = 1.25, .moveDown = -0.5, .scaleAcross = 100.5, .scaleDown = 99};
    const QString name = QStringLiteral("Office/2 100% [b\u00fcro]");
    printers.SetCorrection(name, correction);
    DesktopPrinters later;
    EXPECT_EQ(later.CorrectionOf(name), correction);
    EXPECT_EQ(later.CorrectionOf(QStringLiteral("Office")), PageCorrection());
    later.SetCorrection(name, {});
    EXPECT_EQ(printers.CorrectionOf(name), PageCorrection());
}

TEST(QualityOption, TheTwoInTheMiddleAreTheUsualOne) {
    EXPECT_EQ(QualityOption(PrintQuality::Draft), QStringLiteral("3"));
    EXPECT_EQ(QualityOption(PrintQuality::Low), QStringLiteral("4"));
    EXPECT_EQ(QualityOption(PrintQuality::Medium), QStringLiteral("4"));
    EXPECT_EQ(QualityOption(PrintQuality::High), QStringLiteral("5"));
}

}  // namespace
