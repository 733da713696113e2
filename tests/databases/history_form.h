// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <memory>
#include <string>
#include <vector>

#include "databases/HistoryW.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"
#include "tests/support/sample_lotteries.h"

inline constexpr const char* updateButton = "Command3";
inline constexpr const char* deleteButton = "Command2";
inline constexpr const char* printButton = "Command6";
inline constexpr const char* closeButton = "Command1";
inline constexpr const char* drawOrder = "Option1";
inline constexpr const char* ascendingOrder = "Option2";
inline constexpr const char* lotteryList = "List1";
inline constexpr const char* datePicker = "DTPicker1";
inline constexpr const char* lotteryName = "Label1";
inline constexpr const char* closingTimer = "Timer1";

/// The form of the draws on UK Lotto with three draws and UK Thunderball with one.
class HistoryForm : public testing::Test {
  protected:
    HistoryForm() {
        AddLottery(test_.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
                   {"28 May 05,34,17,22,3,48,41,0,9", "25-May-2005,46,2,13,24,35,1,0,7",
                    "21 May 05,8,9,10,11,12,13,0,14"});
        AddThunderball(test_.folder);
    }

    void Open() {
        form_ = std::make_unique<HistoryW>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    void OpenOn(const std::string& rules, const std::vector<std::string>& draws) {
        AddLottery(test_.folder, "dbase1.txt", "Mine", rules, draws);
        Open();
    }

    Grid& Draws() { return *Find<Grid>(*form_, "MSFlexGrid1"); }
    bool CanEdit() { return Find<QGroupBox>(*form_, "Frame1")->isEnabled(); }
    void ChooseLottery(int index) { Find<ListBox>(*form_, lotteryList)->SetIndex(index); }
    void ShowAscending() { Find<QRadioButton>(*form_, ascendingOrder)->click(); }
    void ShowInDrawOrder() { Find<QRadioButton>(*form_, drawOrder)->click(); }

    QLineEdit& Box(int index) {
        return *Find<QLineEdit>(*form_, ("Text1(" + std::to_string(index) + ")").c_str());
    }

    QDate PickedDate() { return Find<QDateEdit>(*form_, datePicker)->date(); }

    std::string Row(int row) {
        QStringList fields;
        for (int column = 0; column < 9; ++column) fields << Draws().Cell(row, column);
        return fields.join(QLatin1Char(',')).toStdString();
    }

    QPoint PlaceOfRow(int row) {
        return Draws().visualRect(Draws().model()->index(row - 1, 3)).center();
    }

    void ClickRow(int row, Qt::MouseButton button = Qt::LeftButton) {
        Draws().ScrollToRow(row);
        QTest::mouseClick(Draws().viewport(), button, Qt::NoModifier, PlaceOfRow(row));
    }

    void Drag(int fromRow, int toRow) {
        QWidget* cells = Draws().viewport();
        const QPoint end = PlaceOfRow(toRow);
        QTest::mousePress(cells, Qt::LeftButton, Qt::NoModifier, PlaceOfRow(fromRow));
        QMouseEvent move(QEvent::MouseMove, end, cells->mapToGlobal(end), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(cells, &move);
        QTest::mouseRelease(cells, Qt::LeftButton, Qt::NoModifier, end);
    }

    int TopRow() { return Draws().rowAt(0) + 1; }

    void ExpectMarked(int row) {
        EXPECT_EQ(Draws().CurrentRow(), row);
        const auto rows = Draws().selectionModel()->selectedRows();
        ASSERT_EQ(rows.size(), 1);
        EXPECT_EQ(rows.first().row(), row - 1);
    }

    void Update(const QDate& date) {
        Find<QDateEdit>(*form_, datePicker)->setDate(date);
        Click(*form_, updateButton);
    }

    QString Said() { return Find<QLabel>(*form_, "Said")->text(); }

    std::string Database(const char* file = "dbase100.txt") { return test_.folder.Read(file); }

    TestProgram test_;
    std::unique_ptr<HistoryW> form_;
};
