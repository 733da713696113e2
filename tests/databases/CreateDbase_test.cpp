// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/CreateDbase.h"

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "core/failure.h"
#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* templateList = "List1";
constexpr const char* databaseList = "List2";
constexpr const char* nameBox = "Text3";
constexpr const char* addressBox = "Text2";
constexpr const char* webSiteButton = "Command2";
constexpr const char* picksBar = "HScroll1";
constexpr const char* highestBar = "HScroll2";
constexpr const char* highestExtraBar = "HScroll3";
constexpr const char* picksLabel = "Label2";
constexpr const char* highestLabel = "Label6";
constexpr const char* highestExtraLabel = "Label8";
constexpr const char* drawTitle = "Label7";
constexpr const char* lastBoxTitle = "Label12";
constexpr const char* datePicker = "DTPicker1";
constexpr const char* saveButton = "Command1";
constexpr const char* cancelButton = "CancelButton";

const std::vector<const char*> extraBallRow = {"Label11", highestExtraBar, highestExtraLabel};

const Message incorrectDraw{.title = QStringLiteral("Oops!"),
                            .text = QStringLiteral("Incorrect draw result...    "),
                            .sign = Sign::Exclamation};

const Message closeAndDiscard{.title = QStringLiteral("Are you sure?"),
                              .text = QStringLiteral("Close and discard data?    "),
                              .sign = Sign::Question,
                              .buttons = Buttons::YesNo};

class CreatingADatabase : public testing::Test {
  protected:
    CreatingADatabase() {
        test_.folder.Write("LotteryTemplates.txt",
                           "UK Lotto,6,49,0,0,http://one.example/a,b\r\n"
                           "UK Thunderball,5,34,1,14,http://two.example\r\n"
                           "UK Daily Play,7,27,0,0,\r\n");
    }

    void Open() {
        form_ = std::make_unique<CreateDbase>(test_.program, nullptr);
        form_->Load();
        form_->show();
    }

    QString Text(const char* label) { return Find<QLabel>(*form_, label)->text(); }
    QLineEdit& Line(const char* name) { return *Find<QLineEdit>(*form_, name); }
    QScrollBar& Bar(const char* name) { return *Find<QScrollBar>(*form_, name); }
    QRadioButton& Type(int index) {
        return *Find<QRadioButton>(*form_, index == 0 ? "Option1(0)" : "Option1(1)");
    }
    QLineEdit& Box(int index) { return Line(("Text1(" + std::to_string(index) + ")").c_str()); }
    bool Hidden(const char* name) { return Find<QWidget>(*form_, name)->isHidden(); }
    void ChooseTemplate(int row) { Find<ListBox>(*form_, templateList)->SetIndex(row); }

    int VisibleBoxes() {
        int count = 0;
        while (count < 7 && !Box(count).isHidden()) ++count;
        for (int index = count; index < 7; ++index) EXPECT_TRUE(Box(index).isHidden()) << index;
        return count;
    }

    void EnterDraw(const std::vector<int>& numbers) {
        int index = 0;
        for (const int number : numbers) Box(index++).setText(QString::number(number));
    }

    std::string Created() { return test_.folder.Read("dbase1.txt"); }

    TestProgram test_;
    std::unique_ptr<CreateDbase> form_;
};

TEST_F(CreatingADatabase, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Create Lottery Database"));
    const std::vector<std::pair<const char*, const char*>> labels = {
        {"Label9", "Pick:"},
        {"Label10", "From:"},
        {"Label11", "Pick 1 from:"},
        {"Label1", "Lottery name:"},
        {"Label4", "Web site:"},
        {"Label5", "Select draw date:"},
        {"Label7", "Enter draw result:"},
        {"Label3", "Lottery templates:"},
        {"Label12", "Bonus"},
        {"Label15", "Existing lottery databases:"},
        {"Label17", "Create lottery database"},
        {"Label16",
         "Create a database to store lottery draw results, then you can analyse the data for "
         "trends. You must enter one draw result to start off the database."},
        {"Label18", "Pick a template or use the controls to define the type of lottery..."},
        {"Label13", "Enter a lottery draw result to start off the database..."}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Text(name), QString::fromLatin1(text)) << name;
    }
    EXPECT_EQ(Type(0).text(), QStringLiteral("Standard lottery - pick x from y"));
    EXPECT_EQ(Type(0).toolTip(), QStringLiteral(" Eg. pick 6 from 49 "));
    EXPECT_EQ(Type(1).text(),
              QStringLiteral("Powerball type - pick x from y, plus one extra from z"));
    EXPECT_EQ(Type(1).toolTip(), QStringLiteral(" Eg. pick 5 from 34, then 1 from 14 "));
    EXPECT_EQ(Find<QPushButton>(*form_, saveButton)->text(), QStringLiteral(" Save "));
    EXPECT_EQ(Find<QPushButton>(*form_, webSiteButton)->toolTip(),
              QStringLiteral(" Start Internet Explorer and go to site "));
    EXPECT_EQ(Find<QPushButton>(*form_, cancelButton)->text(), QStringLiteral(" Cancel "));
}

TEST_F(CreatingADatabase, OpensOnSixOfFortyNine) {
    Open();
    EXPECT_EQ(Text(picksLabel), QStringLiteral("6"));
    EXPECT_EQ(Text(highestLabel), QStringLiteral("49"));
    EXPECT_EQ(Text(highestExtraLabel), QStringLiteral("14"));
    EXPECT_EQ(Bar(picksBar).minimum(), 4);
    EXPECT_EQ(Bar(picksBar).maximum(), 7);
    EXPECT_EQ(Bar(highestBar).minimum(), 10);
    EXPECT_EQ(Bar(highestBar).maximum(), 60);
    EXPECT_EQ(Bar(highestExtraBar).minimum(), 2);
    EXPECT_EQ(Bar(highestExtraBar).maximum(), 60);
    EXPECT_TRUE(Type(0).isChecked());
    for (const char* name : extraBallRow) EXPECT_TRUE(Hidden(name)) << name;
    EXPECT_EQ(Line(addressBox).text(), QStringLiteral("http://"));
    EXPECT_EQ(Line(nameBox).text(), QString());
    EXPECT_EQ(VisibleBoxes(), 6);
    const auto* date = Find<QDateEdit>(*form_, datePicker);
    EXPECT_EQ(date->date(), QDate(2005, 6, 1));
    EXPECT_EQ(date->displayFormat(), QStringLiteral("ddd d MMM yyyy"));
}

TEST_F(CreatingADatabase, ListsTemplatesAndExistingDatabases) {
    AddUkLotto(test_.folder);
    Open();
    const auto* templates = Find<ListBox>(*form_, templateList);
    ASSERT_EQ(templates->count(), 3);
    EXPECT_EQ(templates->item(2)->text(), QStringLiteral("UK Daily Play"));
    EXPECT_EQ(templates->Index(), -1);
    const auto* databases = Find<ListBox>(*form_, databaseList);
    ASSERT_EQ(databases->count(), 1);
    EXPECT_EQ(databases->item(0)->text(), QStringLiteral("UK Lotto"));
}

TEST_F(CreatingADatabase, MovingABarShowsItsValueAndTheNumberOfNumbers) {
    Open();
    Bar(picksBar).setValue(5);
    EXPECT_EQ(Text(picksLabel), QStringLiteral("5"));
    EXPECT_EQ(Text(drawTitle), QStringLiteral("Enter 5 numbers"));
    EXPECT_EQ(VisibleBoxes(), 5);
    Bar(highestBar).setValue(34);
    EXPECT_EQ(Text(highestLabel), QStringLiteral("34"));
    Bar(highestExtraBar).setValue(20);
    EXPECT_EQ(Text(highestExtraLabel), QStringLiteral("20"));
    EXPECT_EQ(Text(drawTitle), QStringLiteral("Enter 5 numbers"));
    Bar(picksBar).setValue(7);
    EXPECT_EQ(VisibleBoxes(), 7);
}

TEST_F(CreatingADatabase, EachBarShowsTheNumberOfNumbers) {
    for (const auto& [bar, value] :
         {std::pair(picksBar, 5), {highestBar, 34}, {highestExtraBar, 20}}) {
        Open();
        EXPECT_EQ(Text(drawTitle), QStringLiteral("Enter draw result:"));
        Bar(bar).setValue(value);
        const int count = std::string(bar) == picksBar ? 5 : 6;
        EXPECT_EQ(Text(drawTitle), QStringLiteral("Enter %1 numbers").arg(count)) << bar;
    }
}

TEST_F(CreatingADatabase, ThePowerballTypeOffersTheExtraBall) {
    Open();
    Type(1).click();
    for (const char* name : extraBallRow) EXPECT_FALSE(Hidden(name)) << name;
    EXPECT_EQ(Text(lastBoxTitle), QStringLiteral("Powerball"));
    Type(0).click();
    for (const char* name : extraBallRow) EXPECT_TRUE(Hidden(name)) << name;
    EXPECT_EQ(Text(lastBoxTitle), QStringLiteral("Bonus"));
}

TEST_F(CreatingADatabase, SaysWhatTheLastBoxDecides) {
    Open();
    const QString bonus = QStringLiteral(
        "Fill in Bonus if this lottery has one: it decides whether the database has a bonus ball");
    EXPECT_EQ(Text("BonusHint"), bonus);
    EXPECT_EQ(Box(7).accessibleDescription(), bonus);
    Type(1).click();
    EXPECT_EQ(Text("BonusHint"), QStringLiteral("Powerball may stay empty: the type of the lottery "
                                                "already says that it has one"));
    EXPECT_EQ(Box(7).accessibleDescription(), Text("BonusHint"));
    Type(0).click();
    EXPECT_EQ(Text("BonusHint"), bonus);
}

TEST_F(CreatingADatabase, FindsATemplateByAPartOfItsName) {
    Open();
    auto& find = Line("FindTemplate");
    QTest::keyClicks(&find, QStringLiteral("thunder"));
    const auto* templates = Find<ListBox>(*form_, templateList);
    EXPECT_TRUE(templates->isRowHidden(0));
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_EQ(templates->Index(), 1);
    EXPECT_EQ(Line(nameBox).text(), QStringLiteral("UK Thunderball"));
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(CreatingADatabase, ATemplateFillsTheControlsAndEmptiesTheBoxes) {
    Open();
    EnterDraw({1, 2, 3, 4, 5, 6});
    Box(7).setText(QStringLiteral("9"));
    ChooseTemplate(1);
    EXPECT_EQ(Line(nameBox).text(), QStringLiteral("UK Thunderball"));
    EXPECT_EQ(Line(addressBox).text(), QStringLiteral("http://two.example"));
    EXPECT_EQ(Bar(picksBar).value(), 5);
    EXPECT_EQ(Bar(highestBar).value(), 34);
    EXPECT_EQ(Bar(highestExtraBar).value(), 14);
    EXPECT_EQ(Text(picksLabel), QStringLiteral("5"));
    EXPECT_EQ(Text(highestLabel), QStringLiteral("34"));
    EXPECT_EQ(Text(highestExtraLabel), QStringLiteral("14"));
    EXPECT_TRUE(Type(1).isChecked());
    for (int index = 0; index <= 7; ++index) EXPECT_EQ(Box(index).text(), QString()) << index;
}

TEST_F(CreatingADatabase, ATemplateWithoutExtraBallSelectsTheStandardType) {
    Open();
    Type(1).click();
    ChooseTemplate(2);
    EXPECT_TRUE(Type(0).isChecked());
    EXPECT_TRUE(Hidden(highestExtraBar));
    EXPECT_EQ(Text(lastBoxTitle), QStringLiteral("Bonus"));
    EXPECT_EQ(VisibleBoxes(), 7);
}

TEST_F(CreatingADatabase, ATemplateWithTwoExtraBallsIsOfThePowerballType) {
    test_.folder.Write("LotteryTemplates.txt", "Two,5,50,1,2,\r\n");
    Open();
    ChooseTemplate(0);
    EXPECT_TRUE(Type(1).isChecked());
    EXPECT_EQ(Bar(highestExtraBar).value(), 2);
}

TEST_F(CreatingADatabase, TheLabelsShowTheFieldsOfATemplateAsTheyStand) {
    test_.folder.Write("LotteryTemplates.txt", "Odd,05 of,034,x,14.0,\r\n");
    Open();
    ChooseTemplate(0);
    EXPECT_EQ(Bar(picksBar).value(), 5);
    EXPECT_EQ(Text(picksLabel), QStringLiteral("05 of"));
    EXPECT_EQ(Text(highestLabel), QStringLiteral("034"));
    EXPECT_EQ(Text(highestExtraLabel), QStringLiteral("14.0"));
    EXPECT_EQ(Line(addressBox).text(), QString());
    EnterDraw({1, 2, 3, 4, 5});
    Click(*form_, saveButton);
    EXPECT_EQ(Created(), "Odd\r\n\r\n05 of,034,1,14.0,0\r\n01 Jun 05,1,2,3,4,5,,,\r\n");
}

TEST_F(CreatingADatabase, TheWebAddressOfATemplateMayHoldCommas) {
    Open();
    ChooseTemplate(0);
    EXPECT_EQ(Line(addressBox).text(), QStringLiteral("http://one.example/a,b"));
    Click(*form_, webSiteButton);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("http://one.example/a,b")});
}

TEST_F(CreatingADatabase, TheButtonOfTheWebSiteShowsWhereItLeads) {
    Open();
    ChooseTemplate(0);
    const auto* button = Find<QPushButton>(*form_, webSiteButton);
    EXPECT_EQ(button->toolTip(), QStringLiteral(" Start Internet Explorer and go to site "));
    EXPECT_EQ(button->accessibleDescription(),
              QStringLiteral("Start Internet Explorer and go to site http://one.example/a,b"));
    Line(addressBox).clear();
    EXPECT_EQ(button->accessibleDescription(),
              QStringLiteral("Start Internet Explorer and go to site"));
}

TEST_F(CreatingADatabase, ATemplateBeyondTheBarsEndsTheRun) {
    test_.folder.Write("LotteryTemplates.txt",
                       "One,6,49,0,0,\r\nHuge,6,90,0,0,\r\nBelow,5,50,1,-2,\r\n");
    Open();
    auto* templates = Find<ListBox>(*form_, templateList);
    const auto failureOf = [&](int row) {
        QTest::mouseClick(templates->viewport(), Qt::LeftButton, Qt::NoModifier,
                          templates->visualItemRect(templates->item(row)).center());
        return TakeFailure().value_or("none");
    };
    EXPECT_EQ(failureOf(1),
              "LotteryTemplates.txt, line 2: expected a number from 10 to 60 in field 3, but "
              "\"90\" stands there.");
    EXPECT_EQ(failureOf(2),
              "LotteryTemplates.txt, line 3: expected a number from 2 to 60 in field 5, but "
              "\"-2\" stands there.");
}

TEST_F(CreatingADatabase, BoxesDropEveryKeyButDigitsAndBackspace) {
    Open();
    QTest::keyClicks(&Box(0), QStringLiteral("1a-4.x,"));
    QTest::keyClick(&Box(0), Qt::Key_Backspace);
    EXPECT_EQ(Box(0).text(), QStringLiteral("1"));
}

TEST_F(CreatingADatabase, DealsAPastedDrawToTheBoxesOfTheLottery) {
    Open();
    Bar(picksBar).setValue(5);
    Paste(Box(0), QStringLiteral("7 14 21 28 35 3"));
    EXPECT_EQ(Box(4).text(), QStringLiteral("35"));
    EXPECT_EQ(Box(5).text(), QString());
    EXPECT_EQ(Box(7).text(), QStringLiteral("3"));
}

TEST_F(CreatingADatabase, SavesAStandardLotteryWithoutBonusAndCloses) {
    Open();
    Line(nameBox).setText(QStringLiteral(" My lotto "));
    Line(addressBox).setText(QStringLiteral(" http:// "));
    EnterDraw({1, 2, 3, 4, 5, 49});
    Click(*form_, saveButton);
    EXPECT_EQ(Created(), " My lotto \r\n http:// \r\n6,49,1,0,0\r\n01 Jun 05,1,2,3,4,5,49,,\r\n");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(test_.messages.Shown(), 0);
}

TEST_F(CreatingADatabase, ANumberInTheBonusBoxMakesABonusLottery) {
    Open();
    EnterDraw({1, 2, 3, 4, 5, 6});
    Box(7).setText(QStringLiteral("60"));
    Find<QDateEdit>(*form_, datePicker)->setDate(QDate(1994, 11, 19));
    Click(*form_, saveButton);
    EXPECT_EQ(Created(), "\r\nhttp://\r\n6,49,1,0,1\r\n19 Nov 94,1,2,3,4,5,6,,60\r\n");
}

TEST_F(CreatingADatabase, AZeroInTheBonusBoxMakesNoBonusLottery) {
    Open();
    EnterDraw({1, 2, 3, 4, 5, 6});
    Box(7).setText(QStringLiteral("0"));
    Click(*form_, saveButton);
    EXPECT_EQ(Created(), "\r\nhttp://\r\n6,49,1,0,0\r\n01 Jun 05,1,2,3,4,5,6,,0\r\n");
}

TEST_F(CreatingADatabase, APowerballTypeHasNoBonusWhateverItsBoxHolds) {
    Open();
    ChooseTemplate(1);
    EnterDraw({1, 2, 3, 4, 5});
    Box(7).setText(QStringLiteral("9"));
    Click(*form_, saveButton);
    EXPECT_EQ(Created(),
              "UK Thunderball\r\nhttp://two.example\r\n5,34,1,14,0\r\n01 Jun 05,1,2,3,4,5,,,9\r\n");
}

TEST_F(CreatingADatabase, AHiddenBoxKeepsItsTextButIsWrittenEmpty) {
    Open();
    EnterDraw({1, 2, 3, 4, 5, 6});
    Bar(picksBar).setValue(4);
    EXPECT_EQ(Box(5).text(), QStringLiteral("6"));
    Click(*form_, saveButton);
    EXPECT_EQ(Created(), "\r\nhttp://\r\n4,49,1,0,0\r\n01 Jun 05,1,2,3,4,,,,\r\n");
}

TEST_F(CreatingADatabase, RefusesANumberOutsideTheFieldAndStaysOpen) {
    Open();
    const auto before = test_.folder.Snapshot();
    for (const char* bad : {"0", "50", ""}) {
        EnterDraw({1, 2, 3, 4, 5, 6});
        Box(5).setText(QString::fromLatin1(bad));
        test_.messages.Expect(incorrectDraw);
        Click(*form_, saveButton);
        EXPECT_TRUE(form_->isVisible());
        EXPECT_EQ(Box(0).text(), QStringLiteral("1"));
        EXPECT_EQ(test_.folder.Snapshot(), before);
    }
}

TEST_F(CreatingADatabase, ARefusalLeadsToTheFirstWrongBox) {
    Open();
    EnterDraw({1, 2, 50, 4, 0, 6});
    test_.messages.Expect(incorrectDraw);
    Click(*form_, saveButton);
    EXPECT_EQ(form_->focusWidget(), &Box(2));
    EXPECT_EQ(Box(2).selectedText(), QStringLiteral("50"));
}

TEST_F(CreatingADatabase, EnterSaves) {
    Open();
    EnterDraw({1, 2, 3, 4, 5, 6});
    QTest::keyClick(&Box(5), Qt::Key_Return);
    EXPECT_TRUE(test_.folder.Exists("dbase1.txt"));
}

TEST_F(CreatingADatabase, TakesRepeats) {
    Open();
    EnterDraw({7, 7, 7, 7, 7, 7});
    Click(*form_, saveButton);
    EXPECT_TRUE(test_.folder.Exists("dbase1.txt"));
}

TEST_F(CreatingADatabase, TakesTheFirstFreeNumber) {
    AddLottery(test_.folder, "dbase1.txt", "One", "6,49,0,0,0");
    AddLottery(test_.folder, "dbase3.txt", "Three", "6,49,0,0,0");
    Open();
    EnterDraw({1, 2, 3, 4, 5, 6});
    Click(*form_, saveButton);
    EXPECT_TRUE(test_.folder.Exists("dbase2.txt"));
}

TEST_F(CreatingADatabase, EveryWayToCloseAsksFirst) {
    Open();
    for (int way = 0; way < 3; ++way) {
        test_.messages.Expect(closeAndDiscard, Answer::No);
        if (way == 0) Click(*form_, cancelButton);
        if (way == 1) QTest::keyClick(form_.get(), Qt::Key_Escape);
        if (way == 2) form_->close();
        EXPECT_TRUE(form_->isVisible());
    }
    test_.messages.Expect(closeAndDiscard, Answer::Yes);
    Click(*form_, cancelButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_FALSE(test_.folder.Exists("dbase1.txt"));
}

TEST_F(CreatingADatabase, WithoutTheTemplatesEndsTheRun) {
    test_.folder.Delete("LotteryTemplates.txt");
    EXPECT_THROW(Open(), Failure);
}

TEST_F(CreatingADatabase, AFullDiskEndsTheRunAndWritesNothing) {
    Open();
    EnterDraw({1, 2, 3, 4, 5, 6});
    const auto before = test_.folder.Snapshot();
    test_.folder.FailAfterBytes(20);
    Click(*form_, saveButton);
    EXPECT_TRUE(TakeFailure());
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

}  // namespace
