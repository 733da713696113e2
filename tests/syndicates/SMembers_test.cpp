// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SMembers.h"

#include <QComboBox>

#include "tests/support/hourglass_watch.h"
#include "tests/syndicates/syndicate_form.h"

namespace {

constexpr auto nameBox = "Text1(0)";
constexpr auto phoneBox = "Text1(5)";
constexpr auto addButton = "Command1";
constexpr auto deleteButton = "Command2";
constexpr auto closeButton = "Command3";
constexpr auto saveButton = "Command4";
constexpr auto clearButton = "Command5";
constexpr auto printButton = "Command6";
constexpr auto sortButton = "Command7";

const Message saved{.title = QStringLiteral("Lottery Quillon"),
                    .text = QStringLiteral("  Syndicate member list saved...  "),
                    .sign = Sign::Information};

const Message selectFirst{.title = QStringLiteral("Help"),
                          .text = QStringLiteral("Select a member first!    "),
                          .sign = Sign::Exclamation};

class EditingMembers : public SyndicateForm<SMembers> {
  protected:
    std::string Names() {
        QStringList names;
        for (int row = 0; row < List().count(); ++row) names << List().item(row)->text();
        return names.join(QLatin1Char(',')).toStdString();
    }

    ComboList& PayBy() { return *Find<ComboList>(*form_, "Combo1"); }

    void Add(const char* name) {
        Type(*form_, nameBox, QLatin1String(name));
        Run(addButton);
    }
};

TEST_F(EditingMembers, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Syndicate Members"));
    const std::map<const char*, const char*> labels = {
        {"Label1", "Syndicate Members"},
        {"Label2(0)", "Name:"},
        {"Label2(1)", "Address:"},
        {"Label2(2)", "Phone:"},
        {"Label2(3)", "Email:"},
        {"Label2(4)", "Members:"},
        {"Label2(5)", "Pay by:"},
        {"Label3", "Winners"},
        {"Label4", "Ann"},
        {"Label5", "Manager:"},
        {"Label6", "Syndicate:"},
        {"Label7",
         "Enter each syndicate member's details and click the Add button. To change a member's "
         "details, select him/her in the Members list, change the details, and then click Add. "
         "The member's details are then updated. Click Clear to clear the input boxes - it does "
         "not affect the members list. Sort will sort by last name."}};
    for (const auto& [name, text] : labels) EXPECT_EQ(Label(name), QLatin1String(text));
    const std::map<const char*, const char*> tips = {
        {addButton, " Add new member or update exisitng member "},
        {deleteButton, " Delete the member selected in the Members list "},
        {clearButton, "Clear the input boxes"},
        {sortButton, "Sort the members by last name"},
        {printButton, "Print out all member details"},
        {saveButton, "Save the change and close the form"},
        {closeButton, "Close without saving any changes you made"}};
    for (const auto& [name, text] : tips) EXPECT_EQ(Tip(name), QLatin1String(text));
    for (const auto& [name, text] :
         {std::pair(addButton, "Add"), std::pair(deleteButton, "Delete"),
          std::pair(clearButton, "Clear"), std::pair(sortButton, "Sort")}) {
        EXPECT_EQ(Caption(name), QLatin1String(text));
    }
}

TEST_F(EditingMembers, OffersFourWaysToPayTheFirstChosen) {
    Open();
    ASSERT_EQ(PayBy().count(), 4);
    EXPECT_EQ(PayBy().itemText(1), QStringLiteral("Cheque"));
    EXPECT_EQ(PayBy().itemText(2), QStringLiteral("Credit/debit card"));
    EXPECT_EQ(PayBy().itemText(3), QStringLiteral("Internet transfer"));
    EXPECT_EQ(PayBy().currentText(), QStringLiteral("Cash"));
    EXPECT_FALSE(PayBy().isEditable());
}

TEST_F(EditingMembers, AddsATrimmedNameAndLeavesTheWayToPay) {
    Open();
    PayBy().SetIndex(2);
    Type(*form_, phoneBox, QStringLiteral(" 777 "));
    Add("  Bob ");
    EXPECT_EQ(Names(), "Bob");
    EXPECT_EQ(Member(1, 0), "Bob");
    EXPECT_EQ(Member(1, 5), "777");
    EXPECT_EQ(Member(1, 7), "Credit/debit card");
    EXPECT_EQ(Box(nameBox).text(), QString());
    EXPECT_EQ(Box(phoneBox).text(), QString());
    EXPECT_TRUE(Box(nameBox).hasFocus());
    EXPECT_EQ(PayBy().Index(), 2);
    EXPECT_EQ(List().Index(), -1);
    ExpectChanges(closeButton);
}

TEST_F(EditingMembers, AddsNothingWithoutAName) {
    Open();
    Type(*form_, phoneBox, QStringLiteral("777"));
    Add("   ");
    EXPECT_EQ(Names(), "");
    EXPECT_EQ(Box(phoneBox).text(), QStringLiteral("777"));
    ExpectNoChanges(closeButton);
}

TEST_F(EditingMembers, UpdatesAMemberAndKeepsHisPayments) {
    AddMembers({"Bob"});
    test_.state.Members(1, 8) = "25";
    test_.state.Members(1, 9) = "01-Jul-2005";
    Open();
    Type(*form_, phoneBox, QStringLiteral("777"));
    Add("Bob");
    EXPECT_EQ(Names(), "Bob");
    EXPECT_EQ(Member(1, 5), "777");
    EXPECT_EQ(Member(1, 8), "25");
    EXPECT_EQ(Member(1, 9), "01-Jul-2005");
    Add("BOB");
    EXPECT_EQ(Names(), "Bob,BOB");
}

TEST_F(EditingMembers, ShowsTheMemberThatIsSelected) {
    AddMembers({"Bob", "Cid"});
    test_.state.Members(2, 4) = "Town";
    test_.state.Members(2, 6) = "cid@x";
    test_.state.Members(2, 7) = "Internet transfer";
    Open();
    List().SetIndex(1);
    EXPECT_EQ(Box(nameBox).text(), QStringLiteral("Cid"));
    EXPECT_EQ(Box("Text1(4)").text(), QStringLiteral("Town"));
    EXPECT_EQ(Box("Text1(6)").text(), QStringLiteral("cid@x"));
    EXPECT_EQ(PayBy().Index(), 3);
    ExpectNoChanges(closeButton);
}

TEST_F(EditingMembers, TypingAloneIsNoChange) {
    AddMembers({"Bob"});
    Open();
    Type(*form_, phoneBox, QStringLiteral("777"));
    PayBy().SetIndex(1);
    ExpectNoChanges(closeButton);
}

TEST_F(EditingMembers, SelectingAMemberOfAnUnknownWayToPayEndsTheRun) {
    AddMembers({"Bob"});
    for (const char* method : {"", "Gold"}) {
        test_.state.Members(1, 7) = method;
        Open();
        const QPoint place = List().visualItemRect(List().item(0)).center();
        QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        EXPECT_EQ(TakeFailure(),
                  "SMembers.000, member \"Bob\": expected one of the four ways to pay, but \"" +
                      std::string(method) + "\" stands there.");
    }
}

TEST_F(EditingMembers, DeletesTheSelectedMemberWithoutAQuestion) {
    AddMembers({"Bob", "Cid", "Dan"});
    Open();
    List().SetIndex(1);
    Run(deleteButton);
    EXPECT_EQ(Names(), "Bob,Dan");
    EXPECT_EQ(List().Index(), -1);
    EXPECT_EQ(Box(nameBox).text(), QString());
    EXPECT_TRUE(Box(nameBox).hasFocus());
    ExpectChanges(closeButton);
}

TEST_F(EditingMembers, DeletesUnderTheHourglass) {
    AddMembers({"Bob", "Cid"});
    Open();
    List().SetIndex(0);
    const HourglassWatch watch(Box(nameBox), QEvent::FocusIn);
    Run(deleteButton);
    EXPECT_EQ(watch.Events(), 1);
    EXPECT_EQ(watch.UnderHourglass(), 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(EditingMembers, AsksForAMemberToDelete) {
    AddMembers({"Bob"});
    Open();
    test_.messages.Expect(selectFirst);
    Run(deleteButton);
    EXPECT_EQ(Names(), "Bob");
    ExpectNoChanges(closeButton);
}

TEST_F(EditingMembers, DeletesTheFirstOfTwoNamesakes) {
    AddMembers({"Bob", "Cid", "Dan"});
    test_.state.Members(3, 0) = "Bob";
    Open();
    List().SetIndex(2);
    Run(deleteButton);
    EXPECT_EQ(Names(), "Cid,Bob");
}

TEST_F(EditingMembers, ClearsTheBoxesAndTheSelectionButNotTheMembers) {
    AddMembers({"Bob"});
    test_.state.Members(1, 7) = "Cheque";
    Open();
    List().SetIndex(0);
    Run(clearButton);
    EXPECT_EQ(Box(nameBox).text(), QString());
    EXPECT_EQ(List().Index(), -1);
    EXPECT_EQ(PayBy().Index(), 1);
    EXPECT_EQ(Names(), "Bob");
    ExpectNoChanges(closeButton);
}

TEST_F(EditingMembers, SortsByTheFirstCharactersOfTheNames) {
    AddMembers({"Zoe Adams", "Bob Young"});
    Open();
    Type(*form_, nameBox, QStringLiteral("typed"));
    Run(sortButton);
    EXPECT_EQ(Names(), "Bob Young,Zoe Adams");
    EXPECT_EQ(Box(nameBox).text(), QString());
    ExpectChanges(closeButton);
}

TEST_F(EditingMembers, SortsNothingBelowTwoMembers) {
    AddMembers({"Bob"});
    Open();
    List().SetIndex(0);
    Run(sortButton);
    EXPECT_EQ(List().Index(), 0);
    EXPECT_EQ(Box(nameBox).text(), QStringLiteral("Bob"));
    ExpectNoChanges(closeButton);
}

TEST_F(EditingMembers, SavesAndStaysOpen) {
    Open();
    Add("Bob");
    test_.messages.Expect(saved);
    Run(saveButton);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_NE(test_.folder.Read("SMembers.000").find("\"Bob\""), std::string::npos);
    ExpectNoChanges(closeButton);
}

TEST_F(EditingMembers, KeepsTheListElsewhereWhereTheSettingsNameNoSyndicateAnyMore) {
    Open();
    Add("Bob");
    test_.state.Settings(setting::SyndicateFile).clear();
    const std::string before = test_.folder.Read("SMembers.000");
    test_.messages.Expect(saved);
    Run(saveButton);
    EXPECT_EQ(test_.folder.Read("SMembers.000"), before);
    ASSERT_EQ(test_.folder.OldFiles().size(), 1U);
    EXPECT_NE(test_.folder.OldFiles().begin()->second.find("\"Bob\""), std::string::npos);
    EXPECT_EQ(Label("Said"),
              QStringLiteral("No syndicate is open any more: all this is kept in Backup/Undo"));
}

TEST_F(EditingMembers, KeepsUnsavedChangesInMemoryWhenItCloses) {
    Open();
    Add("Bob");
    const auto before = test_.folder.Snapshot();
    test_.messages.Expect(unsaved, Answer::Ok);
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(Member(1, 0), "Bob");
    EXPECT_EQ(test_.folder.Snapshot(), before);
    Open();
    EXPECT_EQ(Names(), "Bob");
    ExpectNoChanges(closeButton);
}

TEST_F(EditingMembers, MoreThanAHundredEndTheRunAndLeaveTheFile) {
    std::vector<std::string> names;
    for (int number = 1; number <= 100; ++number)
        names.push_back("Member " + std::to_string(number));
    AddMembers(names);
    Open();
    const auto before = test_.folder.Snapshot();
    Add("Zoe");
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_EQ(test_.folder.Snapshot(), before);
    Type(*form_, phoneBox, QStringLiteral("777"));
    Add("Member 100");
    EXPECT_EQ(Member(100, 5), "777");
}

TEST_F(EditingMembers, AFailingWriteLeavesTheFile) {
    Open();
    Add("Bob");
    const auto before = test_.folder.Snapshot();
    test_.folder.FailAfterBytes(10);
    Run(saveButton);
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(EditingMembers, PrintsWhereThereIsAPrinter) {
    Open();
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
    Form* printed = nullptr;
    test_.services.printMembers = [&](Form* form) { printed = form; };
    Open();
    Run(printButton);
    EXPECT_EQ(printed, form_.get());
}

TEST_F(EditingMembers, ShowsNamesAsTheyStand) {
    test_.state.Members(0, 10) = "<b>Club</b>";
    Open();
    EXPECT_EQ(Find<QLabel>(*form_, "Label3")->textFormat(), Qt::PlainText);
    EXPECT_EQ(Label("Label3"), QStringLiteral("<b>Club</b>"));
}

TEST_F(EditingMembers, ThatWereChangedOutsideAreReadAnewAndThoseShownAreKept) {
    AddMembers({"Bob"});
    const std::string outside = test_.folder.Read("SMembers.000");
    AddMembers({"Cid"});
    Open();
    Add("Dan");
    test_.folder.Write("SMembers.000", outside);
    test_.messages.Expect(ChangedOutsideMessage("SMembers.000"));
    Run(saveButton);
    EXPECT_EQ(test_.folder.Read("SMembers.000"), outside);
    EXPECT_EQ(Names(), "Bob");
    EXPECT_NE(test_.folder.OldFiles().rbegin()->second.find("\"Dan\""), std::string::npos);
    test_.messages.Expect(saved);
    Run(saveButton);
    ExpectNoChanges(closeButton);
}

TEST_F(EditingMembers, AreKeptBeforeOneIsDeleted) {
    AddMembers({"Bob", "Cid"});
    const std::string before = test_.folder.Read("SMembers.000");
    Open();
    List().SetIndex(0);
    Run(deleteButton);
    test_.messages.Expect(saved);
    Run(saveButton);
    ASSERT_EQ(test_.folder.OldFiles().size(), 1U);
    EXPECT_EQ(test_.folder.OldFiles().begin()->second, before);
}

}  // namespace
