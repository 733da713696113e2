// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the form that imports draws have in common.
#pragma once

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/settings.h"
#include "databases/ImportDraws.h"
#include "databases/RowTable.h"
#include "platform/system/TextConversion.h"
#include "tests/support/form_test.h"
#include "tests/support/results_text.h"
#include "tests/support/sample_lotteries.h"

/// The form over a folder in memory; the user's files lie in a folder on disk.
class ImportDrawsForm : public testing::Test {
  protected:
    ImportDrawsForm() {
        MakeDefaultSettings(test_.state, test_.folder);
        test_.today = Date(std::chrono::year(2026), std::chrono::March, std::chrono::day(1));
    }

    void Open() {
        form_ = std::make_unique<ImportDraws>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    /// A file of the user's, outside the program's folder.
    QString UserFile(const char* name, const std::string& bytes) {
        const QString path = userFolder_.filePath(QString::fromLatin1(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(bytes));
        return path;
    }

    void Choose(const QString& path) {
        test_.dialogs.files.push_back(path);
        Click(*form_, "ChooseFile");
    }

    void ChooseNew(const char* name, const std::string& bytes) { Choose(UserFile(name, bytes)); }

    static void Copy(const QString& html, const QString& text) {
        auto* copied = new QMimeData;
        if (!html.isEmpty()) copied->setHtml(html);
        copied->setText(text);
        QGuiApplication::clipboard()->setMimeData(copied);
    }

    /// Chooses an entry of a box as the user does by keyboard.
    void Pick(const char* box, int index) {
        auto* choice = Find<QComboBox>(*form_, box);
        choice->setFocus();
        while (choice->currentIndex() != index) {
            const int before = choice->currentIndex();
            QTest::keyClick(choice, before < index ? Qt::Key_Down : Qt::Key_Up);
            ASSERT_NE(choice->currentIndex(), before) << box;
        }
    }

    void ShowPage(int page) {
        auto* pages = Find<QTabWidget>(*form_, "Pages");
        QTest::mouseClick(pages->tabBar(), Qt::LeftButton, {},
                          pages->tabBar()->tabRect(page).center());
        ASSERT_EQ(pages->currentIndex(), page);
    }

    /// Clicks the box before a draw.
    void ClickTick(int row) {
        RowTable& table = Table("Draws");
        const QRect cell = table.visualRect(table.model()->index(row, 0));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          QPoint(cell.left() + 10, cell.center().y()));
    }

    RowTable& Table(const char* name) { return *Find<RowTable>(*form_, name); }
    QPushButton& ImportButton() { return *Find<QPushButton>(*form_, "Import"); }
    QString TextOf(const char* label) { return Find<QLabel>(*form_, label)->text(); }

    /// The rows left out, each as "row: reason".
    QStringList LeftOutReasons() {
        QStringList reasons;
        const RowTable& table = Table("LeftOut");
        for (int row = 0; row < table.RowCount(); ++row) {
            reasons += QString::number(table.Row(row).number) % QStringLiteral(": ") %
                       table.Row(row).cells.first();
        }
        return reasons;
    }

    std::vector<std::string> Databases() { return test_.folder.Find("dbase*.txt"); }

    QTemporaryDir userFolder_;
    TestProgram test_;
    std::unique_ptr<ImportDraws> form_;
};
