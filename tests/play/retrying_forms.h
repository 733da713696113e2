// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/lines_form.h"

/// What the forms that try until their lines comply have in common.
constexpr const char* statusLine = "Label5";
constexpr const char* explainButton = "Command3";
constexpr const char* helpButton = "Command4";

/// The filter buttons of averages and key numbers.
inline constexpr FilterNames filtersFromEight = {.oddEven = "Command8",
                                                 .highLow = "Command9",
                                                 .longRuns = "Command10",
                                                 .previousDraws = "Command11"};

/// A form that tries until its lines comply, on three lotteries: 6 of 49 with a bonus ball, 5 of 34
/// with an extra ball, and 7 of 27 without draws. All filters have strength 1, long runs 3.
class TryingFormTest : public LinesFormTest {
  protected:
    TryingFormTest();

    /// A lottery before all others, under this name and these rules.
    void AddFirstLottery(const std::string& name, const std::string& rules,
                         const std::vector<std::string>& draws = {});

    /// Leaves nothing but one lottery of 6 of 49 with these draws.
    void LeaveOnlyLotto(const std::vector<std::string>& draws);

    /// A click on the lottery, also on the one that is chosen.
    void ClickLottery(int index);

    QString Status() { return Text(statusLine); }

    /// Whether the status line tells that the ten seconds were not enough.
    bool SaysLinesFail();

    void SetCondition(const char* box, bool set);
    bool IsSet(const char* box);

    /// Lets the conditions come true for no line whatever: the ten seconds run out.
    void AskTheImpossible(const char* box);

    /// One column of the lines shown, and the numbers of all lines.
    std::vector<int> Column(int column);
    std::vector<int> AllNumbers();

    /// Words and start of the conditions, and the frame's words.
    void ExpectTryingWords(const FilterNames& filters);

    /// The "?" shows the first tip, the help button and F1 open the page.
    void ExpectTipAndHelp();

    /// Neither the frame's buttons nor the list act while `Busy` is set.
    void ExpectNoActionWhileBusy(const FilterNames& filters);

    /// Enter generates wherever the focus is in these controls.
    void ExpectEnterGenerates(const std::vector<const char*>& controls);

    /// Busy under the hourglass with an emptied grid as long as lines are made.
    void ExpectBusyOverEmptyGridWhileGenerating();

    /// The close button and Esc close, save saves, print waits for a printer.
    void ExpectSaveAndClose();
};
