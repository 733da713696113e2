// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SManager.h"

#include "platform/forms/Dirty.h"
#include "syndicates/TotalBox.h"
#include "tests/syndicates/syndicate_form.h"

namespace {

using std::chrono::June;

constexpr auto editBox = "Text2";
constexpr auto totalBox = "Text3";
constexpr auto saveButton = "Command1";
constexpr auto enterButton = "Command2";
constexpr auto closeButton = "Command3";
constexpr auto deleteButton = "Command4";
constexpr auto upButton = "Command5";
constexpr auto downButton = "Command6";
constexpr auto totalButton = "Command7";
constexpr auto printButton = "Command8";

const QColor darkRed(160, 0, 0);
const QColor black(Qt::black);
const QColor paleYellow(0xFF, 0xFF, 0xC0);

const Message noNames{.title = QStringLiteral("Warning!"),
                      .text = QStringLiteral("Cannot have a syndicate without    \r\n"
                                             "a manager and a syndicate name...  "),
                      .sign = Sign::Exclamation};

const char* const twoRecords =
    "\"01-Jun-2005\",\"5\",\"\xA3"
    "5.00\",\"\xA3"
    "0.00\",\"-\xA3"
    "5.00\",\"first\"\r\n"
    "\"08-Jun-2005\",\"3\",\"\xA3"
    "3.00\",\"\xA3"
    "10.00\",\"\xA3"
    "7.00\",\"second\"\r\n";

class Managing : public SyndicateForm<SManager> {
  protected:
    void OpenWith(const std::string& diary) {
        test_.folder.Write("Diary.000", diary);
        Open();
    }

    QLineEdit& Edit() { return Box(editBox); }
    std::string Edited() { return FromQString(Edit().text()); }
    DatePicker& Picker() { return *Find<DatePicker>(*form_, "DTPicker1"); }
    TotalBox& TotalShown() { return *Find<TotalBox>(*form_, totalBox); }
    std::string TotalText() { return FromQString(TotalShown().text()); }
    std::string Diary() { return test_.folder.Read("Diary.000"); }
    int CurrentColumn() { return Table().currentIndex().column(); }

    std::string Row(int row) {
        std::string cells;
        for (int column = 0; column < 6; ++column)
            cells += (column > 0 ? "|" : "") + Cell(row, column);
        return cells;
    }

    void Enter(int row, int column, const char* text) {
        ClickCell(row, column);
        Edit().selectAll();
        QTest::keyClicks(&Edit(), QString::fromLatin1(text));
        QTest::keyClick(&Edit(), Qt::Key_Return);
    }

    void Save() {
        Run(saveButton);
        EXPECT_FALSE(form_->isVisible());
    }
};

TEST_F(Managing, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Syndicate Manager"));
    const std::map<const char*, const char*> labels = {
        {"Label1", "Syndicate Manager"},
        {"Label2(0)", "Syndicate name:"},
        {"Label2(1)", "Manager name:"},
        {"Label2(2)", "Address:"},
        {"Label2(3)", "Phone:"},
        {"Label2(4)", "Email:"},
        {"Label3",
         "Create a syndicate by entering a syndicate name and a manager name. The address, phone "
         "and email are not essential, but are useful. You can keep track of the tickets bought, "
         "their cost and any winnings below."},
        {"Label4", "Edit:"},
        {"Label5",
         "Keep track of the number of tickets bought, their cost, winnings and notes by storing "
         "records here..."}};
    for (const auto& [name, text] : labels) EXPECT_EQ(Label(name), QLatin1String(text));
    const std::map<const char*, const char*> tips = {{upButton, " Move current row up "},
                                                     {downButton, " Move current row down "},
                                                     {deleteButton, " Delete current row "},
                                                     {saveButton, " Save the data "},
                                                     {printButton, " Print "},
                                                     {closeButton, " Close window "}};
    for (const auto& [name, text] : tips) EXPECT_EQ(Tip(name), QLatin1String(text));
    EXPECT_EQ(Caption(enterButton), QStringLiteral("Enter"));
    EXPECT_EQ(Caption(totalButton), QStringLiteral("Total"));
    EXPECT_EQ(Row(0), "Date|Tickets|Cost|Won|Balance|Notes");
    EXPECT_EQ(Table().RowCount(), 1000);
    EXPECT_EQ(Table().ColumnCount(), 6);
    EXPECT_EQ(Picker().displayFormat(), QStringLiteral("ddd d MMM yyyy"));
}

TEST_F(Managing, CtrlZTakesBackCellsRowsAndTheirColours) {
    OpenWith(twoRecords);
    const std::string before = Row(1) + Row(2);
    const std::string total = TotalText();
    Enter(2, 2, "30");
    EXPECT_EQ(Table().CellColour(2, 4), darkRed);
    ClickCell(2, 1);
    Run(upButton);
    Run(deleteButton);
    EXPECT_EQ(Row(2), "|||||");

    for (int command = 0; command < 3; ++command) {
        QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_EQ(Row(1) + Row(2), before);
    EXPECT_EQ(TotalText(), total);
    EXPECT_EQ(Table().CellColour(2, 4), black);
    EXPECT_EQ(Table().CellColour(1, 4), darkRed);
    // Nothing is unsaved any more, so closing asks nothing.
    Run(closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(Managing, CtrlZInTheDiaryKeepsTheWarningOfTypedDetails) {
    OpenWith(twoRecords);
    Enter(2, 5, "mine");
    Box("Text1(0)").setText(QStringLiteral("Zoe"));
    ClickCell(1, 1);
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    ASSERT_NE(Cell(2, 5), "mine");
    test_.messages.Expect(UnsavedWarning(), Answer::Cancel);
    Run(closeButton);
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(Managing, CtrlZTakesBackADeletedRowByItself) {
    OpenWith(twoRecords);
    Enter(2, 5, "changed");
    const std::string before = Row(1) + Row(2);
    ClickCell(2, 1);
    Run(deleteButton);
    EXPECT_EQ(Row(2), "|||||");
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Row(1) + Row(2), before);
}

TEST_F(Managing, WhatWasRefusedIsNothingToTakeBack) {
    OpenWith(twoRecords);
    ClickCell(1, 1);
    Run(upButton);
    Table().ScrollToRow(999);
    ClickCell(999, 1);
    Run(downButton);
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Find<QLabel>(*form_, "Said")->text(),
              QStringLiteral("There is nothing to take back"));
}

TEST_F(Managing, ShowsDetailsAndDiary) {
    OpenWith(twoRecords);
    EXPECT_EQ(Box("Text1(7)").text(), QStringLiteral("Winners"));
    EXPECT_EQ(Box("Text1(0)").text(), QStringLiteral("Ann"));
    EXPECT_EQ(Box("Text1(1)").text(), QStringLiteral("1, High Street"));
    EXPECT_EQ(Box("Text1(5)").text(), QStringLiteral("555"));
    EXPECT_EQ(Box("Text1(6)").text(), QStringLiteral("ann@x"));
    EXPECT_EQ(Row(1),
              "01-Jun-2005|5|\xA3"
              "5.00|\xA3"
              "0.00|-\xA3"
              "5.00|first");
    EXPECT_EQ(Table().CellColour(1, 4), darkRed);
    EXPECT_EQ(Table().CellColour(1, 2), black);
    EXPECT_EQ(Table().CellColour(2, 4), black);
    EXPECT_EQ(TotalText(),
              "\xA3"
              "2.00");
    EXPECT_EQ(TotalShown().Colour(), black);
    EXPECT_EQ(Table().CurrentRow(), 1);
    EXPECT_EQ(CurrentColumn(), 1);
    EXPECT_EQ(Edited(), "5");
    ExpectNoChanges(closeButton);
}

TEST_F(Managing, WithoutADiaryShowsNothing) {
    Open();
    EXPECT_EQ(Row(1), "|||||");
    EXPECT_EQ(TotalText(),
              "\xA3"
              "0.00");
    ExpectNoChanges(closeButton);
}

TEST_F(Managing, ALossIsShownInDarkRed) {
    OpenWith("\"\",\"\",\"\",\"\",\"-3\",\"\"\r\n");
    EXPECT_EQ(TotalText(),
              "-\xA3"
              "3.00");
    EXPECT_EQ(TotalShown().Colour(), darkRed);
    EXPECT_EQ(TotalShown().palette().color(QPalette::Text), darkRed);
}

TEST_F(Managing, HasRoomForALargeTotal) {
    Open();
    const int needed =
        TotalShown().fontMetrics().horizontalAdvance(QStringLiteral("-\u00A399,999.99"));
    EXPECT_GT(TotalShown().width(), needed);
}

TEST_F(Managing, MarksTheCellThatIsEdited) {
    OpenWith(twoRecords);
    EXPECT_EQ(Table().CellBackground(1, 1), paleYellow);
    ClickCell(2, 5);
    EXPECT_EQ(Table().CellBackground(1, 1), QColor(Qt::white));
    EXPECT_EQ(Table().CellBackground(2, 5), paleYellow);
    EXPECT_EQ(Edited(), "second");
    EXPECT_TRUE(Edit().hasFocus());
    EXPECT_TRUE(Edit().isVisible());
    EXPECT_FALSE(Picker().isVisible());
}

TEST_F(Managing, ADateIsEditedInThePicker) {
    OpenWith(
        "\"08-Jun-2005\",\"\",\"\",\"\",\"\",\"\"\r\n\"some day\",\"\",\"\",\"\",\"\",\"\"\r\n");
    ClickCell(1, 0);
    EXPECT_TRUE(Picker().isVisible());
    EXPECT_FALSE(Edit().isVisible());
    EXPECT_EQ(Picker().Value(), Date(test_.today.year() / June / 8));
    EXPECT_TRUE(Picker().hasFocus());
    ClickCell(2, 0);
    EXPECT_EQ(Picker().Value(), test_.today);
    EXPECT_EQ(Cell(2, 0), "some day");
    QTest::keyClick(&Picker(), Qt::Key_Return);
    EXPECT_EQ(Cell(2, 0), "01-Jun-2005");
    EXPECT_EQ(CurrentColumn(), 1);
}

TEST_F(Managing, AmountsAreEditedWithoutTheSymbol) {
    OpenWith(twoRecords);
    ClickCell(1, 4);
    EXPECT_EQ(Edited(), "-5.00");
    EXPECT_EQ(Edit().selectedText(), QStringLiteral("-5.00"));
}

TEST_F(Managing, EnteringGoesOnAlongTheRow) {
    Open();
    ClickCell(1, 0);
    Run(enterButton);
    EXPECT_EQ(Row(1),
              "01-Jun-2005||||\xA3"
              "0.00|");
    EXPECT_EQ(CurrentColumn(), 1);
    QTest::keyClicks(&Edit(), QStringLiteral("5\r"));
    QTest::keyClicks(&Edit(), QStringLiteral("2.5\r"));
    EXPECT_EQ(Row(1),
              "01-Jun-2005|5|\xA3"
              "2.50||-\xA3"
              "2.50|");
    EXPECT_EQ(TotalText(),
              "-\xA3"
              "2.50");
    QTest::keyClicks(&Edit(), QStringLiteral("10\r"));
    EXPECT_EQ(Row(1),
              "01-Jun-2005|5|\xA3"
              "2.50|\xA3"
              "10.00|\xA3"
              "7.50|");
    QTest::keyClicks(&Edit(), QStringLiteral("99\r"));
    EXPECT_EQ(Cell(1, 4),
              "\xA3"
              "7.50")
        << "a typed balance is made anew";
    QTest::keyClicks(&Edit(), QStringLiteral(" a \"note\", \r"));
    EXPECT_EQ(Cell(1, 5), "a 'note',");
    EXPECT_EQ(Table().CurrentRow(), 2);
    EXPECT_EQ(CurrentColumn(), 0);
    EXPECT_TRUE(Picker().isVisible());
    ExpectChanges(closeButton);
}

TEST_F(Managing, EnteringADateOrANoteMakesTheBalanceAnew) {
    OpenWith("\"\",\"\",\"1\",\"5\",\"99\",\"\"\r\n");
    EXPECT_EQ(Cell(1, 4),
              "\xA3"
              "99.00");
    Enter(1, 5, "note");
    EXPECT_EQ(Cell(1, 4),
              "\xA3"
              "4.00");
    Enter(5, 5, "alone");
    EXPECT_EQ(Row(5),
              "||||\xA3"
              "0.00|alone");
}

TEST_F(Managing, OfAThousandTheBalanceCountsOne) {
    Open();
    Enter(1, 2, "1234.5");
    EXPECT_EQ(Cell(1, 2),
              "\xA3"
              "1,234.50");
    EXPECT_EQ(Cell(1, 4),
              "-\xA3"
              "1.00");
    Run(saveButton);
    Open();
    EXPECT_EQ(Cell(1, 2),
              "\xA3"
              "1.00");
}

TEST_F(Managing, RoundsByTheDigitsAsTyped) {
    Open();
    Enter(1, 2, "0.125");
    EXPECT_EQ(Cell(1, 2),
              "\xA3"
              "0.13");
    Enter(1, 3, "-0.125");
    EXPECT_EQ(Cell(1, 3),
              "-\xA3"
              "0.13");
    EXPECT_EQ(Table().CellColour(1, 3), darkRed);
    Enter(1, 3, "2.675");
    EXPECT_EQ(Cell(1, 3),
              "\xA3"
              "2.68");
    EXPECT_EQ(Table().CellColour(1, 3), black);
    Enter(1, 3, "-0.004");
    EXPECT_EQ(Cell(1, 3),
              "\xA3"
              "0.00");
}

TEST_F(Managing, ABalanceOnceRedStaysRedUntilItIsLoaded) {
    Open();
    Enter(1, 2, "5");
    EXPECT_EQ(Table().CellColour(1, 4), darkRed);
    Enter(1, 3, "10");
    EXPECT_EQ(Cell(1, 4),
              "\xA3"
              "5.00");
    EXPECT_EQ(Table().CellColour(1, 4), darkRed);
    Save();
    Open();
    EXPECT_EQ(Table().CellColour(1, 4), black);
}

TEST_F(Managing, TakesNoAmountThatCannotBeCounted) {
    Open();
    test_.messages.Expect(inputProblem);
    Enter(1, 2, "99999999999999");
    EXPECT_EQ(Row(1), "|||||");
    EXPECT_EQ(Edited(), "99999999999999");
    ExpectNoChanges(closeButton);
}

TEST_F(Managing, KeysAreFilteredByColumn) {
    Open();
    for (int column = 1; column <= 4; ++column) {
        ClickCell(1, column);
        QTest::keyClicks(&Edit(), QStringLiteral("-1,x\"2. 5"));
        EXPECT_EQ(Edited(), "-12.5");
        Edit().selectAll();
        Paste(Edit(), QStringLiteral("a \"7,50\"\n"));
        EXPECT_EQ(Edited(), "750");
    }
    ClickCell(1, 5);
    QTest::keyClicks(&Edit(), QStringLiteral("a, \"b\""));
    EXPECT_EQ(Edited(), "a, 'b'");
    Edit().selectAll();
    Paste(Edit(), QStringLiteral("\"c\""));
    EXPECT_EQ(Edited(), "'c'");
}

TEST_F(Managing, MovingAwayAndTheTotalDropWhatWasNotEntered) {
    OpenWith(twoRecords);
    ClickCell(1, 1);
    QTest::keyClicks(&Edit(), QStringLiteral("77"));
    Run(totalButton);
    EXPECT_EQ(Edited(), "5");
    EXPECT_EQ(Table().CurrentRow(), 1);
    QTest::keyClicks(&Edit(), QStringLiteral("77"));
    ClickCell(2, 1);
    EXPECT_EQ(Edited(), "3");
    EXPECT_EQ(Cell(1, 1), "5");
    ExpectNoChanges(closeButton);
}

TEST_F(Managing, TheArrowKeysWalkThroughTheDates) {
    OpenWith(twoRecords);
    ClickCell(1, 0);
    Table().setFocus();
    QTest::keyClick(&Table(), Qt::Key_Down);
    EXPECT_EQ(Table().CurrentRow(), 2);
    EXPECT_EQ(Picker().Value(), Date(test_.today.year() / June / 8));
    EXPECT_TRUE(Table().hasFocus());
    QTest::keyClick(&Table(), Qt::Key_Return);
    EXPECT_TRUE(Picker().hasFocus());
    EXPECT_EQ(Cell(2, 0), "08-Jun-2005");
    ExpectNoChanges(closeButton);
}

TEST_F(Managing, DeletesTheRowAndMovesTheOthersUp) {
    OpenWith(twoRecords);
    ClickCell(1, 3);
    Run(deleteButton);
    EXPECT_EQ(Cell(1, 5), "second");
    EXPECT_EQ(Row(2), "|||||");
    EXPECT_EQ(TotalText(),
              "\xA3"
              "7.00");
    EXPECT_EQ(Table().CurrentRow(), 1);
    EXPECT_EQ(CurrentColumn(), 1);
    EXPECT_EQ(Table().CellColour(1, 4), darkRed) << "texts move, colours stay";
    Run(deleteButton);
    EXPECT_EQ(Row(1), "|||||");
    ExpectNoChanges(closeButton);
}

TEST_F(Managing, MovesTheRowUpAndDownWithItsDate) {
    OpenWith(twoRecords);
    ClickCell(2, 3);
    Run(upButton);
    EXPECT_EQ(Cell(1, 0), "08-Jun-2005");
    EXPECT_EQ(Cell(2, 5), "first");
    EXPECT_EQ(Table().CurrentRow(), 1);
    EXPECT_EQ(CurrentColumn(), 1);
    EXPECT_EQ(Edited(), "3");
    Run(upButton);
    EXPECT_EQ(Cell(1, 5), "second");
    Run(downButton);
    EXPECT_EQ(Cell(2, 5), "second");
    EXPECT_EQ(Table().CurrentRow(), 2);
    Run(downButton);
    EXPECT_EQ(Cell(2, 5), "second") << "not past a blank row";
    ExpectNoChanges(closeButton);
}

TEST_F(Managing, AMoveThatIsRefusedDropsWhatWasNotEntered) {
    OpenWith(twoRecords);
    for (const auto& [row, button] : {std::pair(2, downButton), std::pair(4, upButton)}) {
        ClickCell(row, 5);
        const std::string shown = Edited();
        QTest::keyClicks(&Edit(), QStringLiteral("typed"));
        Run(button);
        EXPECT_EQ(Edited(), shown);
        EXPECT_EQ(Table().CurrentRow(), row);
        EXPECT_EQ(CurrentColumn(), 5);
    }
    ClickCell(1, 5);
    QTest::keyClicks(&Edit(), QStringLiteral("typed"));
    Run(upButton);
    EXPECT_EQ(Edited(), "typed") << "above the first row nothing happens at all";
    ExpectNoChanges(closeButton);
}

TEST_F(Managing, TheTotalOfLossesAndAWinCarriesNoGhost) {
    OpenWith(
        "\"\",\"\",\"\",\"\",\"0.30\",\"\"\r\n\"\",\"\",\"\",\"\",\"-0.10\",\"\"\r\n"
        "\"\",\"\",\"\",\"\",\"-0.20\",\"\"\r\n");
    EXPECT_EQ(TotalText(),
              "\xA3"
              "0.00");
    EXPECT_EQ(TotalShown().Colour(), black);
    EXPECT_EQ(Table().CellColour(1, 4), black);
    EXPECT_EQ(Table().CellColour(2, 4), darkRed);
    EXPECT_EQ(Table().CellColour(3, 4), darkRed);
}

TEST_F(Managing, ATypedBalanceOnlyLeavesItsColour) {
    OpenWith("\"\",\"\",\"1\",\"5\",\"4\",\"\"\r\n");
    Enter(1, 4, "-9");
    EXPECT_EQ(Cell(1, 4),
              "\xA3"
              "4.00");
    EXPECT_EQ(Table().CellColour(1, 4), darkRed);
}

TEST_F(Managing, RowsAtTheEndAreMovedAndKeptAsTold) {
    std::string diary;
    for (int row = 1; row <= 998; ++row) {
        diary += "\"\",\"" + std::to_string(row) + "\",\"\",\"\",\"\",\"\"\r\n";
    }
    OpenWith(diary + "\"\",\"999\",\"\",\"\",\"\",\"last\"\r\n");
    ClickCell(998, 1);
    Run(downButton);
    EXPECT_EQ(Cell(999, 1), "998");
    EXPECT_EQ(Cell(998, 1), "999");
    Run(downButton);
    Run(deleteButton);
    EXPECT_EQ(Cell(999, 1), "998");
    const auto before = test_.folder.Snapshot();
    Enter(999, 5, "beyond");
    EXPECT_TRUE(TakeFailure().has_value()) << "there is no row 1000";
    ClickCell(1, 1);
    Run(deleteButton);
    EXPECT_TRUE(TakeFailure().has_value()) << "no blank row follows";
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(Managing, SavesDetailsAndDiaryAndCloses) {
    OpenWith(twoRecords);
    Type(*form_, "Text1(7)", QStringLiteral(" Champions "));
    Type(*form_, "Text1(1)", QStringLiteral(" 2, Low Street "));
    Enter(3, 1, "9");
    test_.state.Members(1, 0) = "unsaved";
    Save();
    EXPECT_EQ(Member(0, 10), "Champions");
    EXPECT_EQ(Member(0, 1), "2, Low Street");
    EXPECT_EQ(Diary(), std::string(twoRecords) +
                           "\"\",\"9\",\"\",\"\",\"\xA3"
                           "0.00\",\"\"\r\n");
    EXPECT_NE(test_.folder.Read("SMembers.000").find("unsaved"), std::string::npos);
}

TEST_F(Managing, ABlankLineCutsOffWhatStandsBehindIt) {
    OpenWith(twoRecords);
    Enter(4, 5, "lost");
    Save();
    EXPECT_EQ(Diary(), twoRecords);
}

TEST_F(Managing, WithoutARecordTheDiaryHasNoBytes) {
    Open();
    Save();
    EXPECT_EQ(Diary(), "");
}

TEST_F(Managing, AsksForTwoNames) {
    Open();
    const auto before = test_.folder.Snapshot();
    for (const char* box : {"Text1(7)", "Text1(0)"}) {
        const QString text = Box(box).text();
        Box(box).setText(QStringLiteral("  "));
        test_.messages.Expect(noNames);
        Run(saveButton);
        EXPECT_TRUE(form_->isVisible());
        Box(box).setText(text);
    }
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(Managing, ChangedDetailsNeverReachTheMembersUnsaved) {
    Open();
    Type(*form_, "Text1(0)", QStringLiteral("Eve"));
    test_.messages.Expect(unsaved, Answer::Ok);
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(Member(0, 0), "Ann");
}

TEST_F(Managing, EnterInABoxOfDetailsEntersNothing) {
    OpenWith("\"\",\"\",\"1\",\"5\",\"99\",\"\"\r\n");
    Box("Text1(0)").setFocus();
    QTest::keyClick(&Box("Text1(0)"), Qt::Key_Return);
    EXPECT_EQ(Cell(1, 4),
              "\xA3"
              "99.00");
    EXPECT_TRUE(form_->isVisible());
    ExpectNoChanges(closeButton);
}

TEST_F(Managing, WhereTheDiaryCannotBeWrittenTheMembersAreSaved) {
    OpenWith(twoRecords);
    Type(*form_, "Text1(0)", QStringLiteral("Eve"));
    // Both files are read, the members are read again, kept (four steps) and written, the diary is
    // read again, and then written.
    test_.folder.FailAtOperation(9);
    Run(saveButton);
    test_.folder.FailAtOperation(std::nullopt);
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_NE(test_.folder.Read("SMembers.000").find("\"Eve\""), std::string::npos);
    EXPECT_EQ(Diary(), twoRecords);
}

TEST_F(Managing, WhereTheMembersCannotBeWrittenNothingIs) {
    OpenWith(twoRecords);
    Type(*form_, "Text1(0)", QStringLiteral("Eve"));
    Enter(3, 1, "9");
    const auto before = test_.folder.Snapshot();
    test_.folder.FailAfterBytes(100);
    Run(saveButton);
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(Managing, ADiaryCutShortEndsTheRun) {
    for (const char* diary : {"\"\",\"\"\r\n", "\"\",\"\",\"\",\"\",\"\",\"\"\r\n\r\n"}) {
        test_.folder.Write("Diary.000", diary);
        SManager form(test_.program, nullptr);
        EXPECT_THROW(form.Load(), Failure);
    }
}

TEST_F(Managing, GermanAmountsReturnToTheirCells) {
    UseRegion(QLocale::German, QLocale::Germany);
    Open();
    Enter(1, 2, "12.5");
    EXPECT_EQ(Cell(1, 2), "12,50 \x80");
    EXPECT_EQ(Cell(1, 4), "-12,50 \x80");
    ClickCell(1, 2);
    EXPECT_EQ(Edited(), "12,50");
    QTest::keyClick(&Edit(), Qt::Key_Return);
    EXPECT_EQ(Cell(1, 2), "12,50 \x80") << "what is shown can be entered again";
    Enter(1, 3, "1234.5");
    EXPECT_EQ(Cell(1, 3), "1.234,50 \x80");
    EXPECT_EQ(Cell(1, 4), "-11,50 \x80");
    Save();
    EXPECT_EQ(Diary(), "\"\",\"\",\"12,50 \x80\",\"1.234,50 \x80\",\"-11,50 \x80\",\"\"\r\n");
    Open();
    EXPECT_EQ(Row(1), "||12,50 \x80|1,00 \x80|-11,50 \x80|");
    EXPECT_EQ(TotalText(), "-11,50 \x80");
}

TEST_F(Managing, ADiaryOfAnotherRegionKeepsItsFile) {
    UseRegion(QLocale::English, QLocale::UnitedStates);
    OpenWith(twoRecords);
    EXPECT_EQ(Row(1), "01-Jun-2005|5|$0.00|$0.00|$0.00|first");
    ExpectNoChanges(closeButton);
    EXPECT_EQ(Diary(), twoRecords);
}

TEST_F(Managing, PrintsTheDiaryWithItsHead) {
    Open();
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
    DiaryFrame frame;
    test_.services.printDiary = [&](Form*, Grid&, const DiaryFrame& printed) { frame = printed; };
    OpenWith(twoRecords);
    ClickCell(2, 3);
    Run(printButton);
    EXPECT_EQ(frame.syndicate, QStringLiteral("Winners"));
    EXPECT_EQ(frame.manager, QStringLiteral("Ann"));
    EXPECT_EQ(frame.address[0], QStringLiteral("1, High Street"));
    EXPECT_EQ(frame.address[1], QStringLiteral("Town"));
    EXPECT_EQ(frame.phone, QStringLiteral("555"));
    EXPECT_EQ(frame.email, QStringLiteral("ann@x"));
    EXPECT_EQ(FromQString(frame.total),
              "\xA3"
              "2.00");
    EXPECT_EQ(Table().CurrentRow(), 1);
    EXPECT_EQ(CurrentColumn(), 1);
}

TEST_F(Managing, ADiaryThatWasChangedOutsideIsReadAnewAndTheOneShownIsKept) {
    OpenWith(twoRecords);
    Enter(1, 5, "mine");
    const std::string outside = "\"01-Jun-2005\",\"5\",\"\",\"\",\"\",\"theirs\"\r\n";
    test_.folder.Write("Diary.000", outside);
    test_.messages.Expect(ChangedOutsideMessage("Diary.000"));
    Run(saveButton);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(Diary(), outside);
    EXPECT_EQ(Cell(1, 5), "theirs");
    EXPECT_EQ(Cell(2, 5), "");
    EXPECT_EQ(Row(0), "Date|Tickets|Cost|Won|Balance|Notes");
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cell(1, 5), "theirs");
    EXPECT_NE(test_.folder.OldFiles().rbegin()->second.find("mine"), std::string::npos);
    Save();
}

TEST_F(Managing, DetailsAndDiaryAreBothRescuedWhereNeitherCanBeSaved) {
    OpenWith(twoRecords);
    test_.folder.OfferRescue();
    Enter(1, 5, "mine");
    Box("Text1(0)").setText(QStringLiteral("Zoe"));
    test_.folder.FailAfterBytes(0);
    Run(saveButton);
    const std::string failure = TakeFailure().value_or("");
    EXPECT_NE(failure.find("kept in elsewhere/SMembers.000"), std::string::npos) << failure;
    EXPECT_NE(failure.find("kept in elsewhere/Diary.000"), std::string::npos) << failure;
    EXPECT_NE(test_.folder.Rescued().at("SMembers.000").find("Zoe"), std::string::npos);
    EXPECT_NE(test_.folder.Rescued().at("Diary.000").find("mine"), std::string::npos);
}

TEST_F(Managing, DetailsThatWereChangedOutsideAreReadAnewAndTheDiaryShownStays) {
    OpenWith(twoRecords);
    Enter(1, 5, "mine");
    Box("Text1(0)").setText(QStringLiteral("Zoe"));
    std::string outside = test_.folder.Read("SMembers.000");
    outside.replace(outside.find("Ann"), 3, "Ben");
    test_.folder.Write("SMembers.000", outside);
    test_.messages.Expect(ChangedOutsideMessage("SMembers.000"));
    Run(saveButton);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(test_.folder.Read("SMembers.000"), outside);
    EXPECT_EQ(Box("Text1(0)").text(), QStringLiteral("Ben"));
    EXPECT_EQ(Cell(1, 5), "mine");
    EXPECT_NE(test_.folder.OldFiles().rbegin()->second.find("\"Zoe\""), std::string::npos);
    Save();
    EXPECT_NE(Diary().find("mine"), std::string::npos);
}

TEST_F(Managing, TheDiaryIsKeptBeforeARecordIsDeleted) {
    OpenWith(twoRecords);
    ClickCell(1, 1);
    Run(deleteButton);
    Save();
    ASSERT_EQ(test_.folder.OldFiles().size(), 1U);
    EXPECT_EQ(test_.folder.OldFiles().begin()->second, twoRecords);
}

}  // namespace
