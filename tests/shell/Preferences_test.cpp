// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Preferences.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "core/failure.h"
#include "core/settings.h"
#include "platform/system/LocaleRegion.h"
#include "shell/ColourSample.h"
#include "tests/support/form_test.h"

namespace {

struct Words {
    const char* name;
    const char* caption;
    const char* toolTip;
};

constexpr Words labels[] = {
    {"Label1", " Add background images:", ""},
    {"Label10", " Change the colors:", ""},
    {"Label4", " Set the filter parameters:", ""},
    {"Label14", " Edit the items on the WebLinks menu:", ""},
    {"Label12", "Click an element and pick a new color:", ""},
    {"Label5", "Title", " Change title color "},
    {"Label6", "Main body text", " Change body text color "},
    {"Label7", "Labels", " Change label color "},
    {"Label9", "Other text", " Change other text color "},
    {"Label8", "", " Change background color "},
    {"Label13",
     "Some lottery entries are unlikely, like 1, 2, 3, 4, 5, 6. There are six consecutive numbers, "
     "and all six numbers are very low, making it a poor choice on both counts.",
     ""},
    {"Label15",
     "Lottery Quillon can avoid bad selections like this when generating lottery entries, or you "
     "can filter them out afterwards. The options here set the strength of the filters.",
     ""},
    {"Label11(0)",
     "All forms on the same  menu use the same background image. Replace them (in the program "
     "folder) with your own images:",
     ""},
    {"Label11(1)",
     "SkinPlay.jpg, SkinDatabases.jpg, SkinAnalyse.jpg, SkinFile.jpg, SkinSyndicates.jpg, "
     "SkinHelp.jpg, SkinMain.jpg.",
     ""}};

constexpr Words options[] = {
    {"Option1(0)", "Must have at least 1 odd or even number", ""},
    {"Option1(1)", "Must have at least 2 odd or even numbers", ""},
    {"Option2(0)", "Must have at least 1 low or high number", ""},
    {"Option2(1)", "Must have at least 2 low or high numbers", ""},
    {"Option3(0)", "Must have 1 number different", ""},
    {"Option3(1)", "Must have 2 numbers different", ""},
    {"Option4(0)", "No more than 3 consecutive numbers", ""},
    {"Option4(1)", "No more than 2 consecutive numbers", ""},
    {"Check4", "Enable", ""},
    {"Check1", "Enable", ""},
    {"Command9", "Reset", " Set colors back to the defaults "},
    {"Command12", "Reset all program defaults", " Set colors, filters etc. back to defaults "}};

constexpr std::pair<const char*, const char*> frames[] = {{"Frame1", " Odd/Even numbers "},
                                                          {"Frame2", " High/Low numbers "},
                                                          {"Frame3", " Previous draw results "},
                                                          {"Frame5", " Runs of numbers "}};

/// The colour fields by their slots.
constexpr const char* samples[] = {"Label5", "Label6", "Label7", "Label9", "Label8"};

class PreferencesForm : public testing::Test {
  protected:
    PreferencesForm() { MakeDefaultSettings(test_.state, test_.folder); }

    void Open() {
        form_ = std::make_unique<Preferences>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    /// What the settings hold in memory.
    std::string Setting(int slot) { return test_.state.Settings(slot); }

    /// What the file holds.
    std::string Saved(int slot) {
        State read;
        LoadSettings(read, test_.folder);
        return read.Settings(slot);
    }

    QString Text(const char* name) { return Find<QLabel>(*form_, name)->text(); }
    bool Chosen(const char* name) { return Find<QAbstractButton>(*form_, name)->isChecked(); }
    QLineEdit& Box(const char* name) { return *Find<QLineEdit>(*form_, name); }
    QColor Shown(const char* name) { return Find<ColourSample>(*form_, name)->Colour(); }

    std::vector<QColor> AllShown() {
        std::vector<QColor> shown;
        for (const char* name : samples) shown.push_back(Shown(name));
        return shown;
    }

    void Pick(const char* name, const QColor& colour) {
        test_.dialogs.colours.emplace_back(colour);
        Click(*form_, name);
    }

    void ExpectReset(Answer answer) {
        test_.messages.Expect({.title = QStringLiteral("Reset everything!"),
                               .text = QStringLiteral(" Are you sure?    "),
                               .sign = Sign::Question,
                               .buttons = Buttons::YesNo,
                               .discards = true},
                              answer);
    }

    void Speak(QLocale::Language language, QLocale::Country country) {
        test_.services.region = RegionOf(QLocale(language, country));
    }

    TestProgram test_;
    std::unique_ptr<Preferences> form_;
};

TEST_F(PreferencesForm, HasItsWords) {
    Speak(QLocale::English, QLocale::UnitedStates);
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("Preferences"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Preferences"));
    for (const Words& label : labels) {
        EXPECT_EQ(Text(label.name).toStdString(), label.caption) << label.name;
        EXPECT_EQ(Find<QLabel>(*form_, label.name)->toolTip().toStdString(), label.toolTip);
    }
    for (const Words& option : options) {
        const auto* button = Find<QAbstractButton>(*form_, option.name);
        EXPECT_EQ(button->text().toStdString(), option.caption) << option.name;
        EXPECT_EQ(button->toolTip().toStdString(), option.toolTip) << option.name;
    }
    for (const auto& [name, title] : frames) {
        EXPECT_EQ(Find<QGroupBox>(*form_, name)->title().toStdString(), title);
    }
    EXPECT_EQ(form_->findChild<QObject*>(QStringLiteral("Frame4")), nullptr);
}

TEST_F(PreferencesForm, HasOneRowForEachLinkThatCanBeChanged) {
    Open();
    for (int i = 0; i < 9; ++i) {
        const std::string place = "(" + std::to_string(i) + ")";
        EXPECT_EQ(Text(("Label2" + place).c_str()), QStringLiteral("Menu:"));
        EXPECT_EQ(Text(("Label3" + place).c_str()), QStringLiteral("URL:"));
        EXPECT_EQ(Box(("Text1" + place).c_str()).text().toStdString(), Setting(21 + i));
        EXPECT_EQ(Box(("Text2" + place).c_str()).text().toStdString(), Setting(31 + i));
    }
    EXPECT_EQ(form_->findChild<QObject*>(QStringLiteral("Text1(9)")), nullptr);
}

TEST_F(PreferencesForm, HasOnlyToolTipsOnSaveAndClose) {
    Open();
    EXPECT_EQ(Find<QAbstractButton>(*form_, "Command7")->toolTip(),
              QStringLiteral(" Save the settings "));
    EXPECT_EQ(Find<QAbstractButton>(*form_, "Command1")->toolTip(),
              QStringLiteral(" Close and discard changes "));
}

TEST_F(PreferencesForm, SpeaksBritishWhereMoneyIsPounds) {
    for (const QLocale::Language language : {QLocale::English, QLocale::Welsh}) {
        Speak(language, QLocale::UnitedKingdom);
        Open();
        EXPECT_EQ(Text("Label10"), QStringLiteral(" Change the colours"));
        EXPECT_EQ(Text("Label12"), QStringLiteral("Click an element and pick a new colour:"));
        EXPECT_EQ(Find<QLabel>(*form_, "Label5")->toolTip(),
                  QStringLiteral(" Change title color "));
        EXPECT_EQ(Find<QAbstractButton>(*form_, "Command9")->toolTip(),
                  QStringLiteral(" Set colors back to the defaults "));
    }
}

TEST_F(PreferencesForm, SpeaksAmericanEverywhereElse) {
    for (const QLocale::Country country :
         {QLocale::Australia, QLocale::Ireland, QLocale::UnitedStates}) {
        Speak(QLocale::English, country);
        Open();
        EXPECT_EQ(Text("Label10"), QStringLiteral(" Change the colors:"));
        EXPECT_EQ(Text("Label12"), QStringLiteral("Click an element and pick a new color:"));
    }
}

TEST_F(PreferencesForm, ShowsTheStrengthsOfTheSettings) {
    Open();
    for (const char* first : {"Option1(0)", "Option2(0)", "Option3(0)", "Option4(0)"}) {
        EXPECT_TRUE(Chosen(first)) << first;
    }
    for (int slot = 11; slot <= 14; ++slot) test_.state.Settings(slot) = "2";
    Open();
    for (const char* second : {"Option1(1)", "Option2(1)", "Option3(1)", "Option4(1)"}) {
        EXPECT_TRUE(Chosen(second)) << second;
    }
}

TEST_F(PreferencesForm, ShowsTheFirstStrengthForEveryNumberButTwo) {
    test_.state.Settings(11) = "3";
    test_.state.Settings(12) = "";
    test_.state.Settings(13) = "3 History  filter";
    test_.state.Settings(14) = "7 Long Run filter";
    Open();
    EXPECT_TRUE(Chosen("Option1(0)"));
    EXPECT_TRUE(Chosen("Option2(0)"));
    EXPECT_TRUE(Chosen("Option3(0)"));
    EXPECT_TRUE(Chosen("Option4(0)"));
    Click(*form_, "Command7");
    EXPECT_EQ(Saved(11), "1 Odd/Even filter");
    EXPECT_EQ(Saved(12), "1 High/Low filter");
    EXPECT_EQ(Saved(13), "1 History  filter");
    EXPECT_EQ(Saved(14), "3 Long Run filter");
}

TEST_F(PreferencesForm, ShowsTheTwoBitsOfSlotTen) {
    const std::vector<std::tuple<const char*, bool, bool, const char*>> cases = {
        {"1 Skinning/colours", true, false, "1"},
        {"0", false, false, "0"},
        {"2", false, true, "2"},
        {"7 x", true, true, "3"},
        {"4", false, false, "0"},
        {"none", false, false, "0"}};
    for (const auto& [slot, pictures, colours, saved] : cases) {
        test_.state.Settings(10) = slot;
        Open();
        EXPECT_EQ(Chosen("Check4"), pictures) << slot;
        EXPECT_EQ(Chosen("Check1"), colours) << slot;
        Click(*form_, "Command7");
        EXPECT_EQ(Saved(10), saved) << slot;
    }
}

TEST_F(PreferencesForm, ShowsTheColoursOfTheSettings) {
    Open();
    EXPECT_EQ(AllShown(), (std::vector<QColor>{QColor(0, 0, 0), QColor(0, 0, 0), QColor(0, 0, 0x80),
                                               QColor(0x80, 0, 0), QColor(0xf0, 0xf0, 0xf0)}));
}

TEST_F(PreferencesForm, EndsTheRunAtAColourThatIsNoNumberEvenWithColoursOff) {
    for (int slot = 1; slot <= 5; ++slot) {
        for (const char* wrong : {"red", "", "&H"}) {
            MakeDefaultSettings(test_.state, test_.folder);
            test_.state.Settings(10) = "0";
            test_.state.Settings(slot) = wrong;
            Preferences form(test_.program, nullptr);
            EXPECT_THROW(form.Load(), Failure) << slot << " \"" << wrong << '"';
        }
    }
}

TEST_F(PreferencesForm, ColoursOnlyItsLinksTwoTextsAndBackground) {
    test_.state.Settings(10) = "2";
    test_.state.Settings(1) = "&H111111";
    test_.state.Settings(2) = "&H222222";
    test_.state.Settings(3) = "&H333333";
    test_.state.Settings(4) = "&H444444";
    test_.state.Settings(5) = "&HC0FFC0";
    Open();
    std::map<std::string, QColor> expected = {{"Label13", QColor(0x22, 0x22, 0x22)},
                                              {"Label15", QColor(0x44, 0x44, 0x44)}};
    for (int i = 0; i < 9; ++i) {
        for (const char* array : {"Label2", "Label3"}) {
            expected[array + ("(" + std::to_string(i) + ")")] = QColor(0x33, 0x33, 0x33);
        }
    }
    const QColor own = form_->palette().color(QPalette::WindowText);
    for (const QLabel* label : form_->findChildren<QLabel*>()) {
        const std::string name = label->objectName().toStdString();
        if (!name.starts_with("Label") || qobject_cast<const ColourSample*>(label) != nullptr) {
            continue;
        }
        const QColor wanted = expected.contains(name) ? expected.at(name) : own;
        EXPECT_EQ(label->palette().color(QPalette::WindowText), wanted) << name;
    }
    EXPECT_EQ(form_->palette().color(QPalette::Window), QColor(0xC0, 0xFF, 0xC0));
    // What is picked now colours its own field only.
    Pick("Label6", QColor(Qt::red));
    Pick("Label8", QColor(Qt::blue));
    EXPECT_EQ(Find<QLabel>(*form_, "Label13")->palette().color(QPalette::WindowText),
              QColor(0x22, 0x22, 0x22));
    EXPECT_EQ(form_->palette().color(QPalette::Window), QColor(0xC0, 0xFF, 0xC0));
}

TEST_F(PreferencesForm, StoresAPickedColourAtOnceAndShowsItInItsOwnField) {
    Open();
    const std::vector<std::tuple<std::size_t, QColor, const char*>> picks = {
        {0, QColor(255, 0, 0), "&HFF"},
        {1, QColor(0, 255, 0), "&HFF00"},
        {2, QColor(0, 0, 255), "&HFF0000"},
        {3, QColor(0, 0, 0), "&H0"},
        {4, QColor(0x12, 0xab, 0xcd), "&HCDAB12"}};
    for (const auto& [place, colour, text] : picks) {
        std::vector<QColor> expected = AllShown();
        expected.at(place) = colour;
        Pick(samples[place], colour);
        EXPECT_EQ(Setting(static_cast<int>(place) + 1), text);
        EXPECT_EQ(AllShown(), expected) << samples[place];
    }
    EXPECT_EQ(Saved(1), "&H000000") << "nothing is written yet";
}

TEST_F(PreferencesForm, ReadsAPickedColourBackAsItWas) {
    Open();
    Pick("Label5", QColor(0, 255, 0));
    Click(*form_, "Command7");
    LoadSettings(test_.state, test_.folder);
    Open();
    EXPECT_EQ(Shown("Label5"), QColor(0, 255, 0));
}

TEST_F(PreferencesForm, OpensTheDialogWithTheColourShown) {
    test_.state.Settings(3) = "&HFF";
    Open();
    Pick("Label7", QColor(Qt::blue));
    Pick("Label7", QColor(Qt::green));
    EXPECT_EQ(test_.dialogs.currentColours,
              (std::vector<QColor>{QColor(255, 0, 0), QColor(0, 0, 255)}));
}

TEST_F(PreferencesForm, ChangesNothingWhereTheColourDialogIsCancelled) {
    Open();
    for (const char* name : samples) {
        const std::vector<QColor> before = AllShown();
        test_.dialogs.colours.emplace_back(std::nullopt);
        Click(*form_, name);
        EXPECT_EQ(AllShown(), before);
    }
    EXPECT_EQ(Setting(1), "&H000000");
    EXPECT_EQ(Setting(5), "&H8000000F");
}

TEST_F(PreferencesForm, ADoubleClickOpensTheDialogOnce) {
    Open();
    test_.dialogs.colours.emplace_back(QColor(Qt::red));
    auto* sample = Find<ColourSample>(*form_, "Label5");
    quint64 time = 10000;
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                            QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        const QPointF place(5, 5);
        QMouseEvent event(type, place, sample->mapToGlobal(place), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        event.setTimestamp(time += 50);
        QApplication::sendEvent(sample, &event);
    }
    EXPECT_EQ(test_.dialogs.currentColours.size(), 1U);
}

TEST_F(PreferencesForm, ResetsTheColoursWithoutWritingThem) {
    for (int slot = 1; slot <= 5; ++slot) test_.state.Settings(slot) = "&HFF00FF";
    SaveSettings(test_.state, test_.folder);
    Open();
    Click(*form_, "Command9");
    EXPECT_EQ(AllShown(), (std::vector<QColor>{QColor(0, 0, 0), QColor(0, 0, 0), QColor(0, 0, 0x80),
                                               QColor(0x80, 0, 0), QColor(0xf0, 0xf0, 0xf0)}));
    EXPECT_EQ(Setting(3), "&H800000");
    EXPECT_EQ(Setting(5), "&H8000000F");
    EXPECT_EQ(Saved(3), "&HFF00FF");
    EXPECT_TRUE(form_->isVisible());
    Click(*form_, "Command7");
    EXPECT_EQ(Saved(5), "&H8000000F");
}

TEST_F(PreferencesForm, SavedWithoutAChangeOnlyTakesTheLabelFromSlotTen) {
    State before;
    LoadSettings(before, test_.folder);
    Open();
    Click(*form_, "Command7");
    EXPECT_FALSE(form_->isVisible());
    for (int slot = 1; slot <= 100; ++slot) {
        EXPECT_EQ(Saved(slot), slot == 10 ? "1" : before.Settings(slot)) << slot;
    }
    const std::string file = test_.folder.Read("quillon.ini");
    EXPECT_EQ(std::ranges::count(file, '\n'), 100);
}

TEST_F(PreferencesForm, SavesWhatIsChosen) {
    Open();
    for (const char* name :
         {"Option1(1)", "Option2(1)", "Option3(1)", "Option4(1)", "Check4", "Check1"}) {
        Click(*form_, name);
    }
    Click(*form_, "Command7");
    EXPECT_EQ(Saved(10), "2");
    EXPECT_EQ(Saved(11), "2 Odd/Even filter");
    EXPECT_EQ(Saved(12), "2 High/Low filter");
    EXPECT_EQ(Saved(13), "2 History  filter");
    EXPECT_EQ(Saved(14), "2 Long Run filter");
}

TEST_F(PreferencesForm, SavesLinksWithTheirAmpersandsCommasAndPrefix) {
    Open();
    Type(*form_, "Text1(4)", QStringLiteral(" Bread & Butter, fresh "));
    Type(*form_, "Text2(4)", QStringLiteral("www.bread.example/?a=1&b=2,3"));
    Click(*form_, "Command7");
    EXPECT_EQ(Saved(25), "Bread && Butter' fresh");
    EXPECT_EQ(Saved(35), "http://www.bread.example/?a=1&b=2,3");
}

TEST_F(PreferencesForm, ShowsACaptionAsItIsKeptAndDoublesItsAmpersandsAgain) {
    test_.state.Settings(21) = "Bread && Butter";
    Open();
    EXPECT_EQ(Box("Text1(0)").text(), QStringLiteral("Bread && Butter"));
    Click(*form_, "Command7");
    EXPECT_EQ(Saved(21), "Bread &&&& Butter");
}

TEST_F(PreferencesForm, KeepsALinkWhoseCaptionIsEmptied) {
    Open();
    Type(*form_, "Text1(2)", {});
    Type(*form_, "Text2(2)", QStringLiteral("www.other.example"));
    Click(*form_, "Command7");
    EXPECT_EQ(Saved(23), "US Powerball");
    EXPECT_EQ(Saved(33), "http://www.powerball.example");
}

TEST_F(PreferencesForm, TakesLettersOfTheFilesCharacterSet) {
    Open();
    Box("Text1(0)").setText(QString::fromUtf8("Zürich €"));
    Click(*form_, "Command7");
    EXPECT_EQ(Saved(21), "Z\xFCrich \x80");
}

TEST_F(PreferencesForm, ALineEndThatIsPastedMakesNoLineOfTheFile) {
    Open();
    Box("Text1(0)").clear();
    Box("Text1(0)").insert(QStringLiteral("UK\r\nLotto"));
    Box("Text2(0)").clear();
    Box("Text2(0)").insert(QStringLiteral("www.lotto.example\n"));
    Click(*form_, "Command7");
    EXPECT_EQ(Saved(21), "UK Lotto");
    EXPECT_EQ(Saved(31), "http://www.lotto.example");
    EXPECT_EQ(std::ranges::count(test_.folder.Read("quillon.ini"), '\n'), 100);
}

TEST_F(PreferencesForm, EnterInATextBoxSaves) {
    Open();
    Type(*form_, "Text2(3)", QStringLiteral("www.mega.example"));
    QTest::keyClick(&Box("Text2(3)"), Qt::Key_Return);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(Saved(34), "http://www.mega.example");
}

TEST_F(PreferencesForm, SpaceAndEnterOnAColourOpenItsDialog) {
    Open();
    test_.dialogs.colours = {QColor(Qt::red), QColor(Qt::blue)};
    auto* sample = Find<ColourSample>(*form_, "Label6");
    sample->setFocus();
    QTest::keyClick(sample, Qt::Key_Space);
    EXPECT_EQ(Setting(2), "&HFF");
    QTest::keyClick(sample, Qt::Key_Return);
    EXPECT_EQ(Setting(2), "&HFF0000");
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(PreferencesForm, WritesNothingWhenItIsClosedInAnotherWay) {
    const auto before = test_.folder.Snapshot();
    const std::vector<std::function<void()>> ways = {
        [this] { Click(*form_, "Command1"); },
        [this] { QTest::keyClick(form_.get(), Qt::Key_Escape); }, [this] { form_->close(); }};
    for (const auto& way : ways) {
        Open();
        Click(*form_, "Option1(1)");
        Pick("Label5", QColor(Qt::red));
        way();
        EXPECT_FALSE(form_->isVisible());
        EXPECT_EQ(test_.folder.Snapshot(), before);
    }
}

TEST_F(PreferencesForm, EndsTheRunWhereItCannotSaveAndLeavesTheOldFile) {
    const auto before = test_.folder.Snapshot();
    Open();
    test_.folder.FailAfterBytes(10);
    Click(*form_, "Command7");
    EXPECT_NE(TakeFailure().value_or("").find("quillon.ini"), std::string::npos);
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(PreferencesForm, ResetsEverythingByDeletingTheSettingsAlone) {
    test_.folder.Write("MyLottery.txt", "entries");
    test_.folder.Write("dbase1.txt", "draws");
    const std::string settings = test_.folder.Read("quillon.ini");
    Open();
    ExpectReset(Answer::Yes);
    Click(*form_, "Command12");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_FALSE(test_.folder.Exists("quillon.ini"));
    EXPECT_EQ(test_.folder.Read("MyLottery.txt"), "entries");
    EXPECT_EQ(test_.folder.Read("dbase1.txt"), "draws");
    const auto kept = test_.folder.Find("Backup/Undo/*");
    ASSERT_EQ(kept.size(), 1U) << "the settings can be had back";
    EXPECT_EQ(test_.folder.Read(kept.front()), settings);
}

TEST_F(PreferencesForm, ResetsNothingOnNo) {
    Open();
    ExpectReset(Answer::No);
    Click(*form_, "Command12");
    EXPECT_TRUE(form_->isVisible());
    EXPECT_TRUE(test_.folder.Exists("quillon.ini"));
}

TEST_F(PreferencesForm, ResetsEverythingWhereTheSettingsAreGoneAlready) {
    Open();
    test_.folder.Delete("quillon.ini");
    ExpectReset(Answer::Yes);
    Click(*form_, "Command12");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(PreferencesForm, StartsAtTheFilters) {
    Open();
    EXPECT_EQ(form_->focusWidget(), Find<QAbstractButton>(*form_, "Option1(0)"));
}

}  // namespace
