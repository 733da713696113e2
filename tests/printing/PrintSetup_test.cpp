// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintSetup.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <set>

#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "printing/SlipView.h"
#include "tests/core/failures.h"
#include "tests/printing/slips.h"
#include "tests/support/form_test.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* templateList = "List3";
constexpr const char* fileList = "List2";
constexpr const char* lotteryList = "List1";
constexpr const char* nameBox = "Text3";
constexpr const char* positionBox = "Text4";
constexpr const char* enterButton = "Command7";
constexpr const char* generateButton = "Command5";
constexpr const char* saveButton = "Command4";
constexpr const char* deleteButton = "Command3";
constexpr const char* testPrintButton = "Command6";
constexpr const char* helpButton = "Command1";
constexpr const char* closeButton = "CancelButton";
constexpr const char* perRowBox = "Text9";
constexpr const char* firstXBox = "Text6(2)";

const Message saved{.title = QStringLiteral("Lottery Quillon"),
                    .text = QStringLiteral("Template saved...    ")};
const Message fillFirst{.title = QStringLiteral("Error!"),
                        .text = QStringLiteral("Fill the grid first!    "),
                        .sign = Sign::Exclamation};
const Message closing{.title = QStringLiteral("Close"),
                      .text = QStringLiteral("Close? (Any changes not saved will be lost.)  "),
                      .sign = Sign::Question,
                      .buttons = Buttons::YesNo};

Message Deleting(const char* name) {
    return {.title = QStringLiteral("Delete template"),
            .text = QStringLiteral("Delete %1 template?    ").arg(QString::fromLatin1(name)),
            .sign = Sign::Question,
            .buttons = Buttons::YesNo};
}

// The measurements' controls with what stands in them at load, in the order of the file.
const std::vector<std::pair<const char*, const char*>> measureBoxes = {
    {"Text1(0)", "3"},    {"Text1(1)", "2"},    {"Text7(0)", "5"},    {"Text7(1)", "1"},
    {"Text9", "12"},      {"Text2(2)", "4"},    {"Text6(2)", "38.2"}, {"Text6(3)", "71.5"},
    {"Text2(3)", "42.1"}, {"Text2(4)", "27.3"}, {"Text6(0)", "3.8"},  {"Text6(1)", "6.39"},
    {"Text2(5)", "3.8"},  {"Text2(6)", "6.39"}, {"Text8(0)", "28.1"}, {"Text8(1)", "0"},
    {"Text2(0)", "3.0"},  {"Text2(1)", "5.5"}};

/// A folder in which nothing can be changed.
class ReadOnlyFolder final : public ProgramFolder {
  public:
    explicit ReadOnlyFolder(const ProgramFolder& folder) : folder_(folder) {}

    bool Exists(std::string_view name) const override { return folder_.Exists(name); }
    std::string Read(std::string_view name) const override { return folder_.Read(name); }
    bool Create(std::string_view name, std::string_view) override { Refuse(name); }
    void Write(std::string_view name, std::string_view) override { Refuse(name); }
    void Write(std::string_view name, std::string_view, FileTime) override { Refuse(name); }
    void Append(std::string_view name, std::string_view) override { Refuse(name); }
    std::vector<std::string> Find(std::string_view pattern) const override {
        return folder_.Find(pattern);
    }
    void Copy(std::string_view, std::string_view to) override { Refuse(to); }
    void Delete(std::string_view name) override { Refuse(name); }
    Date FileDate(std::string_view name) const override { return folder_.FileDate(name); }
    FileTime LastWritten(std::string_view name) const override { return folder_.LastWritten(name); }
    bool FolderExists(std::string_view name) const override { return folder_.FolderExists(name); }
    void MakeFolder(std::string_view name) override { Refuse(name); }
    std::string Rescue(std::string_view, std::string_view) override { return {}; }
    Moment Now() const override { return folder_.Now(); }

  private:
    [[noreturn]] static void Refuse(std::string_view name) {
        throw Failure(std::string(name) + ": the folder is read-only.");
    }

    const ProgramFolder& folder_;
};

class SettingUpSlips : public testing::Test {
  protected:
    SettingUpSlips() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
    }

    void Open() {
        form_ = std::make_unique<PrintSetup>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    Grid& Positions() { return *Find<Grid>(*form_, "MSFlexGrid1"); }
    QString Cell(int row, int column) { return Positions().Cell(row, column); }
    QLineEdit& Box(const char* name) { return *Find<QLineEdit>(*form_, name); }
    ListBox& List(const char* name) { return *Find<ListBox>(*form_, name); }
    bool Portrait() { return Find<QRadioButton>(*form_, "Option1(0)")->isChecked(); }
    void ClickCell(int row, int column) {
        Grid& grid = Positions();
        const QModelIndex index = grid.model()->index(row - 1, column);
        grid.scrollTo(index);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid.visualRect(index).center());
    }
    void SaveAs(const char* name) {
        Box(nameBox).setText(QString::fromLatin1(name));
        test_.messages.Expect(saved);
        Click(*form_, saveButton);
    }
    QStringList Entries(const char* list) {
        QStringList entries;
        for (int row = 0; row < List(list).count(); ++row) entries += List(list).item(row)->text();
        return entries;
    }
    bool NoPositions() {
        for (int row = 1; row <= 60; ++row) {
            for (int column = 1; column <= 4; ++column) {
                if (!Cell(row, column).isEmpty()) return false;
            }
        }
        return true;
    }

    TestProgram test_;
    std::unique_ptr<PrintSetup> form_;
};

TEST_F(SettingUpSlips, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Lottery slip print setup"));
    const std::vector<std::pair<const char*, const char*>> labels = {
        {"Label6", " Select a template:"},
        {"Label1", " Select a lottery:"},
        {"Label1(1)", "Edit:"},
        {"Label3", " Save template as:"},
        {"Label4", "Number positions on the lottery slip (mm):"},
        {"Label2(0)", "Main numbers"},
        {"Label2(1)", "Powerball"},
        {"Label5", "[1 ] [2] [3]\n[4] [5] [6]\n[7] [8]..."},
        {"Label7", "[3] [6]...\n[2] [5]...\n[1 ] [4]..."}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Find<QLabel>(*form_, name)->text(), QString::fromLatin1(text)) << name;
    }
    const std::vector<std::pair<const char*, const char*>> tips = {
        {generateButton, " Generate number positions "},
        {saveButton, " Save As/Update template "},
        {deleteButton, " Delete template "},
        {testPrintButton, " Test print on lottery slip "},
        {helpButton, " Get help "},
        {closeButton, " Close "}};
    for (const auto& [name, tip] : tips) {
        EXPECT_EQ(Find<QPushButton>(*form_, name)->toolTip(), QString::fromLatin1(tip)) << name;
    }
    EXPECT_EQ(Find<QPushButton>(*form_, enterButton)->text(), QStringLiteral("Enter"));
    EXPECT_EQ(Find<QRadioButton>(*form_, "Option1(0)")->text(), QStringLiteral("Portrait"));
    EXPECT_EQ(Find<QRadioButton>(*form_, "Option1(1)")->text(), QStringLiteral("Landscape"));
}

TEST_F(SettingUpSlips, NamesTheFramesOfTheMeasurements) {
    Open();
    const std::vector<std::pair<const char*, const char*>> frames = {
        {"Option1(0)", " Orientation "},        {"Text1(0)", "Size of mark (mm)"},
        {"Text7(1)", "Number of boards"},       {"Text9", "Numbers per row"},
        {"Text2(2)", "Numbers per row"},        {"Text6(3)", "Number 1 (mm)"},
        {"Text2(4)", "Number 1 (mm)"},          {"Text6(1)", "Number separation (mm)"},
        {"Text2(6)", "Number separation (mm)"}, {"Text8(0)", "Board separation (mm)"},
        {"Text2(1)", "Printer margin (mm)"}};
    for (const auto& [name, title] : frames) {
        const auto* frame = qobject_cast<QGroupBox*>(Find<QWidget>(*form_, name)->parentWidget());
        ASSERT_NE(frame, nullptr) << name;
        EXPECT_EQ(frame->title(), QString::fromLatin1(title)) << name;
    }
    const std::vector<std::pair<const char*, const char*>> titles = {
        {"Text1(0)Title", "Width:"},      {"Text1(1)Title", "Height:"},
        {"Text7(0)Title", "Across:"},     {"Text7(1)Title", "Down:"},
        {"Text6(2)Title", "Horizontal:"}, {"Text2(1)Title", "Vertical:"}};
    for (const auto& [name, text] : titles) {
        EXPECT_EQ(Find<QLabel>(*form_, name)->text(), QString::fromLatin1(text)) << name;
    }
}

TEST_F(SettingUpSlips, TellsAScreenReaderTheMeasurementsOfBothKindsApart) {
    Open();
    std::set<QString> spoken;
    for (const auto& [name, text] : measureBoxes) {
        const QLineEdit& box = Box(name);
        EXPECT_TRUE(spoken.insert(box.accessibleName() + box.accessibleDescription()).second)
            << name;
    }
}

TEST_F(SettingUpSlips, OpensOnAMeasuredSlipWithoutPositions) {
    Open();
    for (const auto& [name, text] : measureBoxes) {
        EXPECT_EQ(Box(name).text(), QString::fromLatin1(text)) << name;
    }
    EXPECT_FALSE(Portrait());
    EXPECT_EQ(Box(nameBox).text(), QString());
    EXPECT_EQ(List(lotteryList).Index(), 0);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_EQ(List(templateList).count(), 0);
    EXPECT_TRUE(List(fileList).isHidden());
    EXPECT_TRUE(NoPositions());
}

TEST_F(SettingUpSlips, ShowsSixtyNumberedRowsOfFourPositions) {
    Open();
    EXPECT_EQ(Positions().RowCount(), 61);
    EXPECT_EQ(Positions().ColumnCount(), 6);
    const QStringList headings = {QStringLiteral("Number"),  QStringLiteral("Num_X"),
                                  QStringLiteral("Num_Y"),   QStringLiteral("Pball_X"),
                                  QStringLiteral("Pball_Y"), QString()};
    for (int column = 0; column < 6; ++column) {
        EXPECT_EQ(Cell(0, column), headings[column]);
        EXPECT_EQ(Positions().isColumnHidden(column), column == 5);
    }
    EXPECT_EQ(Cell(1, 0), QStringLiteral("1"));
    EXPECT_EQ(Cell(60, 0), QStringLiteral("60"));
    const auto widthOf = [this](const char* text) {
        return Positions().fontMetrics().horizontalAdvance(QLatin1String(text));
    };
    EXPECT_EQ(Positions().columnWidth(0), widthOf("_NUMBER_"));
    EXPECT_EQ(Positions().columnWidth(4), widthOf("12345678900"));
}

TEST_F(SettingUpSlips, WithoutALotteryEndsTheRun) {
    test_.folder.Delete("dbase100.txt");
    test_.folder.Delete("dbase101.txt");
    form_ = std::make_unique<PrintSetup>(test_.program, nullptr);
    EXPECT_THROW(form_->Load(), std::exception);
}

TEST_F(SettingUpSlips, GeneratesThePositionsOfTheLottery) {
    Open();
    Click(*form_, generateButton);
    EXPECT_EQ(Cell(2, 1), QStringLiteral("38.20"));
    EXPECT_EQ(Cell(2, 2), QStringLiteral("65.11"));
    EXPECT_EQ(Cell(13, 1), QStringLiteral("42.00"));
    EXPECT_EQ(Cell(13, 2), QStringLiteral("71.50"));
    EXPECT_EQ(Cell(1, 3), QString());
    EXPECT_EQ(Cell(50, 1), QString());
}

TEST_F(SettingUpSlips, AnotherLotteryChangesNeitherBoxesNorGrid) {
    Open();
    Box(firstXBox).setText(QStringLiteral("40"));
    Click(*form_, generateButton);
    List(lotteryList).SetIndex(1);
    EXPECT_EQ(test_.state.MaxPball, 14);
    EXPECT_EQ(Box(firstXBox).text(), QStringLiteral("40"));
    EXPECT_EQ(Cell(49, 1), QStringLiteral("55.20"));
    EXPECT_EQ(Cell(1, 3), QString());
    Click(*form_, generateButton);
    EXPECT_EQ(Cell(35, 1), QString());
    EXPECT_EQ(Cell(14, 3), QStringLiteral("53.50"));
    EXPECT_EQ(Cell(15, 3), QString());
}

TEST_F(SettingUpSlips, InPortraitGeneratesAllRows) {
    Open();
    Click(*form_, "Option1(0)");
    Click(*form_, generateButton);
    EXPECT_EQ(Cell(60, 1), QStringLiteral("80.00"));
    EXPECT_EQ(Cell(60, 4), QStringLiteral("116.76"));
}

TEST_F(SettingUpSlips, EnterInAMeasurementGenerates) {
    Open();
    Box(firstXBox).setFocus();
    QTest::keyClick(&Box(firstXBox), Qt::Key_Return);
    EXPECT_EQ(Cell(1, 1), QStringLiteral("38.20"));
}

TEST_F(SettingUpSlips, NoNumbersPerRowEndTheRun) {
    Open();
    Box(perRowBox).setText(QStringLiteral("0"));
    Click(*form_, generateButton);
    EXPECT_TRUE(TakeFailure());
}

TEST_F(SettingUpSlips, HintsAtWhatReadsOtherwiseThanItLooks) {
    Open();
    const auto hint = [this] { return Find<QLabel>(*form_, "MeasureHint")->text(); };
    EXPECT_EQ(hint(), QString());
    Box(firstXBox).setText(QStringLiteral("38,2"));
    EXPECT_EQ(hint(),
              QStringLiteral("\"38,2\" counts as 38: write numbers with a point, as in 38.2"));
    Click(*form_, generateButton);
    EXPECT_EQ(Cell(1, 1), QStringLiteral("38.00"));
    EXPECT_EQ(Box(firstXBox).text(), QStringLiteral("38,2"));
    Box(firstXBox).setText(QStringLiteral("38.2"));
    Box("Text2(1)").setText(QStringLiteral("0"));
    EXPECT_EQ(hint(), QString());
    Box(perRowBox).setText(QStringLiteral("0"));
    EXPECT_EQ(hint(), QStringLiteral("Numbers per row: 1 or more, for both kinds of number"));
}

TEST_F(SettingUpSlips, ShowsTheMarksOfATestPrintAndThoseOutOfThePrintersReach) {
    Open();
    auto* view = Find<SlipView>(*form_, "SlipView");
    const auto hint = [this] { return Find<QLabel>(*form_, "MeasureHint")->text(); };
    EXPECT_EQ(view->accessibleDescription(), QStringLiteral("0 marks"));
    Click(*form_, generateButton);
    EXPECT_EQ(view->accessibleDescription(), QStringLiteral("245 marks"));
    // Numbers 12, 24, 36 and 48 stand 1.21 mm from the edge, in the margin of the printer.
    EXPECT_EQ(view->OutOfReach(), 20);
    EXPECT_EQ(hint(), QStringLiteral("Red marks begin outside of what the printer reaches: 20"));
    Box("Text2(1)").setText(QStringLiteral("1"));
    EXPECT_EQ(view->OutOfReach(), 0);
    EXPECT_EQ(hint(), QString());
    ClickCell(1, 1);
    Box(positionBox).setText(QStringLiteral("-1"));
    Click(*form_, enterButton);
    EXPECT_EQ(view->OutOfReach(), 1);
    Box("Text7(0)").setText(QStringLiteral("2000000000"));
    Box("Text7(1)").setText(QStringLiteral("2000000000"));
    EXPECT_EQ(view->accessibleDescription(), QStringLiteral("19600 marks"));
    List(lotteryList).SetIndex(1);
    EXPECT_EQ(view->accessibleDescription(), QStringLiteral("19200 marks"));
}

TEST_F(SettingUpSlips, ShowsMarksOfAnySizeAnywhere) {
    Open();
    Click(*form_, generateButton);
    for (const char* box : {"Text1(0)", "Text8(0)", "Text2(0)", "Text6(2)"}) {
        for (const char* text : {"99999999999999999999", "-99999999999999999999", "0"}) {
            Box(box).setText(QString::fromLatin1(text));
            form_->grab();
        }
    }
}

TEST_F(SettingUpSlips, MarksTheCellThatIsEditedAndWhitensTheOneBefore) {
    Open();
    Click(*form_, generateButton);
    ClickCell(3, 2);
    const QColor mark(0xFF, 0xFF, 0xC0);
    EXPECT_EQ(Positions().CellBackground(3, 2), mark);
    EXPECT_EQ(Box(positionBox).text(), QStringLiteral("58.72"));
    EXPECT_TRUE(Box(positionBox).hasFocus());
    ClickCell(4, 1);
    EXPECT_EQ(Positions().CellBackground(3, 2), QColor(Qt::white));
    EXPECT_EQ(Positions().CellBackground(4, 1), mark);
}

TEST_F(SettingUpSlips, AClickOnTheNumberOfARowTakesItsFirstPosition) {
    Open();
    Click(*form_, generateButton);
    ClickCell(3, 2);
    ClickCell(5, 0);
    EXPECT_EQ(Positions().currentIndex().row() + 1, 5);
    EXPECT_EQ(Positions().currentIndex().column(), 1);
    EXPECT_EQ(Positions().CellBackground(5, 1), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_FALSE(Positions().CellBackground(5, 0).isValid());
    EXPECT_EQ(Box(positionBox).text(), QStringLiteral("38.20"));
}

TEST_F(SettingUpSlips, TheKeyboardRunsTheCellRuleToo) {
    Open();
    Click(*form_, generateButton);
    ClickCell(3, 2);
    Positions().setFocus();
    QTest::keyClick(&Positions(), Qt::Key_Left);
    EXPECT_EQ(Box(positionBox).text(), QStringLiteral("38.20"));
    EXPECT_TRUE(Box(positionBox).hasFocus());
    Positions().setFocus();
    QTest::keyClick(&Positions(), Qt::Key_Left);
    EXPECT_EQ(Positions().currentIndex().column(), 1);
}

TEST_F(SettingUpSlips, UpAndDownLeadThroughThePositionsFromTheBox) {
    Open();
    Click(*form_, generateButton);
    ClickCell(1, 2);
    QTest::keyClick(&Box(positionBox), Qt::Key_Down);
    EXPECT_EQ(Box(positionBox).text(), QStringLiteral("65.11"));
    QTest::keyClick(&Box(positionBox), Qt::Key_Up);
    EXPECT_EQ(Box(positionBox).text(), QStringLiteral("71.50"));
    EXPECT_TRUE(Box(positionBox).hasFocus());
}

TEST_F(SettingUpSlips, BeforeAnyChoiceTheFirstPositionIsEdited) {
    Open();
    Box(positionBox).setText(QStringLiteral("7"));
    Click(*form_, enterButton);
    EXPECT_EQ(Cell(1, 1), QStringLiteral("7.00"));
}

TEST_F(SettingUpSlips, EntersAPositionAndStaysOnItsCell) {
    Open();
    Click(*form_, generateButton);
    ClickCell(2, 2);
    Box(positionBox).setText(QStringLiteral("-1.255"));
    QTest::keyClick(&Box(positionBox), Qt::Key_Return);
    EXPECT_EQ(Cell(2, 2), QStringLiteral("-1.26"));
    EXPECT_EQ(Box(positionBox).text(), QStringLiteral("-1.255"));
    EXPECT_EQ(Positions().currentIndex().row() + 1, 2);
    Box(positionBox).clear();
    Click(*form_, enterButton);
    EXPECT_EQ(Cell(2, 2), QStringLiteral("0.00"));
    Box(positionBox).setText(QStringLiteral("38,2"));
    Click(*form_, enterButton);
    EXPECT_EQ(Cell(2, 2), QStringLiteral("38.00"));
}

TEST_F(SettingUpSlips, TakesOnlyWhatMakesANumberIntoAPosition) {
    Open();
    ClickCell(1, 1);
    QTest::keyClicks(&Box(positionBox), QStringLiteral("x-1 2.3,4e"));
    EXPECT_EQ(Box(positionBox).text(), QStringLiteral("-12.3,4"));
    QTest::keyClick(&Box(positionBox), Qt::Key_Backspace);
    EXPECT_EQ(Box(positionBox).text(), QStringLiteral("-12.3,"));
}

TEST_F(SettingUpSlips, AnEditedPositionLastsUntilTheNextGeneration) {
    Open();
    Click(*form_, generateButton);
    ClickCell(2, 1);
    Box(positionBox).setText(QStringLiteral("9"));
    Click(*form_, enterButton);
    List(lotteryList).SetIndex(1);
    EXPECT_EQ(Cell(2, 1), QStringLiteral("9.00"));
    Click(*form_, generateButton);
    EXPECT_EQ(Cell(2, 1), QStringLiteral("38.20"));
}

TEST_F(SettingUpSlips, ASaveMakesAllPositionsAfresh) {
    Open();
    ClickCell(2, 1);
    Box(positionBox).setText(QStringLiteral("9"));
    Click(*form_, enterButton);
    SaveAs("Lotto slip");
    EXPECT_EQ(Cell(2, 1), QStringLiteral("38.20"));
    SlipTemplate expected = DefaultSlip();
    GeneratePositions(expected, 49, 0);
    MemoryFolder folder;
    WriteSlipTemplate(folder, "PTemplate.000", expected);
    EXPECT_EQ(test_.folder.Read("PTemplate.000"), folder.Read("PTemplate.000"));
}

TEST_F(SettingUpSlips, ANewTemplateIsListedTrimmedAndChosen) {
    Open();
    SaveAs("  First ");
    SaveAs("Second");
    EXPECT_EQ(Entries(templateList),
              (QStringList{QStringLiteral("First"), QStringLiteral("Second")}));
    EXPECT_EQ(Entries(fileList),
              (QStringList{QStringLiteral("PTemplate.000"), QStringLiteral("PTemplate.001")}));
    EXPECT_EQ(List(templateList).Index(), 1);
    EXPECT_EQ(test_.folder.Read("PTemplate.000").substr(0, 10), "  First \r\n");
}

TEST_F(SettingUpSlips, ChoosingTheNewTemplateReadsItBack) {
    Open();
    Box(firstXBox).setText(QStringLiteral("38,2"));
    SaveAs("Comma");
    EXPECT_EQ(Box(firstXBox).text(), QStringLiteral("38"));
    EXPECT_EQ(Box("Text6(3)").text(), QStringLiteral("2"));
}

TEST_F(SettingUpSlips, TheSameNameInAnotherCaseReplacesTheFile) {
    Open();
    SaveAs("Lotto");
    SaveAs("Other");
    List(templateList).SetIndex(1);
    List(lotteryList).SetIndex(1);
    SaveAs(" LOTTO ");
    EXPECT_EQ(Entries(templateList),
              (QStringList{QStringLiteral("Lotto"), QStringLiteral("Other")}));
    EXPECT_EQ(List(templateList).Index(), 1);
    EXPECT_FALSE(test_.folder.Exists("PTemplate.002"));
    EXPECT_EQ(ReadSlipTemplate(test_.folder, "PTemplate.000").name, " LOTTO ");
    EXPECT_EQ(ReadSlipTemplate(test_.folder, "PTemplate.000").lottery, "UK Thunderball");
}

TEST_F(SettingUpSlips, ANameWithBlanksIsAnotherOnceItWasListedFromItsFile) {
    Open();
    SaveAs(" Slip ");
    Open();
    EXPECT_EQ(Entries(templateList), QStringList{QStringLiteral(" Slip ")});
    SaveAs("Slip");
    EXPECT_TRUE(test_.folder.Exists("PTemplate.001"));
    EXPECT_EQ(List(templateList).count(), 2);
}

TEST_F(SettingUpSlips, AnEmptyNameIsANameLikeAnyOther) {
    Open();
    SaveAs("");
    SaveAs("  ");
    EXPECT_EQ(Entries(templateList), QStringList{QString()});
    EXPECT_FALSE(test_.folder.Exists("PTemplate.001"));
}

TEST_F(SettingUpSlips, ASaveLeavesTheNameAloneAndSoDoesAChoice) {
    Open();
    SaveAs(" One ");
    EXPECT_EQ(Box(nameBox).text(), QStringLiteral(" One "));
    SaveAs("Two");
    List(templateList).SetIndex(0);
    EXPECT_EQ(Box(nameBox).text(), QStringLiteral("Two"));
}

TEST_F(SettingUpSlips, ADiskThatFailsKeepsTheOldTemplate) {
    Open();
    SaveAs("Lotto");
    const std::string before = test_.folder.Read("PTemplate.000");
    Box(firstXBox).setText(QStringLiteral("1"));
    test_.folder.FailAfterBytes(100);
    Click(*form_, saveButton);
    EXPECT_TRUE(TakeFailure());
    EXPECT_EQ(test_.folder.Read("PTemplate.000"), before);
}

TEST_F(SettingUpSlips, AChosenTemplateIsShownAsItStandsInItsFile) {
    test_.folder.Write("PTemplate.000", SlipFile("  UK Thunderball ", 60, "0"));
    Open();
    EXPECT_EQ(List(templateList).Index(), 0);
    EXPECT_EQ(List(lotteryList).Index(), 1);
    EXPECT_EQ(test_.state.MaxPball, 14);
    EXPECT_TRUE(Portrait());
    EXPECT_EQ(Cell(60, 1), QStringLiteral("60.25"));
    EXPECT_EQ(Cell(7, 4), QStringLiteral("27.00"));
    EXPECT_EQ(Positions().CurrentRow(), 1);
    EXPECT_EQ(Positions().currentIndex().column(), 1);
    EXPECT_EQ(Box(positionBox).text(), QStringLiteral("1.25"));
}

TEST_F(SettingUpSlips, ATemplateOfAnUnknownLotteryLeavesTheLottery) {
    test_.folder.Write("PTemplate.000", SlipFile("uk thunderball"));
    Open();
    EXPECT_EQ(List(lotteryList).Index(), 0);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
}

TEST_F(SettingUpSlips, ATemplateCutShortEndsTheRun) {
    Open();
    SaveAs("One");
    SaveAs("Two");
    test_.folder.Write("PTemplate.000", SlipFile("UK Lotto", 59));
    EXPECT_EQ(FailureOf([this] { List(templateList).SetIndex(0); }),
              "PTemplate.000, line 72: expected Num_X of number 60, but the file ends there.");
}

TEST_F(SettingUpSlips, DeletingAsksAndThenShowsTheFirstTemplateWithoutPositions) {
    test_.folder.Write("PTemplate.000", SlipFile("UK Lotto"));
    Open();
    Box(firstXBox).setText(QStringLiteral("1"));
    SaveAs("Two");
    test_.messages.Expect(Deleting("Two"), Answer::Yes);
    const std::string two = test_.folder.Read("PTemplate.001");
    Click(*form_, deleteButton);
    EXPECT_FALSE(test_.folder.Exists("PTemplate.001"));
    EXPECT_EQ(test_.folder.Read("Backup/Undo/2000-01-01 000000 PTemplate.001"), two);
    EXPECT_EQ(Entries(templateList), QStringList{QStringLiteral("Slip")});
    EXPECT_EQ(List(templateList).Index(), 0);
    EXPECT_EQ(Box(firstXBox).text(), QStringLiteral("38.2"));
    EXPECT_TRUE(NoPositions());
}

TEST_F(SettingUpSlips, NoKeepsTheTemplate) {
    Open();
    SaveAs("One");
    test_.messages.Expect(Deleting("One"), Answer::No);
    Click(*form_, deleteButton);
    EXPECT_TRUE(test_.folder.Exists("PTemplate.000"));
    EXPECT_FALSE(NoPositions());
}

TEST_F(SettingUpSlips, DeletingWithoutATemplateAsksNothing) {
    Open();
    Click(*form_, deleteButton);
    EXPECT_EQ(test_.messages.Shown(), 0);
}

TEST_F(SettingUpSlips, DeletingTheLastTemplateEmptiesTheGrid) {
    Open();
    SaveAs("One");
    Box(firstXBox).setText(QStringLiteral("1"));
    test_.messages.Expect(Deleting("One"), Answer::Yes);
    Click(*form_, deleteButton);
    EXPECT_EQ(List(templateList).Index(), -1);
    EXPECT_EQ(Box(firstXBox).text(), QStringLiteral("1"));
    EXPECT_TRUE(NoPositions());
}

TEST_F(SettingUpSlips, AFreedNumberIsUsedAgain) {
    Open();
    for (const char* name : {"Zero", "One", "Two", "Three"}) SaveAs(name);
    List(templateList).SetIndex(2);
    test_.messages.Expect(Deleting("Two"), Answer::Yes);
    Click(*form_, deleteButton);
    SaveAs("New");
    EXPECT_EQ(ReadSlipTemplate(test_.folder, "PTemplate.002").name, "New");
}

TEST_F(SettingUpSlips, ATemplateThatIsGoneAlreadyIsNoError) {
    Open();
    SaveAs("One");
    test_.folder.Delete("PTemplate.000");
    test_.messages.Expect(Deleting("One"), Answer::Yes);
    Click(*form_, deleteButton);
    EXPECT_EQ(List(templateList).count(), 0);
}

TEST_F(SettingUpSlips, AnErrorOfTheDeletionIsToldAndTheTemplateStays) {
    test_.folder.Write("PTemplate.000", SlipFile("UK Lotto"));
    ReadOnlyFolder readOnly(test_.folder);
    Program program{.state = test_.state, .folder = readOnly, .services = test_.services};
    form_ = std::make_unique<PrintSetup>(program, nullptr);
    form_->Load();
    form_->show();
    test_.messages.Expect(Deleting("Slip"), Answer::Yes);
    test_.messages.Expect(
        {.title = QStringLiteral("Error!"),
         .text = QStringLiteral("PTemplate.000 is left as it is, as no copy of it can be kept: "
                                "Backup: the folder is read-only."),
         .sign = Sign::Exclamation});
    Click(*form_, deleteButton);
    EXPECT_EQ(Entries(templateList), QStringList{QStringLiteral("Slip")});
    EXPECT_TRUE(NoPositions());
    form_.reset();
}

TEST_F(SettingUpSlips, ATestPrintNeedsPositions) {
    Open();
    test_.messages.Expect(fillFirst);
    Click(*form_, testPrintButton);
    EXPECT_TRUE(test_.printers.printed.empty());
}

TEST_F(SettingUpSlips, ATestPrintMarksEveryNumberOnTheCurrentPrinterAsItStands) {
    Open();
    Click(*form_, generateButton);
    ClickCell(1, 1);
    Box(positionBox).setText(QStringLiteral("10"));
    Click(*form_, enterButton);
    Click(*form_, testPrintButton);
    ASSERT_EQ(test_.printers.printed.size(), 1U);
    const auto& printed = test_.printers.printed[0];
    EXPECT_EQ(printed.printer, QStringLiteral("Office"));
    EXPECT_FALSE(printed.job.options.orientation);
    EXPECT_FALSE(printed.job.options.paper);
    EXPECT_FALSE(printed.job.options.quality);
    EXPECT_TRUE(printed.job.corrected);
    ASSERT_EQ(printed.document.sheets.size(), 1U);
    const auto& marks = printed.document.sheets[0].rectangles;
    ASSERT_EQ(marks.size(), 5U * 49U);
    EXPECT_NEAR(marks[0].across, 10 - 3.0, 1e-9);
    EXPECT_NEAR(marks[49].across, 28.1 + 10 - 3.0, 1e-9);
    EXPECT_NEAR(marks[49].down, 71.5 - 5.5, 1e-9);
}

TEST_F(SettingUpSlips, ATestPrintReadsEmptyCellsAsZero) {
    Open();
    ClickCell(1, 1);
    Box(positionBox).setText(QStringLiteral("10"));
    Click(*form_, enterButton);
    Click(*form_, testPrintButton);
    const auto& marks = test_.printers.printed.at(0).document.sheets.at(0).rectangles;
    EXPECT_EQ(marks.size(), 5U * 49U);
    EXPECT_NEAR(marks[1].across, -3.0, 1e-9);
}

TEST_F(SettingUpSlips, ATestPrintOfNoBoardsPrintsNothing) {
    Open();
    Click(*form_, generateButton);
    Box("Text7(0)").setText(QStringLiteral("-1"));
    Click(*form_, testPrintButton);
    EXPECT_TRUE(test_.printers.printed.empty());
}

TEST_F(SettingUpSlips, HelpOpensThePageOfPrinting) {
    Open();
    Click(*form_, helpButton);
    QTest::keyClick(form_.get(), Qt::Key_F1);
    EXPECT_EQ(test_.pages, (std::vector<QString>{QStringLiteral("helpprint.html"),
                                                 QStringLiteral("helpprint.html#PrintSetup")}));
}

TEST_F(SettingUpSlips, ClosingAlwaysAsks) {
    Open();
    test_.messages.Expect(closing, Answer::No);
    Click(*form_, closeButton);
    EXPECT_TRUE(form_->isVisible());
    test_.messages.Expect(closing, Answer::Yes);
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(SettingUpSlips, AdjustsTheCurrentPrinter) {
    Open();
    InDialog([this] { Click(*form_, "AdjustPrinter"); },
             [](QDialog& dialog) {
                 EXPECT_EQ(Find<QLabel>(dialog, "FormTitle")->text(), QStringLiteral("Office"));
                 Find<QLineEdit>(dialog, "MoveDown")->setText(QStringLiteral("-1.5"));
                 Click(dialog, "OKButton");
             });
    EXPECT_EQ(test_.printers.corrections[QStringLiteral("Office")],
              (PageCorrection{.moveDown = -1.5}));
}

}  // namespace
