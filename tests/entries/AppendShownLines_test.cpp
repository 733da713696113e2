// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/AppendShownLines.h"

#include <QAction>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "core/settings.h"
#include "entries/SaveEntries.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/LinesGrid.h"
#include "platform/system/LocaleRegion.h"
#include "platform/widgets/Grid.h"
#include "tests/support/form_test.h"

namespace {

constexpr auto saveButton = "Command7";
constexpr auto cancelButton = "Command1";
constexpr auto linesBox = "Text1";
constexpr auto nameBox = "Text2";
constexpr auto dateBox = "DTPicker1";

/// A form that shows lines.
class LinesForm final : public Form {
  public:
    explicit LinesForm(Program& program)
        : Form(program, QStringLiteral("LinesForm"), QString(), nullptr), grid(new Grid(32, 9)) {
        QVBoxLayout* layout = MakeFormLayout(this);
        layout->addWidget(grid);
        layout->addLayout(BuildActionRow({}, {}));
    }

    Grid* grid;
};

class SavingLines : public testing::Test {
  protected:
    SavingLines() {
        test_.state.LotteryName = "UK Lotto";
        test_.state.DbaseFile = "dbase100.txt";
    }

    void ShowSomeLines(int count) {
        for (int row = 1; row <= count; ++row) {
            for (int column = 1; column <= 6; ++column) {
                test_.state.Lines(row, column) = static_cast<std::int16_t>(row + column);
            }
        }
        test_.state.Lines(count + 1, 1) = 0;
        ShowLines(test_.state, grid_);
    }

    void Save(const std::function<void(QDialog&)>& drive) {
        InDialog([this] { SaveLines(test_.program, &form_, grid_); }, drive);
    }

    std::string Saved() { return test_.folder.Read("MyLottery.txt"); }

    QString Said() { return Find<QLabel>(form_, "Said")->text(); }

    TestProgram test_;
    LinesForm form_{test_.program};
    Grid& grid_ = *form_.grid;
};

TEST_F(SavingLines, AnyCommaInTheNameIsWarnedOfAlsoInTheNameOfLastTime) {
    test_.state.Settings(setting::PlayerName) = "Smith, Ann";
    ShowSomeLines(1);
    Save([](QDialog& dialog) {
        auto& name = *Find<QLineEdit>(dialog, nameBox);
        const auto* mark = name.findChild<QAction*>(QStringLiteral("CommaWarning"));
        ASSERT_NE(mark, nullptr);
        EXPECT_TRUE(mark->isVisible());
        EXPECT_TRUE(name.toolTip().startsWith(QStringLiteral("A comma divides the fields")));
        name.clear();
        EXPECT_FALSE(mark->isVisible());
        EXPECT_EQ(name.toolTip(), QString());
        Click(dialog, cancelButton);
    });
}

TEST_F(SavingLines, DoesNothingWithAnEmptyGrid) {
    SaveLines(test_.program, &form_, grid_);
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
    EXPECT_EQ(test_.messages.Shown(), 0);
}

TEST_F(SavingLines, LeavesTheFirstNumberCurrent) {
    for (const int lines : {0, 3}) {
        ShowSomeLines(lines);
        grid_.SetCurrentCell(2, 5);
        if (lines == 0) {
            SaveLines(test_.program, &form_, grid_);
        } else {
            Save([](QDialog& dialog) { Click(dialog, saveButton); });
        }
        EXPECT_EQ(grid_.CurrentRow(), 1) << lines;
        EXPECT_EQ(grid_.currentIndex().column(), 1) << lines;
    }
}

TEST_F(SavingLines, BearsItsWords) {
    ShowSomeLines(1);
    Save([](QDialog& dialog) {
        const std::vector<std::pair<const char*, const char*>> labels = {
            {"Label1", "Lines:"},
            {"Label3", "Select the number of lottery entries to save."},
            {"LabelPName", "Name:"},
            {"Label2",
             "You can associate these lottery entries with a player or syndicate by entering a "
             "name."},
            {"Label5", "Date:"},
            {"Label6",
             "It is essential that you set the lottery draw date. It is used when checking "
             "entries."}};
        for (const auto& [name, text] : labels) {
            EXPECT_EQ(Find<QLabel>(dialog, name)->text(), QString::fromLatin1(text)) << name;
        }
        EXPECT_EQ(Find<QPushButton>(dialog, saveButton)->toolTip(),
                  QStringLiteral(" Save lottery entries "));
        EXPECT_EQ(Find<QPushButton>(dialog, cancelButton)->toolTip(), QStringLiteral(" Cancel "));
        EXPECT_EQ(Find<QDateEdit>(dialog, dateBox)->displayFormat(),
                  QStringLiteral("ddd d MMM yyyy"));
    });
}

TEST_F(SavingLines, AppendsEveryShownLineAsARecord) {
    test_.folder.Write("MyLottery.txt", "old\r\n");
    ShowSomeLines(2);
    Save([](QDialog& dialog) {
        EXPECT_EQ(Find<QLineEdit>(dialog, linesBox)->text(), QStringLiteral("2"));
        Type(dialog, nameBox, QStringLiteral("Ann"));
        Click(dialog, saveButton);
    });
    EXPECT_EQ(Saved(),
              "old\r\n"
              "01-Jun-2005,2,3,4,5,6,7,,,UK Lotto,Ann,dbase100.txt\r\n"
              "01-Jun-2005,3,4,5,6,7,8,,,UK Lotto,Ann,dbase100.txt\r\n");
}

TEST_F(SavingLines, SavesTheFirstLinesWhereFewerAreAskedFor) {
    ShowSomeLines(5);
    Save([](QDialog& dialog) {
        Type(dialog, linesBox, QStringLiteral("2"));
        Click(dialog, saveButton);
    });
    EXPECT_EQ(Saved(),
              "01-Jun-2005,2,3,4,5,6,7,,,UK Lotto,,dbase100.txt\r\n"
              "01-Jun-2005,3,4,5,6,7,8,,,UK Lotto,,dbase100.txt\r\n");
}

TEST_F(SavingLines, SavesAllWhereMoreAreAskedFor) {
    ShowSomeLines(3);
    Save([](QDialog& dialog) {
        Type(dialog, linesBox, QStringLiteral("999"));
        Click(dialog, saveButton);
    });
    const std::string saved = Saved();
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 3);
}

TEST_F(SavingLines, SavesAsManyAsTheNumberAtTheHeadOfTheBoxSays) {
    const std::vector<std::pair<const char*, int>> records = {
        {"2 of them", 2}, {" 1.8", 2}, {"two", 0}, {"-1", 1}};
    for (const auto& [text, count] : records) {
        test_.folder.Write("MyLottery.txt", "");
        ShowSomeLines(5);
        Save([box = text](QDialog& dialog) {
            Type(dialog, linesBox, QString::fromLatin1(box));
            Click(dialog, saveButton);
        });
        const std::string saved = Saved();
        EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), count) << text;
    }
}

TEST_F(SavingLines, SaysHowManyWereSavedForWhichDrawAndWhom) {
    ShowSomeLines(5);
    Save([](QDialog& dialog) {
        Type(dialog, linesBox, QStringLiteral("3"));
        Type(dialog, nameBox, QStringLiteral(" Ann 100%1 "));
        Find<QDateEdit>(dialog, dateBox)->setDate(QDate(2005, 6, 18));
        Click(dialog, saveButton);
    });
    EXPECT_EQ(Said(), QStringLiteral("3 lines saved for Sat 18 Jun 2005, Ann 100%1"));
}

TEST_F(SavingLines, SaysNothingOfAPlayerWithoutAName) {
    ShowSomeLines(1);
    Save([](QDialog& dialog) { Click(dialog, saveButton); });
    EXPECT_EQ(Said(), QStringLiteral("1 line saved for Wed 1 Jun 2005"));
}

TEST_F(SavingLines, SaysNothingWhereNothingWasSaved) {
    SaveLines(test_.program, &form_, grid_);
    EXPECT_EQ(Said(), QString());
    ShowSomeLines(1);
    Save([](QDialog& dialog) { Click(dialog, cancelButton); });
    EXPECT_EQ(Said(), QString());
}

TEST_F(SavingLines, SavesWhatTheGridShowsNotTheLinesBehindIt) {
    ShowSomeLines(1);
    test_.state.Lines(1, 1) = 49;
    grid_.SetCell(1, 8, QStringLiteral("9"));
    Save([](QDialog& dialog) { Click(dialog, saveButton); });
    EXPECT_EQ(Saved(), "01-Jun-2005,2,3,4,5,6,7,,9,UK Lotto,,dbase100.txt\r\n");
}

TEST_F(SavingLines, KeepsTheNameTrimmedAndTheDateInTheSettings) {
    ShowSomeLines(1);
    Save([](QDialog& dialog) {
        Type(dialog, nameBox, QStringLiteral(" Ann "));
        Find<QDateEdit>(dialog, dateBox)->setDate(QDate(2005, 6, 18));
        Click(dialog, saveButton);
    });
    EXPECT_EQ(test_.state.Settings(setting::PlayerName), "Ann");
    EXPECT_EQ(test_.state.Settings(setting::DrawDate), "18-Jun-2005");
    EXPECT_FALSE(test_.folder.Exists("quillon.ini"));
    EXPECT_EQ(Saved(), "18-Jun-2005,2,3,4,5,6,7,,,UK Lotto, Ann ,dbase100.txt\r\n");
}

TEST_F(SavingLines, LetsMessagesRunOnceTheDialogIsHidden) {
    SaveEntries dialog(test_.program, nullptr);
    dialog.Load();
    dialog.show();
    bool hidden = false;
    QTimer::singleShot(0, &dialog, [&] { hidden = !dialog.isVisible(); });
    Find<QPushButton>(dialog, saveButton)->click();
    EXPECT_TRUE(hidden);
}

TEST_F(SavingLines, OffersTheLastNameAndTheNextDrawDate) {
    test_.state.Settings(setting::PlayerName) = "Ann";
    test_.today = Date(std::chrono::year(2005), std::chrono::June, std::chrono::day(2));
    ShowSomeLines(1);
    Save([](QDialog& dialog) {
        EXPECT_EQ(Find<QLineEdit>(dialog, nameBox)->text(), QStringLiteral("Ann"));
        EXPECT_EQ(Find<QDateEdit>(dialog, dateBox)->date(), QDate(2005, 6, 4));
    });
}

TEST_F(SavingLines, CancelWritesNothingAndKeepsTheSettings) {
    test_.state.Settings(setting::PlayerName) = "Ann";
    test_.state.Settings(setting::DrawDate) = "01-Jan-2005";
    ShowSomeLines(3);
    Save([](QDialog& dialog) {
        Type(dialog, nameBox, QStringLiteral("Bob"));
        Click(dialog, cancelButton);
        EXPECT_EQ(Find<QLineEdit>(dialog, linesBox)->text(), QStringLiteral("0"));
    });
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
    EXPECT_EQ(test_.state.Settings(setting::PlayerName), "Ann");
    EXPECT_EQ(test_.state.Settings(setting::DrawDate), "01-Jan-2005");
}

TEST_F(SavingLines, EscIsCancel) {
    ShowSomeLines(3);
    Save([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
}

TEST_F(SavingLines, EnterSaves) {
    ShowSomeLines(1);
    Save([](QDialog& dialog) {
        QTest::keyClick(Find<QLineEdit>(dialog, linesBox), Qt::Key_Return);
    });
    EXPECT_TRUE(test_.folder.Exists("MyLottery.txt"));
}

TEST_F(SavingLines, AnEmptyLinesBoxSavesNothing) {
    ShowSomeLines(1);
    Save([](QDialog& dialog) {
        Find<QLineEdit>(dialog, linesBox)->clear();
        Click(dialog, saveButton);
    });
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
}

TEST_F(SavingLines, ACommaInTheNameIsWrittenAsItStands) {
    ShowSomeLines(1);
    Save([](QDialog& dialog) {
        Type(dialog, nameBox, QStringLiteral("Smith, Ann"));
        Click(dialog, saveButton);
    });
    EXPECT_EQ(Saved(), "01-Jun-2005,2,3,4,5,6,7,,,UK Lotto,Smith, Ann,dbase100.txt\r\n");
}

TEST_F(SavingLines, AFullDiskEndsTheRunAndLeavesTheFileAsItWas) {
    test_.folder.Write("MyLottery.txt", "old\r\n");
    const auto before = test_.folder.Snapshot();
    test_.folder.FailAfterBytes(3);
    ShowSomeLines(2);
    EXPECT_THROW(Save([](QDialog& dialog) { Click(dialog, saveButton); }), std::runtime_error);
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

}  // namespace
