// SPDX-License-Identifier: GPL-3.0-or-later
// The program's main job from end to end, on real draw histories and real files.
#include <QAction>
#include <QCheckBox>
#include <QDateEdit>
#include <QDir>
#include <QLabel>
#include <QScrollBar>
#include <QTemporaryDir>

#include "core/draw_database.h"
#include "core/filters.h"
#include "core/settings.h"
#include "entries/AppendShownLines.h"
#include "platform/system/DiskFolder.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "shell/Quillon.h"
#include "test_folders.h"
#include "tests/support/lines_form.h"

namespace {

constexpr const char* lineCountBar = "HScroll1";

/// The dialog that saves lines.
constexpr const char* drawDate = "DTPicker1";
constexpr const char* playerName = "Text2";
constexpr const char* saveEntriesButton = "Command7";

/// A run of the program on a folder of real files; the clock, the day and the seed stand still.
struct ProgramRun {
    explicit ProgramRun(const QString& path)
        : folder(path),
          program{.state = test.state, .folder = folder, .services = test.services},
          window(program) {
        test.services.saveLines = [this](Form* form, Grid& grid) {
            SaveLines(program, form, grid);
        };
        window.Load();
        window.show();
    }

    TestProgram test;
    DiskFolder folder;
    Program program;
    Quillon window;
};

std::vector<std::string> ShownRecords(const Grid& grid, const std::string& date) {
    std::vector<std::string> records;
    for (int row = 1; !grid.Cell(row, 1).isEmpty(); ++row) {
        std::string record = date;
        for (int column = 1; column <= 8; ++column) {
            record += "," + grid.Cell(row, column).toStdString();
        }
        records.push_back(record + ",UK Lotto,Ann,dbase100.txt");
    }
    return records;
}

std::vector<std::string> RecordsOf(const std::string& bytes) {
    std::vector<std::string> records;
    for (std::size_t start = 0; start < bytes.size();) {
        const std::size_t end = bytes.find("\r\n", start);
        records.push_back(bytes.substr(start, end - start));
        start = end + 2;
    }
    return records;
}

void ChooseLottery(ListBox& list, const QString& name) {
    const auto found = list.findItems(name, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                      list.visualItemRect(found.first()).center());
}

class MainJob : public testing::Test {
  protected:
    void SetUp() override {
        const QDir real(QStringLiteral(REAL_DRAWS));
        if (!real.exists()) GTEST_SKIP() << "no real draw histories beside the project";
        const auto files = real.entryList({QStringLiteral("dbase*.txt")});
        for (const QString& file : files) {
            const QString copy = folder_.filePath(file);
            ASSERT_TRUE(QFile::copy(real.filePath(file), copy));
            // The histories are read-only where they lie.
            QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
        }
    }

    QTemporaryDir folder_;
};

TEST_F(MainJob, LinesOfUkLottoAreMadeFilteredSavedAndFoundAgain) {
    std::vector<std::string> shown;
    {
        ProgramRun run(folder_.path());
        const auto playLuckyDip = [&] { Find<QAction>(run.window, "PlayLuckyDip")->trigger(); };
        InDialog(playLuckyDip, [&](QDialog& form) {
            ChooseLottery(*Find<ListBox>(form, lotteryList), QStringLiteral("UK Lotto"));
            for (const char* box : {oddEvenBox, highLowBox, previousDrawsBox}) Click(form, box);
            Find<QScrollBar>(form, lineCountBar)->setValue(30);
            Click(form, generateButton);
            auto& grid = *Find<Grid>(form, linesGrid);
            EXPECT_FALSE(grid.Cell(30, 1).isEmpty());
            const auto filters = {usualFilters.oddEven, usualFilters.highLow,
                                  usualFilters.previousDraws};
            for (const char* filter : filters) Click(form, filter);
            EXPECT_FALSE(grid.Cell(30, 1).isEmpty()) << "the conditions have seen to that already";
            Click(form, usualFilters.longRuns);
            const auto save = [&] { Click(form, saveButton); };
            InDialog(save, [](QDialog& dialog) {
                // 1 June 2005 is a Wednesday, a draw day.
                EXPECT_EQ(Find<QDateEdit>(dialog, drawDate)->date(), QDate(2005, 6, 1));
                Type(dialog, playerName, QStringLiteral("Ann"));
                Click(dialog, saveEntriesButton);
            });
            shown = ShownRecords(grid, "01-Jun-2005");
            EXPECT_EQ(Find<QLabel>(form, "Said")->text(),
                      QStringLiteral("%1 lines saved for Wed 1 Jun 2005, Ann").arg(shown.size()));
            Click(form, closeButton);
        });
        run.window.close();
    }
    ASSERT_GE(shown.size(), 20U);

    const ProgramRun again(folder_.path());
    EXPECT_EQ(RecordsOf(again.folder.Read("MyLottery.txt")), shown);
    EXPECT_EQ(again.test.state.Settings(setting::PlayerName), "Ann");
    EXPECT_EQ(again.test.state.Settings(setting::DrawDate), "01-Jun-2005");
}

}  // namespace
