// SPDX-License-Identifier: GPL-3.0-or-later
// A newcomer's way: a results file dropped on the main window, two clicks, a lucky dip.
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "shell/form_catalogue.h"
#include "tests/shell/main_window.h"
#include "tests/support/dropping.h"
#include "tests/support/lines_form.h"
#include "tests/support/results_text.h"
#include "tests/support/sample_lotteries.h"

namespace {

class ImportJourney : public MainWindow {
  protected:
    ImportJourney() {
        program.today = Date(std::chrono::year(2026), std::chrono::March, std::chrono::day(1));
        program.tick = 0.001;
    }

    QString ResultsFile() {
        const QString path = userFolder.filePath(QStringLiteral("village_lotto.csv"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(ResultsCsv(PublishedDraws(60))));
        return path;
    }

    QTemporaryDir userFolder;
};

TEST_F(ImportJourney, AFileDroppedBecomesALotteryToPlayInTwoClicks) {
    Start();
    InDialog([this] { Drop(*window, {QUrl::fromLocalFile(ResultsFile())}); },
             [](QDialog& form) {
                 EXPECT_EQ(form.objectName(), QStringLiteral("ImportDraws"));
                 EXPECT_EQ(Find<QPushButton>(form, "Import")->text(),
                           QStringLiteral("Import 60 draws"));
                 Click(form, "Import");
                 Click(form, "Close");
             });
    EXPECT_EQ(Find<QListWidget>(*window, databasesList)->item(0)->text(),
              QStringLiteral("Village lotto"))
        << "the panel of the main window knows the lottery";
    InDialog([this] { Choose("PlayLuckyDip"); },
             [this](QDialog& form) {
                 EXPECT_EQ(program.state.LotteryName, "Village lotto");
                 EXPECT_EQ(program.state.MaxNum, 49);
                 EXPECT_FALSE(Find<Grid>(form, linesGrid)->Cell(1, 1).isEmpty());
             });
}

TEST_F(ImportJourney, AFileDroppedOnTheNotePadIsNoNote) {
    Start();
    Choose("FileNotes");
    auto* pad = Find<QPlainTextEdit>(*window, notePad);
    ASSERT_TRUE(pad->viewport()->acceptDrops());
    for (QWidget* box : {pad->viewport(), Find<QWidget>(*window, newItemBox)}) {
        QString opened;
        InDialog([&] { Drop(*box, {QUrl::fromLocalFile(ResultsFile())}); },
                 [&](QDialog& form) {
                     opened = Find<QPushButton>(form, "Import")->text();
                     Click(form, "Close");
                 });
        EXPECT_EQ(opened, QStringLiteral("Import 60 draws"));
    }
    EXPECT_EQ(pad->toPlainText(), QString());
}

TEST_F(ImportJourney, TheMenuOpensTheFormWithoutASource) {
    Start();
    InDialog([this] { Choose("DatabaseImport"); },
             [](QDialog& form) {
                 EXPECT_EQ(form.objectName(), QStringLiteral("ImportDraws"));
                 EXPECT_FALSE(Find<QPushButton>(form, "Import")->isEnabled());
             });
}

TEST_F(ImportJourney, NothingButOneFileOfThisComputerIsTaken) {
    Start();
    Drop(*window, {});
    Drop(*window, {QUrl(QStringLiteral("https://www.lottery.example/results.csv"))});
    Drop(*window, {QUrl::fromLocalFile(ResultsFile()), QUrl::fromLocalFile(ResultsFile())});
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
