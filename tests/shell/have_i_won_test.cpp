// SPDX-License-Identifier: GPL-3.0-or-later
// From an empty folder to the question that players ask most: a lottery is made from a template,
// draws are typed in and put right, entries are stored, and the check says what they matched.
#include <QAction>
#include <QDateEdit>
#include <QFile>
#include <QPlainTextEdit>

#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "shell/Quillon.h"
#include "test_folders.h"
#include "tests/support/form_test.h"

namespace {

constexpr const char* datePicker = "DTPicker1";
constexpr const char* bonusBox = "Text1(7)";

namespace main_window {
constexpr const char* databases = "List1";
}

namespace create_form {
constexpr const char* templates = "List1";
constexpr const char* create = "Command1";
}  // namespace create_form

namespace update_form {
constexpr const char* save = "Command1";
}

namespace history_form {
constexpr const char* draws = "MSFlexGrid1";
constexpr const char* deleteDraw = "Command2";
}  // namespace history_form

namespace store_form {
constexpr const char* add = "Command2";
constexpr const char* save = "Command3";
}  // namespace store_form

namespace check_form {
constexpr const char* check = "Command2";
constexpr const char* entries = "MSFlexGrid1";
constexpr const char* report = "Text2";
}  // namespace check_form

class HaveIWon : public testing::Test {
  protected:
    void SetUp() override {
        QFile templates(QStringLiteral(SUPPLIED_DATA "/LotteryTemplates.txt"));
        ASSERT_TRUE(templates.open(QFile::ReadOnly));
        test_.folder.Write("LotteryTemplates.txt", templates.readAll().toStdString());
        window_ = std::make_unique<Quillon>(test_.program);
        window_->Load();
        window_->show();
    }

    void InForm(const char* entry, const std::function<void(QDialog&)>& drive) {
        InDialog([&] { Find<QAction>(*window_, entry)->trigger(); }, drive);
    }

    static void Fill(QDialog& form, int firstBox, const std::vector<int>& numbers) {
        int box = firstBox;
        for (const int number : numbers) {
            Type(form, ("Text1(" + std::to_string(box++) + ")").c_str(), QString::number(number));
        }
    }

    static void SetDate(QDialog& form, const QDate& date) {
        Find<QDateEdit>(form, datePicker)->setDate(date);
    }

    void CreateUkLotto() {
        InForm("DatabasesCreate", [](QDialog& form) {
            auto* templates = Find<ListBox>(form, create_form::templates);
            const auto found = templates->findItems(QStringLiteral("UK Lotto"), Qt::MatchExactly);
            ASSERT_EQ(found.size(), 1);
            templates->SetIndex(templates->row(found.first()));
            Fill(form, 0, {3, 17, 22, 34, 41, 48});
            Type(form, bonusBox, QStringLiteral("9"));
            SetDate(form, QDate(2005, 5, 28));
            Click(form, create_form::create);
        });
    }

    void AddDraw(const QDate& date, const std::vector<int>& numbers, int bonus) {
        InForm("wUpdateDbase", [&](QDialog& form) {
            Fill(form, 0, numbers);
            Type(form, bonusBox, QString::number(bonus));
            SetDate(form, date);
            Click(form, update_form::save);
        });
    }

    TestProgram test_;
    std::unique_ptr<Quillon> window_;
};

TEST_F(HaveIWon, IsAnsweredFromAnEmptyFolderOn) {
    CreateUkLotto();
    EXPECT_EQ(Find<ListBox>(*window_, main_window::databases)->count(), 1)
        << "the panel shows the new lottery";
    AddDraw(QDate(2005, 6, 1), {5, 6, 7, 8, 9, 10}, 11);
    AddDraw(QDate(2005, 5, 25), {1, 2, 13, 24, 35, 46}, 7);
    EXPECT_NE(test_.folder.Read("dbase1.txt").find("01 Jun 05,5,6,7,8,9,10,,11\r\n28 May 05,"),
              std::string::npos)
        << test_.folder.Read("dbase1.txt");

    InForm("wDatabaseView", [](QDialog& form) {
        auto& draws = *Find<Grid>(form, history_form::draws);
        const QModelIndex oldest = draws.model()->index(2, 3);
        QTest::mouseClick(draws.viewport(), Qt::LeftButton, Qt::NoModifier,
                          draws.visualRect(oldest).center());
        Click(form, history_form::deleteDraw);
        EXPECT_EQ(draws.Cell(3, 0), QString());
    });
    EXPECT_EQ(test_.folder.Read("dbase1.txt").find("25 May 05"), std::string::npos);

    InForm("DatabaseStoreDrawsW", [this](QDialog& form) {
        SetDate(form, QDate(2005, 6, 1));
        Fill(form, 1, {5, 6, 7, 8, 11, 40});
        Click(form, store_form::add);
        test_.messages.Expect({.title = QStringLiteral("Lottery Quillon World"),
                               .text = QStringLiteral("Your entries have been saved.  "),
                               .sign = Sign::Information});
        Click(form, store_form::save);
    });

    InForm("DatabaseCheck", [](QDialog& form) {
        Click(form, check_form::check);
        const auto& entries = *Find<Grid>(form, check_form::entries);
        EXPECT_EQ(entries.CellBackground(1, 1), QColor(255, 255, 0)) << "5 was drawn";
        EXPECT_EQ(entries.CellBackground(1, 5), QColor(255, 192, 192)) << "11 was the bonus ball";
        EXPECT_EQ(entries.CellBackground(1, 6), QColor(255, 255, 255));
        const QString report = Find<QPlainTextEdit>(form, check_form::report)->toPlainText();
        EXPECT_TRUE(report.contains(QStringLiteral(" 4-match+bonus/pball = 1 times")))
            << report.toStdString();
        EXPECT_TRUE(report.contains(QStringLiteral(" 4-match = 0 times")));
    });
}

}  // namespace
