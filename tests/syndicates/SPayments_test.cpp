// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SPayments.h"

#include "tests/syndicates/syndicate_form.h"

namespace {

using std::chrono::June;

constexpr auto amountBox = "Text1";
constexpr auto enterButton = "Command10";
constexpr auto saveButton = "Command1";
constexpr auto printButton = "Command6";
constexpr auto closeButton = "Command2";

const QColor red(192, 0, 0);

const Message saved{.title = QStringLiteral("Lottery Quillon"),
                    .text = QStringLiteral("  Member payments have been saved...  "),
                    .sign = Sign::Information};

class Paying : public SyndicateForm<SPayments> {
  protected:
    Paying() { AddMembers({"Bob", "Cid"}); }

    void SetPayment(int row, const char* method, const char* amount, const char* date) {
        test_.state.Members(row, 7) = method;
        test_.state.Members(row, 8) = amount;
        test_.state.Members(row, 9) = date;
    }

    DatePicker& PaidUpTo() { return *Find<DatePicker>(*form_, "DTPicker1"); }
    ComboList& PayBy() { return *Find<ComboList>(*form_, "Combo1"); }

    void Enter(const char* amount) {
        Box(amountBox).setText(QLatin1String(amount));
        Run(enterButton);
    }
};

TEST_F(Paying, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Syndicate Member Payments"));
    const std::map<const char*, const char*> labels = {
        {"Label1", "Syndicate member payments"},
        {"Label2", "Pay by:"},
        {"Label2(1)",
         "Record each member's payments by entering the amount they have paid and the date they "
         "have paid up to. This date is effectively the date the next payment is due. Members can "
         "pay each week, or they can pay several weeks in advance - just set the date as "
         "appropriate."},
        {"Label3", "Paid up to:"},
        {"Label4", "Payment:"}};
    for (const auto& [name, text] : labels) EXPECT_EQ(Label(name), QLatin1String(text));
    EXPECT_EQ(Caption(enterButton), QStringLiteral("Enter"));
    EXPECT_EQ(Tip(enterButton), QStringLiteral(" Change cell value "));
    EXPECT_EQ(Tip(saveButton), QStringLiteral(" Save the changes "));
    EXPECT_EQ(Tip(printButton), QStringLiteral("Print out the lottery entries"));
    EXPECT_EQ(Tip(closeButton), QStringLiteral(" Close Window "));
    EXPECT_EQ(PaidUpTo().displayFormat(), QStringLiteral("ddd d MMM yyyy"));
    EXPECT_EQ(Table().RowCount(), 101);
    EXPECT_EQ(Table().ColumnCount(), 5);
    EXPECT_EQ(Cell(0, 0), "Name");
    EXPECT_EQ(Cell(0, 1), "Pay by");
    EXPECT_EQ(Cell(0, 2), "Amount paid");
    EXPECT_EQ(Cell(0, 3), "Paid up to date");
}

TEST_F(Paying, AlignsItsColumns) {
    Open();
    const auto alignment = [this](int column) {
        return Table()
                   .model()
                   ->index(0, column)
                   .data(Qt::TextAlignmentRole)
                   .value<Qt::Alignment>() &
               Qt::AlignHorizontal_Mask;
    };
    EXPECT_EQ(alignment(0), Qt::AlignLeft);
    EXPECT_EQ(alignment(1), Qt::AlignHCenter);
    EXPECT_EQ(alignment(2), Qt::AlignRight);
    EXPECT_EQ(alignment(3), Qt::AlignHCenter);
}

TEST_F(Paying, ShowsTheManagerFirstAndTheMembersBelow) {
    SetPayment(0, "Cheque", "5.", "1 July 2005");
    SetPayment(1, "Cash", "1234.5", "");
    SetPayment(2, "Gold", "0.001", "31-May-2005");
    Open();
    EXPECT_EQ(Cell(1, 0), "Ann");
    EXPECT_EQ(Cell(1, 1), "(Manager)");
    EXPECT_EQ(Cell(1, 2),
              "\xA3"
              "5.00");
    EXPECT_EQ(Cell(1, 3), "1 July 2005");
    EXPECT_EQ(Cell(2, 1), "Cash");
    EXPECT_EQ(Cell(2, 2),
              "\xA3"
              "1,234.50");
    EXPECT_EQ(Cell(3, 1), "Gold");
    EXPECT_EQ(Cell(3, 2),
              "\xA3"
              "0.00");
    EXPECT_EQ(Cell(4, 0), "");
    EXPECT_EQ(Cell(4, 2), "");
    EXPECT_EQ(Member(0, 7), "Cheque");
    EXPECT_EQ(PayBy().currentText(), QStringLiteral("Cheque"));
    EXPECT_EQ(Box(amountBox).text(), QStringLiteral("5."));
    EXPECT_EQ(Table().CurrentRow(), 1);
    ExpectNoChanges(closeButton);
}

TEST_F(Paying, MarksOverdueDatesRed) {
    SetPayment(0, "", "", "01-Jun-2005");
    SetPayment(1, "", "", "31-May-2005");
    SetPayment(2, "", "", "");
    Open();
    EXPECT_EQ(Table().CellColour(1, 3), QColor(Qt::black)) << "today is not overdue";
    EXPECT_EQ(Table().CellColour(2, 3), red);
    EXPECT_EQ(Table().CellColour(3, 3), red);
}

TEST_F(Paying, ADateThatIsNoneEndsTheRun) {
    SetPayment(1, "Cash", "5", "soon");
    SPayments form(test_.program, nullptr);
    EXPECT_THROW(form.Load(), Failure);
}

TEST_F(Paying, ThePickerShowsNoDateInThePast) {
    SetPayment(0, "", "", "31-May-2005");
    SetPayment(1, "", "", "15-Jun-2005");
    Open();
    EXPECT_EQ(PaidUpTo().Value(), test_.today);
    ClickCell(2, 0);
    EXPECT_EQ(PaidUpTo().Value(), Date(test_.today.year() / June / 15));
    ClickCell(3, 2);
    EXPECT_EQ(PaidUpTo().Value(), test_.today);
}

TEST_F(Paying, AnUnknownWayToPayStaysAsTheRowBeforeSetIt) {
    SetPayment(0, "", "", "");
    SetPayment(1, "Internet transfer", "", "");
    SetPayment(2, "Gold", "", "");
    Open();
    EXPECT_EQ(PayBy().currentText(), QStringLiteral("Cash"));
    ClickCell(2, 1);
    EXPECT_EQ(PayBy().Index(), 3);
    ClickCell(3, 1);
    EXPECT_EQ(PayBy().Index(), 3);
}

TEST_F(Paying, ARowIsMarkedAndItsAmountReadyToBeReplaced) {
    SetPayment(1, "Cash", "007.50", "");
    Open();
    ClickCell(2, 0);
    EXPECT_EQ(Table().CurrentRow(), 2);
    EXPECT_TRUE(Table().selectionModel()->isRowSelected(1));
    EXPECT_EQ(Box(amountBox).selectedText(), QStringLiteral("007.50"));
    EXPECT_TRUE(Box(amountBox).hasFocus());
}

TEST_F(Paying, EntersAPayment) {
    Open();
    ClickCell(2, 0);
    PayBy().SetIndex(1);
    PaidUpTo().SetValue(test_.today.year() / June / 30);
    Enter(" 007.50 ");
    EXPECT_EQ(Cell(2, 1), "Cheque");
    EXPECT_EQ(Cell(2, 2),
              "\xA3"
              "7.50");
    EXPECT_EQ(Cell(2, 3), "30-Jun-2005");
    EXPECT_EQ(Member(1, 7), "Cheque");
    EXPECT_EQ(Member(1, 8), "007.50");
    EXPECT_EQ(Member(1, 9), "30-Jun-2005");
    EXPECT_EQ(Table().CellColour(2, 3), QColor(Qt::black));
    EXPECT_TRUE(Box(amountBox).hasFocus());
    Enter("5.");
    EXPECT_EQ(Member(1, 8), "5.") << "a second payment replaces the first";
    ExpectChanges(closeButton);
}

TEST_F(Paying, ADateInThePastIsEnteredInRed) {
    Open();
    PaidUpTo().SetValue(test_.today.year() / std::chrono::May / 31);
    Enter("5");
    EXPECT_EQ(Cell(1, 3), "31-May-2005");
    EXPECT_EQ(Table().CellColour(1, 3), red);
}

TEST_F(Paying, ThePaymentOfTheManagerShowsHisWayToPay) {
    SetPayment(0, "Cheque", "", "");
    Open();
    EXPECT_EQ(Cell(1, 1), "(Manager)");
    Enter("5");
    EXPECT_EQ(Cell(1, 1), "Cheque");
    EXPECT_EQ(Member(0, 8), "5");
}

TEST_F(Paying, NothingIsNoPayment) {
    Open();
    for (const char* amount : {"", "0", ".", "0.00", "99999999999999"}) {
        test_.messages.Expect(inputProblem);
        Enter(amount);
    }
    EXPECT_EQ(Member(0, 8), "");
    ExpectNoChanges(closeButton);
}

TEST_F(Paying, LittleIsAPayment) {
    Open();
    Enter("0.001");
    EXPECT_EQ(Member(0, 8), "0.001");
    EXPECT_EQ(Cell(1, 2),
              "\xA3"
              "0.00");
}

TEST_F(Paying, AnAmountStoredWithItsSymbolHasToBeTypedAnew) {
    SetPayment(0, "Cash",
               "\xA3"
               "25.00",
               "");
    Open();
    EXPECT_EQ(Cell(1, 2),
              "\xA3"
              "0.00");
    EXPECT_EQ(FromQString(Box(amountBox).text()),
              "\xA3"
              "25.00");
    test_.messages.Expect(inputProblem);
    Run(enterButton);
    EXPECT_EQ(Member(0, 8),
              "\xA3"
              "25.00");
}

TEST_F(Paying, ARowWithoutAPersonDoesNothing) {
    Open();
    ClickCell(4, 0);
    Enter("5");
    EXPECT_EQ(Cell(4, 2), "");
    EXPECT_EQ(Member(3, 8), "");
    test_.messages.Expect(inputProblem);
    Enter("0");
    ExpectNoChanges(closeButton);
}

TEST_F(Paying, TheAmountTakesDigitsAndPointsOnly) {
    Open();
    Box(amountBox).clear();
    QTest::keyClicks(&Box(amountBox), QStringLiteral("-1a2,.5\""));
    EXPECT_EQ(Box(amountBox).text(), QStringLiteral("12.5"));
    Box(amountBox).selectAll();
    Paste(Box(amountBox), QStringLiteral("\u00A31,234.50\n"));
    EXPECT_EQ(Box(amountBox).text(), QStringLiteral("1234.50"));
}

TEST_F(Paying, EnterInTheAmountDoesNothing) {
    Open();
    Box(amountBox).setText(QStringLiteral("5"));
    QTest::keyClick(&Box(amountBox), Qt::Key_Return);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(Member(0, 8), "");
    ExpectNoChanges(closeButton);
}

TEST_F(Paying, AmountsAreShownInTheFormOfTheRegionAndTypedWithAPoint) {
    UseRegion(QLocale::German, QLocale::Germany);
    SetPayment(0, "Cash", "1234.5", "");
    Open();
    EXPECT_EQ(Cell(1, 2), "1.234,50 \x80");
    Enter("7.25");
    EXPECT_EQ(Cell(1, 2), "7,25 \x80");
    EXPECT_EQ(Member(0, 8), "7.25");
    UseRegion(QLocale::Swedish, QLocale::Sweden);
    Open();
    EXPECT_EQ(Cell(1, 2), "7,25 kr");
    UseRegion(QLocale::English, QLocale::UnitedStates);
    Open();
    EXPECT_EQ(Cell(1, 2), "$7.25");
}

TEST_F(Paying, SavesAndStaysOpen) {
    Open();
    Enter("5");
    test_.messages.Expect(saved);
    Run(saveButton);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_NE(test_.folder.Read("SMembers.000").find("\"Cash\",\"5\",\"01-Jun-2005\""),
              std::string::npos);
    ExpectNoChanges(closeButton);
}

TEST_F(Paying, KeepsUnsavedPaymentsInMemoryWhenItCloses) {
    Open();
    Enter("5");
    test_.messages.Expect(unsaved, Answer::Ok);
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(Member(0, 8), "5");
}

TEST_F(Paying, AFailingWriteLeavesTheFile) {
    Open();
    Enter("5");
    const auto before = test_.folder.Snapshot();
    test_.folder.FailAfterBytes(10);
    Run(saveButton);
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(Paying, TheHundredthMemberEndsTheRun) {
    for (int row = 1; row <= 99; ++row) test_.state.Members(row, 0) = "Bob";
    Open();
    EXPECT_EQ(Cell(100, 0), "Bob");
    test_.state.Members(100, 0) = "Zoe";
    SPayments form(test_.program, nullptr);
    EXPECT_THROW(form.Load(), Failure);
}

TEST_F(Paying, PrintsTheGridWhereThereIsAPrinter) {
    Open();
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
    std::string printed;
    test_.services.printPayments = [&](Form*, Grid& grid) {
        printed = grid.Cell(2, 0).toStdString();
    };
    Open();
    Run(printButton);
    EXPECT_EQ(printed, "Bob");
}

TEST_F(Paying, PaymentsThatWereChangedOutsideAreReadAnewAndThoseShownAreKept) {
    const std::string all = test_.folder.Read("SMembers.000");
    AddMembers({"Dan"});
    Open();
    Enter("7.50");
    test_.folder.Write("SMembers.000", all);
    test_.messages.Expect(ChangedOutsideMessage("SMembers.000"));
    Run(saveButton);
    EXPECT_EQ(test_.folder.Read("SMembers.000"), all);
    EXPECT_EQ(Cell(3, 0), "Cid");
    EXPECT_EQ(Cell(4, 0), "");
    EXPECT_NE(test_.folder.OldFiles().rbegin()->second.find("\"7.50\""), std::string::npos);
    ExpectNoChanges(closeButton);
}

TEST_F(Paying, PaymentsAreKeptBeforeOneIsOverwritten) {
    SetPayment(1, "Cash", "5", "01-Jun-2005");
    SaveSyndicate(test_.state, test_.folder);
    const std::string before = test_.folder.Read("SMembers.000");
    test_.folder.SetNow(test_.folder.Now() + std::chrono::seconds(1));
    Open();
    ClickCell(2, 0);
    Enter("7.50");
    test_.messages.Expect(saved);
    Run(saveButton);
    EXPECT_EQ(test_.folder.OldFiles().rbegin()->second, before);
}

}  // namespace
