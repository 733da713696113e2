// SPDX-License-Identifier: GPL-3.0-or-later
// What the user changes of what the form understood by itself.
#include <QTabBar>

#include "databases/RoleHeader.h"
#include "platform/widgets/Contrast.h"
#include "tests/databases/import_form.h"

namespace {

constexpr int readingPage = 1;
constexpr int leftOutPage = 2;

class ImportChoices : public ImportDrawsForm {
  protected:
    /// Chooses what a column is, by keyboard.
    void PickRole(int column, ColumnRole role) {
        Pick(("Role(" + std::to_string(column) + ")").c_str(), static_cast<int>(role));
    }
};

TEST_F(ImportChoices, ATickTakenAwayLeavesTheDrawOut) {
    Open();
    const auto draws = PublishedDraws(30);
    ChooseNew("village.csv", ResultsCsv(draws));
    ClickTick(1);
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 29 draws"));
    EXPECT_EQ(Table("Draws").RowCount(), 30) << "the draw stays in sight";
    EXPECT_FALSE(*Table("Draws").Row(1).ticked);
    EXPECT_EQ(LeftOutReasons().filter(QStringLiteral("3: ")).size(), 1);
    Click(*form_, "Import");
    EXPECT_EQ(test_.folder.Read("dbase1.txt").find(DrawDate(draws[1].date)), std::string::npos);
    EXPECT_NE(test_.folder.Read("dbase1.txt").find(DrawDate(draws[2].date)), std::string::npos);
}

TEST_F(ImportChoices, ATickComesBackByTheSpaceBar) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    RowTable& table = Table("Draws");
    table.setFocus();
    table.selectRow(3);
    QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 28 draws"));
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
}

TEST_F(ImportChoices, EveryNumberCanBeReadInADarkWindow) {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0xef, 0xf0, 0xf1), QColor(0x31, 0x36, 0x3b)));
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    ClickTick(1);
    const RowTable& table = Table("Draws");
    for (const auto& [row, column] : {std::pair(0, 7), std::pair(1, 1)}) {
        const auto ink = table.model()->index(row, column).data(Qt::ForegroundRole);
        EXPECT_GE(Contrast(ink.value<QColor>(), table.palette().color(QPalette::Base)), 4.5);
    }
    EXPECT_LT(table.palette().color(QPalette::Base).lightness(), 128) << "dark as its window";
    form_.reset();
    QApplication::setPalette(light);
}

TEST_F(ImportChoices, AllTicksTakenAwayLeaveNothingToImport) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    RowTable& table = Table("Draws");
    table.setFocus();
    table.selectAll();
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_EQ(table.RowCount(), 30);
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
}

TEST_F(ImportChoices, AColumnIsWhatTheUserSaysItIs) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    ShowPage(readingPage);
    EXPECT_EQ(Find<QComboBox>(*form_, "Role(7)")->currentIndex(),
              static_cast<int>(ColumnRole::Extra));
    PickRole(7, ColumnRole::Nothing);
    EXPECT_EQ(Table("Draws").Row(0).cells.size(), 7) << "the date and six numbers";
    EXPECT_TRUE(ImportButton().isEnabled());
    Click(*form_, "Import");
    EXPECT_NE(test_.folder.Read("dbase1.txt").find("6,49,0,0,0"), std::string::npos);
}

TEST_F(ImportChoices, OneColumnIsTheExtraBallThatIsKept) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    ShowPage(readingPage);
    PickRole(6, ColumnRole::Extra);
    EXPECT_EQ(Find<QComboBox>(*form_, "Role(7)")->currentIndex(),
              static_cast<int>(ColumnRole::OtherExtra));
}

TEST_F(ImportChoices, SaysWhatIsMissingWhereNoColumnIsTheDate) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    ShowPage(readingPage);
    PickRole(0, ColumnRole::Nothing);
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_TRUE(TextOf("Source").contains(QStringLiteral("date"), Qt::CaseInsensitive));
    PickRole(0, ColumnRole::Dated);
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
}

TEST_F(ImportChoices, DatesThatNothingDecidesAreTheRegionsAndSaidToBeAGuess) {
    std::string text = "Date,N1,N2,N3,N4,N5,N6\n";
    text += "05/02/2025,1,12,23,34,45,49\n03/02/2025,2,13,24,35,46,48\n";
    Open();
    ChooseNew("short.csv", text);
    EXPECT_EQ(Table("Draws").Row(0).cells.first(), QStringLiteral("05 Feb 2025"));
    EXPECT_TRUE(TextOf("Remarks").contains(QStringLiteral("Please check: ")));
    ShowPage(readingPage);
    EXPECT_TRUE(TextOf("Understood").contains(QStringLiteral("A guess: ")));
    Pick("DateOrder", static_cast<int>(Region::Order::MonthDayYear));
    EXPECT_EQ(Table("Draws").Row(0).cells.first(), QStringLiteral("02 May 2025"));
}

TEST_F(ImportChoices, AnotherSeparatorCutsTheRowsAnew) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    ShowPage(readingPage);
    Pick("Separator", static_cast<int>(ImportSeparator::Semicolon));
    EXPECT_EQ(Table("Preview").model()->columnCount(), 1);
    Pick("Separator", static_cast<int>(ImportSeparator::Comma));
    EXPECT_EQ(Table("Preview").model()->columnCount(), 10);
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
}

TEST_F(ImportChoices, AnotherEncodingReadsTheTextAnew) {
    Open();
    std::string text = ResultsCsv(PublishedDraws(30));
    text.replace(text.find("Machine"), 7, "M\xc3\xa1quina");
    ChooseNew("village.csv", text);
    ShowPage(readingPage);
    EXPECT_EQ(Find<QComboBox>(*form_, "Encoding")->currentIndex(),
              static_cast<int>(ImportEncoding::Utf8));
    EXPECT_EQ(Table("Preview").model()->headerData(8, Qt::Horizontal).toString(),
              QStringLiteral("M\u00e1quina"));
    QTest::keyClick(Find<QComboBox>(*form_, "Encoding"), Qt::Key_End);
    EXPECT_EQ(Table("Preview").model()->headerData(8, Qt::Horizontal).toString(),
              QStringLiteral("M\u00c3\u00a1quina"));
}

TEST_F(ImportChoices, TheRowsAsTheyCameKeepTheirNumbersInTheFile) {
    Open();
    ChooseNew("village.csv", "\n" + ResultsCsv(PublishedDraws(30)));
    const RowTable& rows = Table("Preview");
    EXPECT_EQ(rows.Row(0).number, 2);
    EXPECT_EQ(rows.Row(0).cells.first(), QStringLiteral("DrawDate"));
    EXPECT_TRUE(rows.Row(0).faint) << "no draw";
    EXPECT_EQ(rows.Row(1).cells.first(), QStringLiteral("28-Feb-2026"));
    EXPECT_FALSE(rows.Row(1).faint);
}

TEST_F(ImportChoices, EveryChooserOfAColumnComesIntoSightWithTheFocus) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    ShowPage(readingPage);
    form_->resize(form_->minimumSizeHint());
    for (int column = 0; column < 10; ++column) {
        const auto name = "Role(" + std::to_string(column) + ")";
        auto* chooser = Find<QComboBox>(*form_, name.c_str());
        chooser->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        EXPECT_FALSE(chooser->accessibleName().isEmpty());
        const QPoint middle = chooser->mapTo(chooser->parentWidget(), chooser->rect().center());
        EXPECT_TRUE(chooser->parentWidget()->rect().contains(middle)) << column;
    }
}

TEST_F(ImportChoices, TheWheelDoesNotChangeWhatAColumnIs) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    ShowPage(readingPage);
    auto* chooser = Find<QComboBox>(*form_, "Role(1)");
    const QPointF place = chooser->rect().center();
    QWheelEvent wheel(place, chooser->mapToGlobal(place), {}, {0, -120}, {}, {}, {}, false);
    QApplication::sendEvent(chooser, &wheel);
    EXPECT_EQ(chooser->currentIndex(), static_cast<int>(ColumnRole::Number));
}

TEST_F(ImportChoices, TheListOfWhatIsLeftOutCanBeCopied) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)) + "no date,1,2,3,4,5,6,7,A,1\n");
    ShowPage(leftOutPage);
    Click(*form_, "CopyLeftOut");
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith(QStringLiteral("Row\tWhy\tWhat stands there\n1\t")));
    EXPECT_TRUE(copied.contains(QStringLiteral("\n32\t")));
    EXPECT_EQ(TextOf("Said"), QStringLiteral("2 rows copied"));
}

/// Draws of 1 to 59 since three hundred weeks, before them of 1 to 49.
std::string ResultsOfTwoEras() {
    auto draws = PublishedDraws(300, 59);
    for (const PublishedDraw& draw : PublishedDraws(500, 49, 300)) draws.push_back(draw);
    return ResultsCsv(draws);
}

TEST_F(ImportChoices, WhereTheRulesChangedItOffersTheNewestEra) {
    Open();
    ChooseNew("lotto.csv", ResultsOfTwoEras());
    EXPECT_TRUE(Find<QWidget>(*form_, "Eras")->isVisible());
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 800 draws"));
    Click(*form_, "EraNewest");
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 300 draws"));
    Click(*form_, "Import");
    EXPECT_NE(test_.folder.Read("dbase1.txt").find("6,59,0,0,1"), std::string::npos);
    // The older draws are not for this lottery, now and at the next import.
    EXPECT_EQ(TextOf("Effect"), QStringLiteral("Adds nothing; 300 there already."));
    Open();
    Choose(userFolder_.filePath(QStringLiteral("lotto.csv")));
    EXPECT_EQ(TextOf("Effect"), QStringLiteral("Adds nothing; 300 there already."));
}

TEST_F(ImportChoices, OrMakesALotteryOfEachEra) {
    Open();
    ChooseNew("lotto.csv", ResultsOfTwoEras());
    Click(*form_, "EraEach");
    Click(*form_, "Import");
    EXPECT_EQ(Databases(), (std::vector<std::string>{"dbase1.txt", "dbase2.txt"}));
    EXPECT_TRUE(test_.folder.Read("dbase1.txt").starts_with("Lotto\r\n"));
    EXPECT_TRUE(test_.folder.Read("dbase2.txt").starts_with("Lotto 2010 to 2020\r\n"))
        << test_.folder.Read("dbase2.txt").substr(0, 40);
    EXPECT_NE(test_.folder.Read("dbase1.txt").find("6,59,0,0,1"), std::string::npos);
    EXPECT_NE(test_.folder.Read("dbase2.txt").find("6,49,0,0,1"), std::string::npos);
    EXPECT_EQ(TextOf("Said"), QStringLiteral("800 draws in 2 new lotteries"));
}

TEST_F(ImportChoices, OneLotteryForEachEraIsNoChoiceForOneThatIsThere) {
    AddLottery(test_.folder, "dbase9.txt", "Other", "6,59,0,0,1");
    Open();
    ChooseNew("lotto.csv", ResultsOfTwoEras());
    EXPECT_TRUE(Find<QWidget>(*form_, "EraEach")->isEnabled());
    Click(*form_, "IntoExisting");
    EXPECT_FALSE(Find<QWidget>(*form_, "EraEach")->isEnabled());
}

TEST_F(ImportChoices, OfTwoExtraBallsItSaysWhichIsKept) {
    std::string text = "DrawDate,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Lucky Star 1,Lucky Star 2\n";
    for (const PublishedDraw& draw : PublishedDraws(60)) {
        text += MediumDate(draw.date);
        for (int place = 0; place < 5; ++place) {
            text += "," + std::to_string(draw.balls.at(static_cast<std::size_t>(place)));
        }
        text += "," + std::to_string(draw.balls[5] % 11 + 1);
        text += "," + std::to_string(draw.balls[5] % 11 == 0 ? 11 : draw.balls[5] % 11) + "\n";
    }
    Open();
    ChooseNew("stars.csv", text);
    EXPECT_TRUE(TextOf("Remarks").contains(
        QStringLiteral("The first is kept, \"Lucky Star 1\", the other is not.")))
        << TextOf("Remarks").toStdString();
    ShowPage(readingPage);
    EXPECT_EQ(Find<QComboBox>(*form_, "Role(6)")->currentIndex(),
              static_cast<int>(ColumnRole::Extra));
    EXPECT_EQ(Find<QComboBox>(*form_, "Role(7)")->currentIndex(),
              static_cast<int>(ColumnRole::OtherExtra));
}

}  // namespace
