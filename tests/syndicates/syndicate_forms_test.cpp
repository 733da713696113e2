// SPDX-License-Identifier: GPL-3.0-or-later
// The three small forms that make, open and delete a syndicate.
#include "syndicates/DeleteSyndicate.h"
#include "syndicates/NewSyndicate.h"
#include "syndicates/OpenSyndicate.h"
#include "tests/syndicates/syndicate_form.h"

namespace {

const Message noNames{.title = QStringLiteral("Warning!"),
                      .text = QStringLiteral("Cannot create a syndicate without    \r\n"
                                             "a manager and a syndicate name...    "),
                      .sign = Sign::Exclamation};

const Message created{
    .title = QStringLiteral("New syndicate"),
    .text = QStringLiteral(" Syndicate created...      \r\n Syndicate opened...      "),
    .sign = Sign::Information};

const Message areYouSure{.title = QStringLiteral("Delete"),
                         .text = QStringLiteral("Are you sure?    "),
                         .sign = Sign::Question,
                         .buttons = Buttons::YesNo,
                         .discards = true};

using MakingASyndicate = SyndicateForm<NewSyndicate>;

template <typename FormType>
class ListOfSyndicates : public SyndicateForm<FormType> {
  protected:
    ListOfSyndicates() {
        StartSyndicate(this->test_.state, this->test_.folder,
                       {.syndicate = "Losers", .manager = {"Bob"}});
        this->test_.folder.Write("Diary.000", "");
        this->test_.folder.Write("Diary.001", "");
        this->Open();
    }

    std::string& File() { return this->test_.state.Settings(setting::SyndicateFile); }

    void DoubleClick(int index) {
        const QPoint place = this->List().visualItemRect(this->List().item(index)).center();
        QTest::mouseClick(this->List().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(this->List().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    bool There(const char* file) { return this->test_.folder.Exists(file); }
};

using OpeningASyndicate = ListOfSyndicates<OpenSyndicate>;
using DeletingASyndicate = ListOfSyndicates<DeleteSyndicate>;

TEST_F(MakingASyndicate, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Create syndicate"));
    const std::map<const char*, const char*> labels = {
        {"Label1", "New syndicate"},
        {"Label2(0)", "Syndicate name:"},
        {"Label2(1)", "Manager name:"},
        {"Label2(2)", "Address:"},
        {"Label2(3)", "Phone:"},
        {"Label2(4)", "Email:"},
        {"Label3",
         "A new lottery syndicate is created by giving it a name and manager. The other details "
         "are optional, but useful. Create as many lottery syndicates as you need."}};
    for (const auto& [name, text] : labels) EXPECT_EQ(Label(name), QLatin1String(text));
    EXPECT_EQ(Tip("Text1(7)"), QStringLiteral(" Essential information "));
    EXPECT_EQ(Tip("Text1(0)"), QStringLiteral(" Essential information "));
    EXPECT_EQ(Tip("Text1(1)"), QString());
    EXPECT_EQ(Tip("Command1"), QStringLiteral(" Save the syndicate "));
    EXPECT_EQ(Tip("Command3"), QStringLiteral(" Close "));
}

TEST_F(MakingASyndicate, TakesTheColoursOfTheSettings) {
    MakeDefaultSettings(test_.state, test_.folder);
    test_.state.Settings(setting::SkinBits) = "2";
    test_.state.Settings(setting::TitleColour) = "&H0000FF";
    test_.state.Settings(setting::BodyColour) = "&H00FF00";
    test_.state.Settings(setting::SmallLabelColour) = "&HFF0000";
    Open();
    const auto colour = [this](const char* label) {
        return Find<QLabel>(*form_, label)->palette().color(QPalette::WindowText);
    };
    EXPECT_EQ(colour("Label1"), QColor(255, 0, 0));
    EXPECT_EQ(colour("Label3"), QColor(0, 255, 0));
    EXPECT_EQ(colour("Label2(0)"), QColor(0, 0, 255));
    EXPECT_EQ(colour("Label2(4)"), QColor(0, 0, 255));
}

TEST_F(MakingASyndicate, AsksForTwoNamesBeforeItSavesTheOldOne) {
    Open();
    test_.state.Members(0, 0) = "changed";
    const auto before = test_.folder.Snapshot();
    for (const auto& [syndicate, manager] :
         {std::pair("", "Eve"), std::pair("  ", "Eve"), std::pair("Club", " ")}) {
        Box("Text1(7)").setText(QLatin1String(syndicate));
        Box("Text1(0)").setText(QLatin1String(manager));
        test_.messages.Expect(noNames);
        Run("Command1");
        EXPECT_TRUE(form_->isVisible());
    }
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(MakingASyndicate, ReadsTheOldOneAnewWhereItWasChangedOutsideAndMakesTheNewOneThen) {
    test_.state.Members(1, 0) = "Bob";
    Open();
    std::string outside = test_.folder.Read("SMembers.000");
    outside.replace(outside.find("Ann"), 3, "Ben");
    test_.folder.Write("SMembers.000", outside);
    Box("Text1(7)").setText(QStringLiteral("Club"));
    Box("Text1(0)").setText(QStringLiteral("Eve"));
    test_.messages.Expect(ChangedOutsideMessage("SMembers.000"));
    Run("Command1");
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(test_.folder.Read("SMembers.000"), outside);
    EXPECT_FALSE(test_.folder.Exists("SMembers.001"));
    EXPECT_NE(test_.folder.OldFiles().rbegin()->second.find("\"Bob\""), std::string::npos);
    test_.messages.Expect(created);
    Run("Command1");
    EXPECT_EQ(test_.folder.Read("SMembers.000"), outside);
    EXPECT_EQ(Member(0, 10), "Club");
}

TEST_F(MakingASyndicate, KeepsChangedMembersWhereTheSettingsNameNoSyndicateAnyMore) {
    const std::string before = test_.folder.Read("SMembers.000");
    test_.state.Members(1, 0) = "Bob";
    test_.state.Settings(setting::SyndicateFile).clear();
    Open();
    Box("Text1(7)").setText(QStringLiteral("Club"));
    Box("Text1(0)").setText(QStringLiteral("Eve"));
    test_.messages.Expect(created);
    Run("Command1");
    EXPECT_EQ(test_.folder.Read("SMembers.000"), before);
    ASSERT_EQ(test_.folder.OldFiles().size(), 1U);
    EXPECT_NE(test_.folder.OldFiles().begin()->second.find("\"Bob\""), std::string::npos);
}

TEST_F(MakingASyndicate, LeavesNoCopyWhereNoneWasOpenOrNoneWasChanged) {
    for (const bool open : {true, false}) {
        test_.state.Settings(setting::SyndicateFile).clear();
        if (!open) LoadSyndicate(test_.state, test_.folder);
        Open();
        Box("Text1(7)").setText(QStringLiteral("Club"));
        Box("Text1(0)").setText(QStringLiteral("Eve"));
        test_.messages.Expect(created);
        Run("Command1");
        EXPECT_TRUE(test_.folder.OldFiles().empty()) << open;
    }
}

TEST_F(MakingASyndicate, SavesTheOldOneAndOpensTheNew) {
    test_.state.Members(1, 0) = "Bob";
    Open();
    const std::array<const char*, 8> typed = {" Eve ", " a ", "b",   "c",
                                              "d",     "777", "e@x", " Club "};
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const std::string name = "Text1(" + std::to_string(i) + ")";
        Type(*form_, name.c_str(), QLatin1String(typed.at(i)));
    }
    test_.messages.Expect(created);
    Run("Command1");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(test_.state.Settings(setting::SyndicateFile), "SMembers.001");
    EXPECT_FALSE(test_.folder.Exists("quillon.ini")) << "the settings are written at other times";
    EXPECT_TRUE(test_.folder.Read("SMembers.001")
                    .starts_with("\"Eve\",\"a\",\"b\",\"c\",\"d\",\"777\",\"e@x\",\"\",\"\",\"\","
                                 "\"Club\"\r\n\"\""));
    EXPECT_NE(test_.folder.Read("SMembers.000").find("\"Bob\""), std::string::npos);
    EXPECT_EQ(Member(1, 0), "");
}

TEST_F(MakingASyndicate, ClosesWithoutAQuestionAndWithoutSaving) {
    Open();
    Type(*form_, "Text1(7)", QStringLiteral("Club"));
    Type(*form_, "Text1(0)", QStringLiteral("Eve"));
    const auto before = test_.folder.Snapshot();
    Run("Command3");
    EXPECT_FALSE(form_->isVisible());
    Open();
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(MakingASyndicate, LeavesAllFilesAsTheyWereWhereAWriteFails) {
    Open();
    Type(*form_, "Text1(7)", QStringLiteral("Club"));
    Type(*form_, "Text1(0)", QStringLiteral("Eve"));
    const auto before = test_.folder.Snapshot();
    test_.folder.FailAfterBytes(0);
    Run("Command1");
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(OpeningASyndicate, ListsTheNamesWithNoneChosen) {
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Open syndicate"));
    EXPECT_EQ(Tip("Command2"), QStringLiteral(" Open syndicate "));
    EXPECT_EQ(Tip("Command1"), QStringLiteral(" Cancel "));
    ASSERT_EQ(List().count(), 2);
    EXPECT_EQ(List().item(0)->text(), QStringLiteral("Winners"));
    EXPECT_EQ(List().item(1)->text(), QStringLiteral("Losers"));
    EXPECT_EQ(List().Index(), -1);
    auto* files = Find<ListBox>(*form_, "List2");
    EXPECT_FALSE(files->isVisible());
    EXPECT_EQ(files->item(1)->text(), QStringLiteral("SMembers.001"));
}

TEST_F(OpeningASyndicate, ChoosesItsFileAndCloses) {
    List().SetIndex(0);
    Run("Command2");
    EXPECT_EQ(File(), "SMembers.000");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(OpeningASyndicate, ADoubleClickOpensAtOnce) {
    DoubleClick(0);
    EXPECT_EQ(File(), "SMembers.000");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(OpeningASyndicate, WithoutAChoiceDoesAndSaysNothing) {
    Run("Command2");
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(File(), "SMembers.001");
}

TEST_F(OpeningASyndicate, EnterOpensWhatIsChosen) {
    List().SetIndex(0);
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(File(), "SMembers.000");
}

TEST_F(OpeningASyndicate, CancelAndEscChangeNothing) {
    List().SetIndex(0);
    Run("Command1");
    EXPECT_FALSE(form_->isVisible());
    Open();
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(File(), "SMembers.001");
}

TEST_F(OpeningASyndicate, TakesNoColourOfTheSettings) {
    const QColor before = form_->palette().color(QPalette::Window);
    MakeDefaultSettings(test_.state, test_.folder);
    test_.state.Settings(setting::SkinBits) = "2";
    test_.state.Settings(setting::BackgroundColour) = "&HC0FFC0";
    Open();
    EXPECT_EQ(form_->palette().color(QPalette::Window), before);
}

TEST_F(OpeningASyndicate, AFileCutShortEndsTheRun) {
    test_.folder.Write("SMembers.002", "\"Ann\",\"\"");
    OpenSyndicate form(test_.program, nullptr);
    EXPECT_THROW(form.Load(), Failure);
}

TEST_F(DeletingASyndicate, ListsTheNamesWithNoneChosen) {
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Delete syndicate"));
    EXPECT_EQ(Tip("Command2"), QStringLiteral(" Delete syndicate "));
    EXPECT_EQ(Tip("Command1"), QStringLiteral(" Close "));
    EXPECT_EQ(List().count(), 2);
    EXPECT_EQ(List().Index(), -1);
    Run("Command2");
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(DeletingASyndicate, NoKeepsTheFormAndTheChoice) {
    List().SetIndex(1);
    test_.messages.Expect(areYouSure, Answer::No);
    Run("Command2");
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(List().Index(), 1);
    EXPECT_TRUE(There("SMembers.001"));
    EXPECT_TRUE(There("Diary.001"));
}

TEST_F(DeletingASyndicate, DeletesTheOneThatIsOpenWithItsDiary) {
    List().SetIndex(1);
    test_.messages.Expect(areYouSure, Answer::Yes);
    Run("Command2");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_FALSE(There("SMembers.001"));
    EXPECT_FALSE(There("Diary.001"));
    EXPECT_TRUE(There("Backup/Undo/2000-01-01 000000 SMembers.001"));
    EXPECT_TRUE(There("Backup/Undo/2000-01-01 000000-002 Diary.001"));
    EXPECT_TRUE(There("SMembers.000"));
    EXPECT_TRUE(There("Diary.000"));
    EXPECT_EQ(File(), "");
    EXPECT_EQ(Member(0, 10), "");
}

TEST_F(DeletingASyndicate, AnotherOneThanTheOpenOneLeavesThatOpenAndReadsItAgain) {
    test_.state.Members(0, 0) = "unsaved";
    test_.messages.Expect(areYouSure, Answer::Yes);
    DoubleClick(0);
    EXPECT_FALSE(There("SMembers.000"));
    EXPECT_FALSE(There("Diary.000"));
    EXPECT_EQ(File(), "SMembers.001");
    EXPECT_EQ(Member(0, 0), "Bob");
}

TEST_F(DeletingASyndicate, OneWhoseFileHasGoneLosesItsDiary) {
    test_.folder.Delete("SMembers.000");
    test_.messages.Expect(areYouSure, Answer::Yes);
    DoubleClick(0);
    EXPECT_FALSE(There("Diary.000"));
}

TEST_F(DeletingASyndicate, ClosesWithoutAQuestion) {
    List().SetIndex(1);
    Run("Command1");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_TRUE(There("SMembers.001"));
}

}  // namespace
