// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "platform/forms/Form.h"
#include "printing/slip_template.h"

class FilteredBox;
class Grid;
class GridEditor;
class ListBox;
class OptionGroup;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class SlipView;

/// Defines how a lottery slip is laid out: its measurements, the positions of its numbers that
/// follow from them, and the lottery that it is for. A test print, laid over a slip, shows whether
/// they fit.
///
/// Positions typed into the grid hold until they are generated again, which every save does.
class PrintSetup final : public Form {
    Q_OBJECT
  public:
    PrintSetup(Program& program, QWidget* parent);

    void Load() override;

  private:
    QLayout* MakeTemplates();
    QLayout* MakeTemplateCommands();
    QLayout* MakeMeasures();
    QGroupBox* MakeOrientation();
    QGroupBox* MakeFrame(int frame);
    QLayout* MakePositions();
    void MakeGrid();
    QLayout* MakeEditRow();
    QPushButton* MakeTestPrint();
    QPushButton* MakeAdjustPrinter();
    QLayout* MakeActions();

    void ListTemplates();
    void ChooseFirstTemplate();
    void ChooseTemplate();
    void ChooseLottery();
    void ShowTemplate(const SlipTemplate& slip);
    void ShowPositions(const SlipTemplate& slip);
    void ClearPositions();
    void FollowCell(int row, int column);
    void ChangePosition();
    void FollowMeasures();
    QString MeasureHint() const;
    void ShowSlip();

    SlipTemplate EnteredTemplate() const;
    int TemplateNamed(const std::string& name) const;

    void Generate();
    void Save();
    void DeleteTemplate();
    void PrintTest();
    void AdjustPrinter();
    void AskAndClose();

    bool eventFilter(QObject* watched, QEvent* event) override;

    ListBox* templates_;
    ListBox* files_;  // of the templates, by the same indices
    ListBox* lotteries_;
    QLineEdit* name_;
    OptionGroup* orientation_;
    std::array<QLineEdit*, measureCount> measures_{};
    SlipView* slip_;
    QLabel* hint_;
    Grid* grid_;
    FilteredBox* position_;
    GridEditor* editor_;
    QPushButton* generate_;
};
