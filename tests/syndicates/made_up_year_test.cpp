// SPDX-License-Identifier: GPL-3.0-or-later
// A manager and 99 members through a year, with the program started anew now and then.
#include "syndicates/DeleteSyndicate.h"
#include "syndicates/NewSyndicate.h"
#include "syndicates/SManager.h"
#include "syndicates/SMembers.h"
#include "syndicates/SPayments.h"
#include "tests/syndicates/syndicate_form.h"

namespace {

constexpr int members = 99;
constexpr int weeks = 52;

const Message created{
    .title = QStringLiteral("New syndicate"),
    .text = QStringLiteral(" Syndicate created...      \r\n Syndicate opened...      "),
    .sign = Sign::Information};

Message Saved(const char* text) {
    return {.title = QStringLiteral("Lottery Quillon"),
            .text = QString::fromLatin1(text),
            .sign = Sign::Information};
}

class AMadeUpYear : public testing::Test {
  protected:
    AMadeUpYear() {
        MakeDefaultSettings(program_->state, program_->folder);
        StartProgram();
    }

    /// Ends the program and starts it anew on the same files.
    void Restart() {
        SaveSettings(program_->state, program_->folder);
        auto next = std::make_unique<TestProgram>();
        for (const auto& [name, bytes] : program_->folder.Snapshot()) {
            next->folder.Write(name, bytes);
        }
        next->today = program_->today;
        program_ = std::move(next);
        StartProgram();
    }

    void StartProgram() {
        LoadSettings(program_->state, program_->folder);
        LoadSyndicate(program_->state, program_->folder);
        program_->services.printMembers = [this](Form*) { ++printed_; };
        program_->services.printPayments = [this](Form*, Grid&) { ++printed_; };
        program_->services.printDiary = [this](Form*, Grid&, const DiaryFrame& frame) {
            ++printed_;
            printedTotal_ = frame.total.toStdString();
        };
    }

    template <typename FormType>
    std::unique_ptr<FormType> Open() {
        auto form = std::make_unique<FormType>(program_->program, nullptr);
        form->Load();
        form->show();
        return form;
    }

    void Make() {
        const auto form = Open<NewSyndicate>();
        Type(*form, "Text1(7)", QStringLiteral("Office"));
        Type(*form, "Text1(0)", QStringLiteral("Anna"));
        program_->messages.Expect(created);
        Click(*form, "Command1");
    }

    void AddMembers() {
        const auto form = Open<SMembers>();
        for (int number = members; number >= 1; --number) {
            Find<QLineEdit>(*form, "Text1(0)")
                ->setText(QStringLiteral("Member %1").arg(number, 2, 10, QLatin1Char('0')));
            Click(*form, "Command1");
        }
        Click(*form, "Command7");
        Click(*form, "Command6");
        program_->messages.Expect(Saved("  Syndicate member list saved...  "));
        Click(*form, "Command4");
        Click(*form, "Command3");
        EXPECT_FALSE(form->isVisible());
    }

    /// Everybody pays half a pound up to today; the last one pays nothing.
    void Pay() {
        const auto form = Open<SPayments>();
        auto* grid = Find<Grid>(*form, "MSFlexGrid1");
        for (int row = 1; row <= members; ++row) {
            Q_EMIT grid->cellClicked(row, 0);
            Find<QLineEdit>(*form, "Text1")->setText(QStringLiteral("0.50"));
            Find<DatePicker>(*form, "DTPicker1")->SetValue(program_->today);
            Click(*form, "Command10");
        }
        Click(*form, "Command6");
        program_->messages.Expect(Saved("  Member payments have been saved...  "));
        Click(*form, "Command1");
        Click(*form, "Command2");
        EXPECT_FALSE(form->isVisible());
    }

    int Overdue() {
        const auto form = Open<SPayments>();
        const auto* grid = Find<Grid>(*form, "MSFlexGrid1");
        int count = 0;
        for (int row = 1; row <= members + 1; ++row) {
            count += grid->CellColour(row, 3) == QColor(192, 0, 0) ? 1 : 0;
        }
        return count;
    }

    void WriteDiary(int week) {
        const auto form = Open<SManager>();
        auto* grid = Find<Grid>(*form, "MSFlexGrid1");
        Q_EMIT grid->cellClicked(week, 0);
        Click(*form, "Command2");
        for (const char* text : {"50", "50", week % 10 == 0 ? "410.10" : "0", "", "drawn"}) {
            Find<QLineEdit>(*form, "Text2")->setText(QLatin1String(text));
            Click(*form, "Command2");
        }
        Click(*form, "Command8");
        Click(*form, "Command1");
        EXPECT_FALSE(form->isVisible());
    }

    std::unique_ptr<TestProgram> program_ = std::make_unique<TestProgram>();
    int printed_ = 0;
    std::string printedTotal_;
};

TEST_F(AMadeUpYear, KeepsItsBooksToThePenny) {
    Make();
    AddMembers();
    EXPECT_EQ(program_->state.Members(1, 0), "Member 01");
    for (int week = 1; week <= weeks; ++week) {
        if (week % 13 == 0) Restart();
        WriteDiary(week);
        if (week % 13 == 1) {
            Pay();
            EXPECT_EQ(Overdue(), 1);
        }
        program_->today = DaysAfter(program_->today, 7);
    }
    Restart();
    EXPECT_EQ(Overdue(), members + 1);
    // 52 weeks of 50, five wins of 410.10.
    EXPECT_EQ(printedTotal_, "-\u00A3549.50");
    EXPECT_EQ(printed_, 1 + 4 + weeks);
    EXPECT_EQ(MemberCount(View(program_->state)), members);
    const std::string diary = program_->folder.Read("Diary.000");
    EXPECT_EQ(std::count(diary.begin(), diary.end(), '\n'), weeks);

    const auto form = Open<DeleteSyndicate>();
    Find<ListBox>(*form, "List1")->SetIndex(0);
    program_->messages.Expect({.title = QStringLiteral("Delete"),
                               .text = QStringLiteral("Are you sure?    "),
                               .sign = Sign::Question,
                               .buttons = Buttons::YesNo},
                              Answer::Yes);
    Click(*form, "Command2");
    EXPECT_TRUE(program_->folder.Find("SMembers.*").empty());
    EXPECT_TRUE(program_->folder.Find("Diary.*").empty());
    Restart();
    EXPECT_EQ(program_->state.Settings(setting::SyndicateFile), "");
}

}  // namespace
