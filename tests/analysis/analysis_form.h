// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPushButton>
#include <memory>
#include <vector>

#include "core/failure.h"
#include "core/settings.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"
#include "tests/support/real_histories.h"
#include "tests/support/sample_lotteries.h"

/// A form of the analyses over three lotteries: UK Lotto and Thunderball with their draws, and UK
/// Daily Play without any unless `dailyPlay` gives it some, as some forms end the run without one.
template <typename FormType>
class AnalysisFormTest : public testing::Test {
  protected:
    explicit AnalysisFormTest(const std::vector<std::string>& dailyPlay = {}) {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        AddLottery(test_.folder, "dbase102.txt", "UK Daily Play", "7,27,0,0,0", dailyPlay);
    }

    void Open() {
        form_ = std::make_unique<FormType>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    void Choose(int index) {
        Find<ListBox>(*form_, "List1")->SetIndex(index);
        QApplication::processEvents();
    }

    /// A click on an entry of the list, which may be the one chosen already.
    void ClickLottery(int index) {
        auto* list = Find<ListBox>(*form_, "List1");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(index)).center());
        QApplication::processEvents();
    }

    /// Opens the form on a folder that holds one lottery only.
    void OpenOn(const std::string& rules, const std::vector<std::string>& draws) {
        for (const std::string& file : test_.folder.Find("dbase*.txt")) test_.folder.Delete(file);
        AddLottery(test_.folder, "dbase1.txt", "Own", rules, draws);
        Open();
    }

    QLabel& Label(const char* name) { return *Find<QLabel>(*form_, name); }
    QString Text(const char* name) { return Label(name).text(); }
    QColor ColourOf(const char* name) { return Label(name).palette().color(QPalette::WindowText); }
    Chart& ChartOf(const char* name) { return *Find<Chart>(*form_, name); }

    /// A series of a chart.
    std::vector<int> Values(const char* chart, int column = 1) {
        std::vector<int> values;
        for (int row = 1; row <= ChartOf(chart).rowCount(); ++row) {
            values.push_back(static_cast<int>(ChartOf(chart).value(row, column)));
        }
        return values;
    }

    QString Labels(const char* chart) {
        QStringList labels;
        for (int row = 1; row <= ChartOf(chart).rowCount(); ++row) {
            labels += ChartOf(chart).rowLabel(row);
        }
        return labels.join(QLatin1Char(' '));
    }

    /// What resting the mouse tells of the places of a chart, from the first one.
    QStringList Hovers(const char* chart) {
        return ChartOf(chart).accessibleDescription().split(QStringLiteral("; "));
    }

    void ChooseSkinColours() {
        test_.state.Settings(setting::SkinBits) = "2";
        test_.state.Settings(setting::TitleColour) = "&H000001";
        test_.state.Settings(setting::BodyColour) = "&H000002";
        test_.state.Settings(setting::SmallLabelColour) = "&H000003";
        test_.state.Settings(setting::BackgroundColour) = "&H00FFEEDD";
    }

    /// The controls that the Tab key leads to, in its order.
    QString TabOrder() {
        QStringList reached;
        for (QWidget* widget = form_->nextInFocusChain(); widget != form_.get();
             widget = widget->nextInFocusChain()) {
            if ((widget->focusPolicy() & Qt::TabFocus) != 0) reached << widget->objectName();
        }
        return reached.join(QLatin1Char(' '));
    }

    /// Whether the print button is grey without printing and prints the form with it.
    void ExpectPrintsItself(const char* closeButton = "Command1") {
        Open();
        EXPECT_FALSE(Find<QPushButton>(*form_, "Command6")->isEnabled());
        const QWidget* printed = nullptr;
        test_.services.printForm = [&](QWidget& form) { printed = &form; };
        Open();
        Click(*form_, "Command6");
        EXPECT_EQ(printed, form_.get());
        Click(*form_, closeButton);
        EXPECT_FALSE(form_->isVisible());
    }

    void ExpectFailsWithoutALottery() {
        MemoryFolder empty;
        Program program{test_.state, empty, test_.services};
        FormType form(program, nullptr);
        EXPECT_THROW(form.Load(), Failure);
    }

    TestProgram test_;
    std::unique_ptr<FormType> form_;
};

/// `count` zeros behind `head`.
inline std::vector<int> WithZeros(std::vector<int> head, std::size_t size) {
    head.resize(size);
    return head;
}

/// A history of `count` equal draws.
inline std::vector<std::string> Repeated(int count, const std::string& draw) {
    return std::vector<std::string>(static_cast<std::size_t>(count), draw);
}
