// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever was done with the entries, Ctrl+Z leads back through all of it.
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <random>

#include "entries/ShowMyDrawsW.h"
#include "entries/StoreMyDrawsW.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr int mostCommands = 20;

class TakingBack : public testing::TestWithParam<unsigned> {
  protected:
    TakingBack() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
    }

    template <typename FormType>
    void Open() {
        form_ = std::make_unique<FormType>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    Grid& Entries() { return *Find<Grid>(*form_, "MSFlexGrid1"); }

    std::string Shown() {
        std::string cells;
        for (int row = 1; row < Entries().RowCount(); ++row) {
            for (int column = 0; column < Entries().ColumnCount(); ++column) {
                cells += Entries().Cell(row, column).toStdString() + ',';
            }
            cells += '\n';
        }
        return cells;
    }

    int Upto(int most) { return std::uniform_int_distribution(1, most)(random_); }

    void GoTo(int row, int column) {
        Entries().ScrollToRow(row);
        const QModelIndex index = Entries().model()->index(row - 1, column);
        QTest::mouseClick(Entries().viewport(), Qt::LeftButton, Qt::NoModifier,
                          Entries().visualRect(index).center());
    }

    void TakeAllBack() {
        auto* said = Find<QLabel>(*form_, "Said");
        for (int command = 0; command <= mostCommands; ++command) {
            QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
            if (said->text() == QStringLiteral("There is nothing to take back")) return;
        }
        ADD_FAILURE() << "more was taken back than was done";
    }

    void Confirm(const char* text) {
        test_.messages.Expect({.title = QStringLiteral("Please confirm..."),
                               .text = QString::fromLatin1(text),
                               .sign = Sign::Exclamation,
                               .buttons = Buttons::OkCancel});
    }

    TestProgram test_;
    std::unique_ptr<Form> form_;
    std::mt19937 random_{GetParam()};
};

class TakingBackShown : public TakingBack {
  protected:
    void EnterSomething(int entries) {
        constexpr std::array columns = {0, 1, 2, 3, 10};
        const int column = columns.at(static_cast<std::size_t>(Upto(columns.size()) - 1));
        GoTo(Upto(entries), column);
        QString text = QString::number(Upto(60));
        if (column == 0) text = QStringLiteral("%1 May 05").arg(Upto(31));
        Find<QLineEdit>(*form_, "Text1")->setText(text);
        Click(*form_, "Command10");
    }

    void DoSomething(int entries) {
        switch (Upto(8)) {
            case 1:
                return Click(*form_, "Command11");
            case 2:
                return Click(*form_, "Command3");
            case 3:
                return Click(*form_, "Command6");
            case 4:
                GoTo(Upto(entries), Upto(9));
                Confirm("Delete this lottery entry?   ");
                return Click(*form_, "Command7");
            case 5:
                GoTo(Upto(entries), Upto(9));
                return Click(*form_, "Command8");
            case 6:
                Confirm("Delete all lottery entries    \r\nthat are older than today?    ");
                return Click(*form_, "Command4");
            case 7:
                return Click(*form_, "Command2");
            default:
                return EnterSomething(entries);
        }
    }
};

TEST_P(TakingBackShown, LeadsBackToTheEntriesOfTheFile) {
    constexpr int entries = 12;
    std::string file;
    for (int entry = 0; entry < entries; ++entry) {
        const bool lotto = Upto(2) == 1;
        file += std::to_string(Upto(28)) + (Upto(2) == 1 ? " May 05" : "-Jul-2005");
        file += lotto ? ",1,2,3,4,5,6,,,UK Lotto," : ",1,2,3,4,5,,,6,UK Thunderball,";
        file += std::string(1, static_cast<char>('a' + Upto(20)));
        file += lotto ? ",dbase100.txt\r\n" : ",dbase101.txt\r\n";
    }
    test_.folder.Write("MyLottery.txt", file);
    Open<ShowMyDrawsW>();
    const std::string before = Shown();
    for (int command = 0; command < mostCommands; ++command) DoSomething(entries);
    TakeAllBack();
    EXPECT_EQ(Shown(), before);
    Click(*form_, "Command1");
    EXPECT_FALSE(form_->isVisible()) << "nothing is changed any more";
    EXPECT_EQ(test_.folder.Read("MyLottery.txt"), file);
}

INSTANTIATE_TEST_SUITE_P(Seeds, TakingBackShown, testing::Range(1U, 4U));

class TakingBackTyped : public TakingBack {
  protected:
    void DoSomething() {
        switch (Upto(6)) {
            case 1:
                return Find<ListBox>(*form_, "List1")->SetIndex(Upto(2) - 1);
            case 2:
                GoTo(Upto(6), Upto(9));
                return Click(*form_, "Command4");
            case 3:
                GoTo(Upto(6), Upto(9));
                return Click(*form_, "Command5");
            case 4:
                GoTo(Upto(6), Upto(9));
                return Click(*form_, "Command6");
            default:
                return Add();
        }
    }

    void Add() {
        for (int index = 1; index <= 8; ++index) {
            auto* box = Find<QLineEdit>(*form_, ("Text1(" + std::to_string(index) + ")").c_str());
            if (box->isVisible()) QTest::keyClicks(box, QString::number(Upto(34)));
        }
        Click(*form_, "Command2");
    }
};

TEST_P(TakingBackTyped, LeadsBackToTheEmptyGrid) {
    Open<StoreMyDrawsW>();
    const std::string before = Shown();
    for (int command = 0; command < mostCommands; ++command) DoSomething();
    EXPECT_NE(Shown(), before);
    TakeAllBack();
    EXPECT_EQ(Shown(), before);
    Click(*form_, "Command1");
    EXPECT_FALSE(form_->isVisible()) << "there is nothing to lose";
}

INSTANTIATE_TEST_SUITE_P(Seeds, TakingBackTyped, testing::Range(1U, 5U));

}  // namespace
