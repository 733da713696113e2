// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SNotes.h"

#include <QCheckBox>
#include <QPlainTextEdit>

#include "syndicates/syndicate_notes.h"
#include "tests/syndicates/syndicate_form.h"

namespace {

constexpr auto saveButton = "Command1";
constexpr auto closeButton = "Command2";
constexpr auto addButton = "Command3";
constexpr auto resetButton = "Command5";

const Message saved{.title = QStringLiteral("Lottery Quillon"),
                    .text = QStringLiteral("  Notes and checklist saved...  "),
                    .sign = Sign::Information};

const char* const firstFile =
    " 0 ,Update members list\r\n 0 ,Collect member payments\r\n 0 ,Analyse lottery draws\r\n"
    " 0 ,Generate lottery entries\r\n 0 ,Fill in payslips\r\n 0 ,Buy lottery tickets\r\n"
    " 0 ,Check lottery results\r\n 0 ,Distribute winnings to members!\r\n";

class TakingNotes : public SyndicateForm<SNotes> {
  protected:
    QPlainTextEdit& Note() { return *Find<QPlainTextEdit>(*form_, "Text1"); }
    QCheckBox& Item(int index) {
        return *Find<QCheckBox>(*form_, ("Check1(" + std::to_string(index) + ")").c_str());
    }

    std::string File() { return test_.folder.Read("SNotes.txt"); }

    void Save() {
        test_.messages.Expect(saved);
        Run(saveButton);
    }
};

TEST_F(TakingNotes, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Syndicate Notes"));
    const std::map<const char*, const char*> labels = {
        {"Label1",
         "Replace a checklist item with your own by clicking the Clear button, then entering the "
         "text below and clicking the Add button."},
        {"Label2",
         "Ctr+C=Copy   /   Ctrl+X=Cut   /   Ctrl+V=Paste Select with mouse or Shift+cursor keys"},
        {"Label3", " Notes:"},
        {"Label4",
         "Write notes and memos for your syndicates and use the checklist to remind you of tasks "
         "that still need to be done."},
        {"Label12", "   Checklist:"}};
    for (const auto& [name, text] : labels) EXPECT_EQ(Label(name), QLatin1String(text));
    EXPECT_EQ(Caption("Command4(0)"), QStringLiteral("Clear"));
    EXPECT_EQ(Tip("Command4(7)"), QStringLiteral("Clear this item"));
    EXPECT_EQ(Caption(addButton), QStringLiteral("Add"));
    EXPECT_EQ(Tip(addButton), QStringLiteral("Type in your checklist item and click Add"));
    EXPECT_EQ(Tip("Text2"), QStringLiteral("Clear an item and add your own checklist"));
    EXPECT_EQ(Tip(saveButton), QStringLiteral(" Save "));
    EXPECT_EQ(Tip(closeButton), QStringLiteral(" Close window "));
    EXPECT_EQ(Tip(resetButton), QStringLiteral(" Delete notes / reset checklist to defaults "));
}

TEST_F(TakingNotes, StartsWithItsOwnChecklist) {
    Open();
    Save();
    EXPECT_EQ(File(), firstFile);
    ExpectNoChanges(closeButton);
}

TEST_F(TakingNotes, ReturnsWithTheSameLinesAndTicks) {
    Open();
    Note().setPlainText(QStringLiteral("one\n\ntwo, \"three\"\n"));
    Click(*form_, "Check1(1)");
    Save();
    EXPECT_TRUE(File().ends_with("members!\r\none\r\n\r\ntwo, \"three\"\r\n"));
    EXPECT_NE(File().find(" 1 ,Collect member payments\r\n"), std::string::npos);
    Open();
    EXPECT_EQ(Note().toPlainText(), QStringLiteral("one\n\ntwo, \"three\"\n"));
    EXPECT_FALSE(Item(0).isChecked());
    EXPECT_TRUE(Item(1).isChecked());
    ExpectNoChanges(closeButton);
}

TEST_F(TakingNotes, BelongsToNoSyndicate) {
    Open();
    Note().setPlainText(QStringLiteral("for all"));
    Save();
    StartSyndicate(test_.state, test_.folder, {.syndicate = "Other", .manager = {"Eve"}});
    Open();
    EXPECT_EQ(Note().toPlainText(), QStringLiteral("for all"));
}

TEST_F(TakingNotes, ClearsAnItemWhichThenStaysEmpty) {
    Open();
    Click(*form_, "Check1(2)");
    Click(*form_, "Command4(2)");
    EXPECT_EQ(Item(2).text(), QString());
    EXPECT_FALSE(Item(2).isChecked());
    ExpectChanges(closeButton);
    Save();
    EXPECT_NE(File().find("\r\n 0 ,\r\n"), std::string::npos);
    Open();
    EXPECT_EQ(Item(2).text(), QString());
}

TEST_F(TakingNotes, AddsAnItemUntrimmedToTheFirstEmptyPlace) {
    Open();
    Click(*form_, "Command4(5)");
    Click(*form_, "Command4(2)");
    Type(*form_, "Text2", QStringLiteral(" Tom & \"Jerry\", too "));
    Run(addButton);
    EXPECT_EQ(Item(2).text(), QStringLiteral(" Tom && \"Jerry\", too "));
    EXPECT_EQ(Item(5).text(), QString());
    EXPECT_EQ(Box("Text2").text(), QStringLiteral(" Tom & \"Jerry\", too "));
    Save();
    EXPECT_NE(File().find("\r\n 0 , Tom & \"Jerry\", too \r\n"), std::string::npos);
    Open();
    EXPECT_EQ(Item(2).text(), QStringLiteral(" Tom && \"Jerry\", too "));
}

TEST_F(TakingNotes, AddingIsAChangeEvenWhereItDoesNothing) {
    Open();
    Type(*form_, "Text2", QStringLiteral("mine"));
    Run(addButton);
    EXPECT_EQ(Item(7).text(), QStringLiteral("Distribute winnings to members!"));
    ExpectChanges(closeButton);
    Click(*form_, "Command4(0)");
    Save();
    Box("Text2").clear();
    Run(addButton);
    EXPECT_EQ(Item(0).text(), QString());
    ExpectChanges(closeButton);
}

TEST_F(TakingNotes, TypingANewItemAloneIsNoChange) {
    Open();
    Type(*form_, "Text2", QStringLiteral("mine"));
    ExpectNoChanges(closeButton);
}

TEST_F(TakingNotes, ANoteAndATickAreChanges) {
    Open();
    QTest::keyClicks(&Note(), QStringLiteral("x"));
    ExpectChanges(closeButton);
    Save();
    Click(*form_, "Check1(0)");
    ExpectChanges(closeButton);
}

TEST_F(TakingNotes, ResetForgetsAllWithoutAQuestion) {
    Open();
    Note().setPlainText(QStringLiteral("gone"));
    Save();
    Note().setPlainText(QStringLiteral("never saved"));
    Run(resetButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_FALSE(test_.folder.Exists("SNotes.txt"));
    Open();
    EXPECT_EQ(Note().toPlainText(), QString());
    EXPECT_EQ(Item(0).text(), QStringLiteral("Update members list"));
    Run(resetButton);
    EXPECT_FALSE(form_->isVisible()) << "also without a file";
}

TEST_F(TakingNotes, AFileCutShortEndsTheRun) {
    test_.folder.Write("SNotes.txt", " 0 ,one\r\n");
    SNotes form(test_.program, nullptr);
    EXPECT_THROW(form.Load(), Failure);
}

TEST_F(TakingNotes, ClosesAfterTheWarning) {
    Open();
    Note().setPlainText(QStringLiteral("x"));
    test_.messages.Expect(unsaved, Answer::Ok);
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_FALSE(test_.folder.Exists("SNotes.txt"));
}

TEST_F(TakingNotes, AFailingWriteLeavesTheFile) {
    test_.folder.Write("SNotes.txt", firstFile);
    Open();
    Note().setPlainText(QStringLiteral("x"));
    test_.folder.FailAfterBytes(10);
    Run(saveButton);
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_EQ(File(), firstFile);
}

TEST_F(TakingNotes, AreKeptBeforeTheyAreReset) {
    SaveSyndicateNotes(test_.folder, {.checklist = {}, .note = "mine"});
    const std::string before = test_.folder.Read("SNotes.txt");
    Open();
    Run(resetButton);
    EXPECT_FALSE(test_.folder.Exists("SNotes.txt"));
    EXPECT_EQ(
        test_.folder.OldFiles(),
        (std::map<std::string, std::string>{{"Backup/Undo/2000-01-01 000000 SNotes.txt", before}}));
}

}  // namespace
