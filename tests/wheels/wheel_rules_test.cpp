// SPDX-License-Identifier: GPL-3.0-or-later
// In what the rules of the wheel forms tell them apart.
#include <QLabel>
#include <QPushButton>
#include <array>
#include <string_view>
#include <tuple>

#include "core/failure.h"
#include "platform/widgets/Widgets.h"
#include "tests/wheels/wheel_form.h"
#include "wheels/PWheel2.h"
#include "wheels/WheelFrame.h"

namespace {

/// A form under another form's rules, with as many boxes in use and with the outcome that a test
/// asks for.
class RuledForm final : public WheelFrame {
  public:
    RuledForm(Program& program, const QString& rules)
        : WheelFrame(program, {.name = rules, .caption = rules, .heading = rules, .body = {}},
                     WheelControlNames(QStringLiteral("Command4")), {}, 20, nullptr) {
        const SkinLabels skin = WheelSkinLabels(rules);
        for (const QString& label : skin.small + skin.status) {
            if (findChild<QLabel*>(label) == nullptr) MakeLabel(label, {}, this)->hide();
        }
    }

    using WheelFrame::AddSizes;
    using WheelFrame::EmptyGrid;
    using WheelFrame::RandomOrder;
    using WheelFrame::RandomSelection;
    using WheelFrame::UseBoxes;
    wheels::Outcome outcome = wheels::Outcome::Done;
    bool suitsLottery = true;
    bool putsFirstBoxOutOfUse = false;
    int sizesChosen = 0;
    int busyBefore = 1;  ///< What `Busy` was when the form was asked whether it may generate.
    int busyAtWork = 1;  ///< What `Busy` was while the lines were made.

  protected:
    void SizeChosen() override {
        ++sizesChosen;
        UseBoxes(8);
    }
    bool MayGenerate() override {
        busyBefore = state().Busy;
        return suitsLottery;
    }
    wheels::Outcome MakeWheel(wheels::Boxes& boxes) override {
        if (putsFirstBoxOutOfUse) boxes[0].inUse = false;
        busyAtWork = state().Busy;
        state().Lines(1, 1) = outcome == wheels::Outcome::Done ? 7 : 0;
        state().Lines(2, 1) = 0;
        return outcome;
    }
};

class WheelRules : public WheelFormTest {
  protected:
    void Open(const char* rules) {
        ShowForm(std::make_unique<RuledForm>(test_.program, QString::fromLatin1(rules)));
    }

    RuledForm& Ruled() { return static_cast<RuledForm&>(*form_); }
};

TEST_F(WheelRules, DisableAndEmptyTheBoxesOutOfUse) {
    for (const char* rules : {"PBudgetWheel", "PDIYWheels", "PThreeMatch"}) {
        Open(rules);
        Ruled().UseBoxes(12);
        for (int index = 0; index < 12; ++index) TypeBox(index, QStringLiteral("7"));
        Ruled().UseBoxes(10);
        for (int index = 0; index < 12; ++index) {
            EXPECT_EQ(Box(index).isEnabled(), index < 10) << rules << index;
            EXPECT_EQ(Background(index), index < 10 ? white : grey) << rules << index;
            EXPECT_EQ(Box(index).text(), index < 10 ? QStringLiteral("7") : QString());
        }
    }
}

TEST_F(WheelRules, TellOfASizeOnceForEachChoice) {
    auto form = std::make_unique<RuledForm>(test_.program, QStringLiteral("PWheel2"));
    form->AddSizes({QStringLiteral("Small"), QStringLiteral("Large")});
    ShowForm(std::move(form));
    EXPECT_EQ(Ruled().sizesChosen, 1) << "at the load";
    ChooseSize(1);
    EXPECT_EQ(Ruled().sizesChosen, 2);
    ChooseSize(1);
    EXPECT_EQ(Ruled().sizesChosen, 3) << "the one chosen already";
    Find<QRadioButton>(*form_, "Option1(0)")->setChecked(true);
    EXPECT_EQ(Ruled().sizesChosen, 4) << "in code";
}

TEST_F(WheelRules, FollowAWheelThatPutsABoxOutOfUse) {
    Open("PDIYWheels");
    Ruled().putsFirstBoxOutOfUse = true;
    Click(*form_, generateButton);
    EXPECT_EQ(Background(0), grey);
    EXPECT_FALSE(Box(0).isEnabled());
    Click(*form_, randomSelectionButton);
    EXPECT_EQ(Box(0).text(), QString()) << "a random selection leaves it out";
    EXPECT_FALSE(Box(1).text().isEmpty());
}

TEST_F(WheelRules, NumberTheBoxesOfAFormWithoutLetters) {
    Open("PDIYWheels");
    EXPECT_EQ(Box(0).accessibleName(), QStringLiteral("Number 1"));
    EXPECT_EQ(Box(19).accessibleName(), QStringLiteral("Number 20"));
    EXPECT_EQ(form_->findChild<QObject*>(QStringLiteral("Label1(1)")), nullptr);
}

TEST_F(WheelRules, LeadEnterOnToTheNextBoxInUse) {
    for (const char* rules : {"PDIYWheels", "PThreeMatch"}) {
        Open(rules);
        Box(6).setFocus();
        QTest::keyClick(&Box(6), Qt::Key_Return);
        EXPECT_EQ(form_->focusWidget(), &Box(7)) << rules;
        QTest::keyClick(&Box(7), Qt::Key_Return);
        EXPECT_EQ(form_->focusWidget(), &Box(7)) << "the next one is disabled";
        Ruled().UseBoxes(20);
        Box(19).setFocus();
        QTest::keyClick(&Box(19), Qt::Key_Enter);
        EXPECT_EQ(form_->focusWidget(), &Box(19)) << "there is no next one";
        EXPECT_EQ(ShownLines(), 0);
        TypeBox(0, QStringLiteral("a1"));
        EXPECT_EQ(Box(0).text(), QStringLiteral("1"));
    }
}

TEST_F(WheelRules, LetAnyTextIntoTheBoxesOfBudgetWheels) {
    Open("PBudgetWheel");
    TypeBox(0, QStringLiteral("1a-9"));
    EXPECT_EQ(Box(0).text(), QStringLiteral("1a-"));
    QTest::keyClick(&Box(0), Qt::Key_Return);
    EXPECT_EQ(ShownLines(), 0);
    TypeBox(0, QStringLiteral("3"));
    TypeBox(2, QStringLiteral("5"));
    Click(*form_, randomOrderButton);
    QStringList texts = BoxTexts(4);
    std::ranges::sort(texts);
    EXPECT_EQ(texts, (QStringList{QString(), QStringLiteral("0"), QStringLiteral("3"),
                                  QStringLiteral("5")}));
}

TEST_F(WheelRules, LeadToTheFirstBoxInUseThatTheFormDoesNotAccept) {
    const std::vector<std::pair<const char*, int>> firstWrong = {
        {"PThreeMatch", 1}, {"PDIYWheels", 2}, {"PBudgetWheel", 4}};
    for (const auto& [rules, wrong] : firstWrong) {
        Open(rules);
        // Too high for the lottery, and then, where any text can stand, below zero and empty.
        for (const int index : {0, 3, 5, 6, 7}) TypeBox(index, QStringLiteral("7"));
        TypeBox(1, QStringLiteral("50"));
        TypeBox(2, QStringLiteral("-"));
        if (std::string(rules) == "PBudgetWheel") TypeBox(2, QStringLiteral("-3"));
        Ruled().outcome = wheels::Outcome::CheckInput;
        ExpectInputTip();
        Click(*form_, generateButton);
        EXPECT_EQ(form_->focusWidget(), &Box(wrong)) << rules;
        EXPECT_EQ(Box(wrong).selectedText(), Box(wrong).text()) << rules;
    }
}

TEST_F(WheelRules, SayAndShowNothingWhereAFormRefusesInItsOwnWords) {
    Open("PBudgetWheel");
    Click(*form_, generateButton);
    Box(0).setFocus();
    Ruled().outcome = wheels::Outcome::Refused;
    QTest::keyClick(Find<QPushButton>(*form_, generateButton), Qt::Key_Space);
    EXPECT_EQ(test_.messages.Shown(), 0);
    EXPECT_EQ(Lines().Cell(1, 1), QStringLiteral("7")) << "the grid keeps what it showed";
    EXPECT_EQ(form_->focusWidget(), &Box(0));
}

TEST_F(WheelRules, LetAFormRefuseALotteryBeforeItIsBusy) {
    Open("PWheel2");
    Click(*form_, generateButton);
    EXPECT_EQ(Ruled().busyBefore, 0);
    EXPECT_EQ(Ruled().busyAtWork, -1);
    Ruled().suitsLottery = false;
    Ruled().busyAtWork = 1;
    Click(*form_, generateButton);
    EXPECT_EQ(Ruled().busyAtWork, 1) << "no lines are made";
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_EQ(ShownLines(), 1) << "the grid keeps what it showed";
}

TEST_F(WheelRules, TakeTheLinesOutOfTheGridOnly) {
    Open("PThreeMatch");
    Click(*form_, generateButton);
    Ruled().EmptyGrid();
    for (int column = 0; column <= 8; ++column) EXPECT_EQ(Lines().Cell(1, column), QString());
    EXPECT_EQ(Lines().Cell(0, 1), QStringLiteral("Num1"));
    EXPECT_EQ(test_.state.Lines(1, 1), 7);
}

TEST_F(WheelRules, GiveTheRandomButtonsToolTipsWhereAFormHasThem) {
    Open("PBudgetWheel");
    Ruled().RandomSelection().setToolTip(QStringLiteral(" Pick some numbers for me "));
    Ruled().RandomOrder().setToolTip(QStringLiteral(" Mix up the order of the numbers "));
    EXPECT_EQ(Find<QPushButton>(*form_, randomSelectionButton)->toolTip(),
              QStringLiteral(" Pick some numbers for me "));
    EXPECT_EQ(Find<QPushButton>(*form_, randomOrderButton)->toolTip(),
              QStringLiteral(" Mix up the order of the numbers "));
}

TEST_F(WheelRules, FindTheSkinsLabelsOfAnyWheelForm) {
    const SkinLabels found = WheelSkinLabels(QStringLiteral("PGuaranteed"));
    EXPECT_EQ(found.title, QStringList{QStringLiteral("Label7")});
    EXPECT_EQ(found.body, QStringList{QStringLiteral("Label2")});
    EXPECT_EQ(found.small, QStringList{QStringLiteral("Label5")});
    EXPECT_EQ(found.status, QStringList{QStringLiteral("Label10")});
}

TEST_F(WheelRules, ShowAPromptOnlyWhereTheFormHasOne) {
    Open("PBudgetWheel");
    EXPECT_FALSE(Find<QLabel>(*form_, promptLabel)->isVisible());
    ShowForm(std::make_unique<PWheel2>(test_.program, nullptr));
    EXPECT_TRUE(Find<QLabel>(*form_, promptLabel)->isVisible());
}

TEST_F(WheelRules, LeaveTheCursorWhereNoBoxIsToBlame) {
    Open("PBudgetWheel");
    Box(3).setFocus();
    Ruled().outcome = wheels::Outcome::NoOtherNumber;
    ExpectInputTip();
    QTest::keyClick(Find<QPushButton>(*form_, generateButton), Qt::Key_Space);
    EXPECT_EQ(form_->focusWidget(), &Box(3));
    EXPECT_EQ(ShownLines(), 0);
}

TEST_F(WheelRules, SelectFromTheStartOfThePool) {
    for (const char* rules : {"PBudgetWheel", "PDIYWheels", "PThreeMatch"}) {
        Open(rules);
        Click(*form_, randomSelectionButton);
        for (int index = 0; index < 8; ++index) {
            EXPECT_EQ(Box(index).text().toInt(), test_.state.Pool(index)) << rules;
        }
        EXPECT_EQ(Box(8).text(), QString());
    }
    ShowForm(std::make_unique<PWheel2>(test_.program, nullptr));
    Click(*form_, randomSelectionButton);
    for (int index = 0; index < 8; ++index) {
        EXPECT_EQ(Box(index).text().toInt(), test_.state.Pool(index + 1));
    }
}

TEST_F(WheelRules, IgnoreTheCloseOfABusyBudgetWheelAndLetItFilter) {
    Open("PBudgetWheel");
    Click(*form_, generateButton);
    test_.state.Lines(1, 1) = 8;
    test_.state.Busy = -1;
    Click(*form_, closeButton);
    EXPECT_TRUE(form_->isVisible());
    Click(*form_, saveButton);
    EXPECT_EQ(saves_, 0);
    Click(*form_, usualFilters.longRuns);
    EXPECT_EQ(Lines().Cell(1, 1), QStringLiteral("8")) << "the filters do not wait";
    Click(*form_, generateButton);
    EXPECT_EQ(Lines().Cell(1, 1), QStringLiteral("8")) << "generate does";
    test_.state.Busy = 0;
    Click(*form_, generateButton);
    EXPECT_EQ(Lines().Cell(1, 1), QStringLiteral("7"));
    EXPECT_TRUE(form_->isVisible()) << "the ignored click is not made up for";
}

TEST_F(WheelRules, LeaveItToSomeFormsToSetBusy) {
    const std::vector<std::pair<const char*, int>> setByTheFrame = {{"PWheel2", -1},
                                                                    {"PWheel3", -1},
                                                                    {"PBudgetWheel", 0},
                                                                    {"PDIYWheels", 0},
                                                                    {"PThreeMatch", 0}};
    for (const auto& [rules, busy] : setByTheFrame) {
        Open(rules);
        Click(*form_, generateButton);
        EXPECT_EQ(Ruled().busyAtWork, busy) << rules;
        EXPECT_EQ(test_.state.Busy, 0) << rules;
    }
}

TEST_F(WheelRules, LetMatchAndOwnWheelsDoEverythingWhileBusy) {
    for (const char* rules : {"PDIYWheels", "PThreeMatch"}) {
        Open(rules);
        saves_ = 0;
        test_.state.Busy = -1;
        Click(*form_, generateButton);
        EXPECT_EQ(Lines().Cell(1, 1), QStringLiteral("7")) << rules;
        EXPECT_EQ(test_.state.Busy, -1) << "generate leaves it alone";
        test_.state.Lines(1, 1) = 8;
        Click(*form_, usualFilters.longRuns);
        EXPECT_EQ(Lines().Cell(1, 1), QStringLiteral("8")) << rules;
        Click(*form_, saveButton);
        EXPECT_EQ(saves_, 1) << rules;
        Click(*form_, closeButton);
        EXPECT_FALSE(form_->isVisible()) << rules;
        test_.state.Busy = 0;
    }
}

TEST_F(WheelRules, KnowAllEightForms) {
    std::vector<std::string> forms;
    for (const wheels::WheelFormRules& rules : wheels::WheelForms()) forms.emplace_back(rules.form);
    std::ranges::sort(forms);
    EXPECT_EQ(forms,
              (std::vector<std::string>{"PBudgetWheel", "PDIYWheels", "PGuaranteed", "PHotWheels",
                                        "PThreeMatch", "PWheel2", "PWheel3", "Wheel49"}));
    EXPECT_THROW(wheels::RulesOf("PLuckyDip"), Failure);
}

TEST_F(WheelRules, GiveEachFormItsNumberOfBoxes) {
    const std::vector<std::pair<const char*, int>> counts = {{"PWheel2", 18},
                                                             {"PWheel3", 24},
                                                             {"PBudgetWheel", 18},
                                                             {"PDIYWheels", 20},
                                                             {"PThreeMatch", 20}};
    for (const auto& [form, count] : counts) {
        EXPECT_EQ(wheels::RulesOf(form).boxes.count, count) << form;
    }
}

TEST_F(WheelRules, ColourTheLabelsOfEachForm) {
    using Names = std::array<std::string_view, 4>;
    const std::vector<std::tuple<const char*, Names, Names>> slots = {
        {"PWheel2", {}, {}},
        {"PWheel3", {}, {"Label4"}},
        {"PBudgetWheel", {"Label1"}, {}},
        {"PDIYWheels", {"Label1", "Label9", "Label10", "Label5"}, {}},
        {"PHotWheels", {"Label1", "Label9", "Label5", "Label4"}, {}},
        {"PThreeMatch", {"Label1", "Label5"}, {}},
        {"PGuaranteed", {"Label5"}, {"Label10"}},
        {"Wheel49", {"Label1"}, {"Label5"}}};
    for (const auto& [form, small, status] : slots) {
        EXPECT_EQ(wheels::RulesOf(form).skin.small, small) << form;
        EXPECT_EQ(wheels::RulesOf(form).skin.status, status) << form;
    }
}

TEST_F(WheelRules, WaitForBusyInTheFormsWithoutBoxes) {
    for (const char* form : {"PHotWheels", "PGuaranteed", "Wheel49"}) {
        const BusyRules& busy = wheels::RulesOf(form).busy;
        EXPECT_TRUE(busy.filtersWait && busy.printAndSaveWait && busy.generateWaits) << form;
        EXPECT_EQ(busy.close, CloseWhileBusy::Waits) << form;
        EXPECT_EQ(wheels::RulesOf(form).boxes.count, 0) << form;
    }
}

}  // namespace
