// SPDX-License-Identifier: GPL-3.0-or-later
// From the menu to the saved entries by way of a wheel: numbers are typed, wheeled, filtered and
// saved, for a lottery with an extra ball and for one without.
#include <QAction>

#include "core/settings.h"
#include "entries/AppendShownLines.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "shell/Quillon.h"
#include "tests/support/lines_form.h"
#include "tests/support/sample_lotteries.h"

namespace {

/// The dialog that saves lines.
constexpr const char* playerName = "Text2";
constexpr const char* saveEntriesButton = "Command7";

class WheelJourney : public testing::Test {
  protected:
    void SetUp() override {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        test_.services.saveLines = [this](Form* form, Grid& grid) {
            SaveLines(test_.program, form, grid);
        };
        window_ = std::make_unique<Quillon>(test_.program);
        window_->Load();
        window_->show();
    }

    void InForm(const char* entry, const std::function<void(QDialog&)>& drive) {
        InDialog([&] { Find<QAction>(*window_, entry)->trigger(); }, drive);
    }

    static void TypeNumbers(QDialog& form, int count) {
        for (int index = 0; index < count; ++index) {
            Type(form, ("Text1(" + std::to_string(index) + ")").c_str(),
                 QString::number(index + 1));
        }
    }

    static void SaveAs(QDialog& form, const QString& name) {
        InDialog([&] { Click(form, saveButton); },
                 [&](QDialog& dialog) {
                     Type(dialog, playerName, name);
                     Click(dialog, saveEntriesButton);
                 });
    }

    TestProgram test_;
    std::unique_ptr<Quillon> window_;
};

TEST_F(WheelJourney, SavesTheLinesThatTheFiltersHaveLeft) {
    test_.state.Settings(setting::LongRunStrength) = "4";
    InForm("PlayWheel2", [this](QDialog& form) {
        TypeNumbers(form, 8);
        Click(form, generateButton);
        // 3 4 5 6 7 8 is one long run.
        Click(form, usualFilters.longRuns);
        SaveAs(form, QStringLiteral("Ann"));
        Click(form, closeButton);
    });
    EXPECT_EQ(test_.folder.Read("MyLottery.txt"),
              "01-Jun-2005,1,2,3,4,7,8,,,UK Lotto,Ann,dbase100.txt\r\n"
              "01-Jun-2005,1,2,5,6,7,8,,,UK Lotto,Ann,dbase100.txt\r\n");
}

TEST_F(WheelJourney, SavesTheExtraBalls) {
    std::string expected;
    InForm("PlayWheel3", [&](QDialog& form) {
        Find<ListBox>(form, lotteryList)->SetIndex(1);
        TypeNumbers(form, 9);
        Click(form, generateButton);
        const auto& grid = *Find<Grid>(form, linesGrid);
        const char* const lines[] = {"1,2,3,4,5", "1,2,3,7,8", "4,5,6,7,8"};
        for (int row = 1; row <= 3; ++row) {
            const int extra = grid.Cell(row, 8).toInt();
            EXPECT_TRUE(extra >= 1 && extra <= 14) << extra;
            expected += std::string("01-Jun-2005,") + lines[row - 1] + ",,," +
                        std::to_string(extra) + ",UK Thunderball,Ann,dbase101.txt\r\n";
        }
        SaveAs(form, QStringLiteral("Ann"));
        Click(form, closeButton);
    });
    EXPECT_EQ(test_.folder.Read("MyLottery.txt"), expected);
}

TEST_F(WheelJourney, SavesAColdWheelAsItOpens) {
    InForm("PlayColdWheels", [](QDialog& form) {
        EXPECT_EQ(form.windowTitle(), QStringLiteral("Cold wheels"));
        Find<ListBox>(form, lotteryList)->SetIndex(1);
        Find<ComboList>(form, "Combo2")->SetIndex(4);
        Click(form, generateButton);
        SaveAs(form, QStringLiteral("Ann"));
        Click(form, closeButton);
    });
    EXPECT_EQ(test_.folder.Read("MyLottery.txt"),
              "01-Jun-2005,2,3,5,6,7,,,1,UK Thunderball,Ann,dbase101.txt\r\n"
              "01-Jun-2005,1,6,7,8,10,,,2,UK Thunderball,Ann,dbase101.txt\r\n");
}

TEST_F(WheelJourney, HasNothingToSaveAfterARefusalAtFirst) {
    InForm("PlayWheel2", [this](QDialog& form) {
        test_.messages.Expect({.title = QStringLiteral("Error"),
                               .text = QStringLiteral(" There was a problem with the input.  \r\n "
                                                      "Please check it and try again.  \r\n"),
                               .sign = Sign::Information});
        Click(form, generateButton);
        Click(form, saveButton);
        Click(form, closeButton);
    });
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
}

}  // namespace
