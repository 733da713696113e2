// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QStringList>
#include <memory>
#include <utility>
#include <vector>

#include "platform/widgets/Grid.h"
#include "tests/support/form_test.h"

/// Names of controls and their texts.
using Words = std::vector<std::pair<const char*, const char*>>;

/// What the forms that make lines call the controls that all of them have.
constexpr const char* headingLabel = "Label7";
constexpr const char* bodyLabel = "Label2";
constexpr const char* lotteryPrompt = "Label1";
constexpr const char* lotteryList = "List1";
constexpr const char* linesGrid = "MSFlexGrid1";
constexpr const char* generateButton = "Command2";
constexpr const char* printButton = "Command6";
constexpr const char* saveButton = "Command7";
constexpr const char* closeButton = "Command1";

/// The boxes of the forms that try until their lines comply.
constexpr const char* oddEvenBox = "Check1";
constexpr const char* highLowBox = "Check2";
constexpr const char* previousDrawsBox = "Check3";

/// The filter buttons of a form.
struct FilterNames {
    const char* oddEven = "Command13";
    const char* highLow = "Command14";
    const char* longRuns = "Command15";
    const char* previousDraws = "Command9";
};
inline constexpr FilterNames usualFilters;

/// A form that makes lines, on a folder in memory. A test fills the folder, then shows its form.
class LinesFormTest : public testing::Test {
  protected:
    LinesFormTest();

    void ShowForm(std::unique_ptr<Form> form);

    Grid& Lines() { return *Find<Grid>(*form_, linesGrid); }
    int ShownLines();

    /// Every text below the headings, to see whether lines are others.
    QStringList Texts();

    /// Columns 1 to `columns` of the lines shown; 0 where a cell is empty.
    std::vector<std::vector<int>> Rows(int columns);

    QLabel& Label(const char* name) { return *Find<QLabel>(*form_, name); }
    QString Text(const char* label) { return Label(label).text(); }
    QColor TextColour(const char* label);

    void ExpectLabels(const Words& words);
    void ExpectCaptions(const Words& words);

    /// The captions and tool-tips that all these forms have in common.
    void ExpectFrameWords(const FilterNames& filters, const char* help);

    /// Makes these numbers the only line of `Lines`; the grid stays.
    void MakeOnlyLine(const std::vector<int>& numbers);

    /// Each filter takes out a line that fails it and no other. The lottery is one of 6 of 49 with
    /// a draw of 3 17 22 34 41 48; the filters have strength 1 or 2, long runs 2 or 3.
    void ExpectFiltersTakeLinesOut(const FilterNames& filters);

    /// Colour n of the skin becomes a red of n, the background what is told.
    void TakeSkinColours(const char* background);

    /// Follows the Tab key from the first of these controls on.
    void ExpectTabOrder(const std::vector<const char*>& order);

    void ChooseLottery(int index);

    TestProgram test_;
    std::unique_ptr<Form> form_;
    int saves_ = 0;
};
