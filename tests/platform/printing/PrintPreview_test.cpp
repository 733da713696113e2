// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/PrintPreview.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include "platform/forms/PageView.h"
#include "platform/system/FileDialogs.h"
#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"
#include "tests/support/pdf_reading.h"

namespace {

PrintJob ThreeSheets() {
    return {.title = "Draws", .options = {}, .compose = [](const SheetRoom& room) {
                Typesetter setter(room);
                setter.MoveTo(10, 290);
                for (const char* text : {"one", "two"}) {
                    setter.Print(text);
                    setter.EndLine();
                }
                setter.MoveTo(10, 295);
                setter.Print("three");
                return std::move(setter).Take();
            }};
}

struct PrintPreviewTest : testing::Test {
    void Open(const PrintJob& job = ThreeSheets()) {
        PreviewExits exits = {.print =
                                  [this](QWidget*, const PrintTask& task) {
                                      printed = task.title;
                                      return printer;
                                  },
                              .askForPdf =
                                  [this](QWidget*, const QString& name) {
                                      proposed = name;
                                      return path;
                                  },
                              .write = WriteUserFile};
        form = std::make_unique<PrintPreview>(test.program, TaskOf(job), exits, nullptr);
        form->Load();
        form->show();
    }

    QString Text(const char* label) { return Find<QLabel>(*form, label)->text(); }
    PageView& View() { return *Find<PageView>(*form, "PageView"); }

    TestProgram test;
    QTemporaryDir folder;
    QString printer;
    QString path;
    QString printed;
    QString proposed;
    std::unique_ptr<PrintPreview> form;
};

TEST_F(PrintPreviewTest, OpensWithTheFirstSheetWhole) {
    Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Preview: Draws"));
    EXPECT_EQ(Text("Place"), QStringLiteral("Sheet 1 of 3"));
    EXPECT_FALSE(Find<QPushButton>(*form, "PreviousSheet")->isEnabled());
    EXPECT_TRUE(Find<QPushButton>(*form, "NextSheet")->isEnabled());
    EXPECT_EQ(Find<ComboList>(*form, "Zoom")->currentText(), QStringLiteral("Whole page"));
    EXPECT_LE(View().widget()->height(), View().height());
}

TEST_F(PrintPreviewTest, TurnsByButtonsAndKeys) {
    Open();
    Click(*form, "NextSheet");
    EXPECT_EQ(Text("Place"), QStringLiteral("Sheet 2 of 3"));
    QTest::keyClick(form.get(), Qt::Key_PageDown);
    EXPECT_EQ(Text("Place"), QStringLiteral("Sheet 3 of 3"));
    QTest::keyClick(form.get(), Qt::Key_PageDown);
    EXPECT_EQ(Text("Place"), QStringLiteral("Sheet 3 of 3"));
    EXPECT_FALSE(Find<QPushButton>(*form, "NextSheet")->isEnabled());
    QTest::keyClick(form.get(), Qt::Key_PageUp);
    EXPECT_EQ(Text("Place"), QStringLiteral("Sheet 2 of 3"));
    QTest::keyClick(form.get(), Qt::Key_Home);
    EXPECT_EQ(Text("Place"), QStringLiteral("Sheet 1 of 3"));
    QTest::keyClick(form.get(), Qt::Key_End);
    Click(*form, "PreviousSheet");
    EXPECT_EQ(Text("Place"), QStringLiteral("Sheet 2 of 3"));
}

TEST_F(PrintPreviewTest, TheTurningKeysWorkWhereTheSheetHasTheFocus) {
    Open();
    QTest::keyClick(&View(), Qt::Key_PageDown);
    EXPECT_EQ(Text("Place"), QStringLiteral("Sheet 2 of 3"));
    QTest::keyClick(&View(), Qt::Key_End);
    EXPECT_EQ(Text("Place"), QStringLiteral("Sheet 3 of 3"));
}

TEST_F(PrintPreviewTest, ZoomsByListAndKeys) {
    Open();
    auto* zoom = Find<ComboList>(*form, "Zoom");
    zoom->SetIndex(zoom->findText(QStringLiteral("100 %")));
    EXPECT_EQ(Text("ZoomShown"), QStringLiteral("100 %"));
    const int width = View().widget()->width();
    EXPECT_NEAR(width, 210 / 25.4 * View().logicalDpiX() + 32, 2);
    QTest::keyClick(form.get(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Text("ZoomShown"), QStringLiteral("125 %"));
    EXPECT_EQ(zoom->Index(), -1) << "no entry of the list";
    EXPECT_GT(View().widget()->width(), width);
    QTest::keyClick(form.get(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Text("ZoomShown"), QStringLiteral("100 %"));
    EXPECT_EQ(zoom->currentText(), QStringLiteral("100 %"));
    zoom->SetIndex(1);
    EXPECT_EQ(zoom->currentText(), QStringLiteral("Page width"));
    EXPECT_NEAR(View().widget()->width(), View().viewport()->width(), 24);
}

TEST_F(PrintPreviewTest, ShowsTheSheetInBlackOnWhite) {
    Open();
    const QImage picture = View().widget()->grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.width() / 2, picture.height() / 2), QColor(Qt::white));
    bool dark = false;
    for (int x = 16; x < picture.width() / 2; ++x) {
        for (int y = picture.height() * 9 / 10; y < picture.height() - 16; ++y) {
            dark = dark || picture.pixelColor(x, y).lightness() < 100;
        }
    }
    EXPECT_TRUE(dark) << "the text at the foot of the sheet";
}

TEST_F(PrintPreviewTest, PrintsByTheSystemsDialogAndSaysWhere) {
    printer = QStringLiteral("Office");
    Open();
    Click(*form, "Print");
    EXPECT_EQ(printed, QStringLiteral("Draws"));
    EXPECT_EQ(Text("Said"), QStringLiteral("Printed on Office"));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(PrintPreviewTest, ADialogThatWasCancelledPrintsNothing) {
    Open();
    Click(*form, "Print");
    EXPECT_EQ(Text("Said"), QString());
}

TEST_F(PrintPreviewTest, SavesAllSheetsAsAPdf) {
    path = folder.filePath(QStringLiteral("draws.pdf"));
    Open();
    Click(*form, "SaveAsPdf");
    EXPECT_EQ(proposed, QStringLiteral("Draws"));
    EXPECT_EQ(Text("Said"), QStringLiteral("Saved as draws.pdf"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto sheets = ReadPdfWords(file.readAll());
    ASSERT_EQ(sheets.size(), 3U);
    EXPECT_NEAR(sheets[0].Word(QStringLiteral("one")).left(), 10, 0.1);
    EXPECT_NEAR(sheets[2].Word(QStringLiteral("three")).top(), 0, 0.1);
}

TEST_F(PrintPreviewTest, APdfThatCannotBeWrittenIsAMessageAndThePreviewStays) {
    path = folder.filePath(QStringLiteral("none/draws.pdf"));
    Open();
    test.messages.Expect({.title = QStringLiteral("Save as PDF"),
                          .text = path % QStringLiteral(" could not be written: No such file or "
                                                        "directory"),
                          .sign = Sign::Exclamation});
    Click(*form, "SaveAsPdf");
    EXPECT_EQ(Text("Said"), QString());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(PrintPreviewTest, NoFileChosenWritesNothing) {
    Open();
    Click(*form, "SaveAsPdf");
    EXPECT_EQ(Text("Said"), QString());
}

TEST_F(PrintPreviewTest, ClosesByItsButtonAndByEsc) {
    Open();
    Click(*form, "Close");
    EXPECT_FALSE(form->isVisible());
    Open();
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(test.pages.empty());
    Open();
    QTest::keyClick(form.get(), Qt::Key_F1);
    EXPECT_EQ(test.pages, std::vector<QString>{QStringLiteral("help.html#PrintPreview")});
}

TEST(PdfFileDialog, AddsTheSuffixWhereNoneIsTyped) {
    const QTemporaryDir folder;
    QString path;
    InDialog([&] { path = AskForPdfFile(nullptr, QStringLiteral("A/B: draws")); },
             [&](QDialog& dialog) {
                 auto* name = Find<QLineEdit>(dialog, "fileNameEdit");
                 EXPECT_EQ(name->text(), QStringLiteral("A-B- draws.pdf"));
                 name->setText(folder.filePath(QStringLiteral("mine")));
                 QTest::keyClick(name, Qt::Key_Return);
             });
    EXPECT_EQ(path, folder.filePath(QStringLiteral("mine.pdf")));
}

}  // namespace
