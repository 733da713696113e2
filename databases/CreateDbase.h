// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "databases/DrawBoxes.h"
#include "platform/forms/Form.h"

class BarInput;
class DatePicker;
class ListBox;
class QGridLayout;
class QLayout;
class QLineEdit;
class QRadioButton;
struct NewLottery;

/// Defines a lottery, by hand or from a ready-made template, and writes a new draw database with it
/// and a first draw.
class CreateDbase final : public Form {
    Q_OBJECT
  public:
    CreateDbase(Program& program, QWidget* parent);

    void Load() override;

  private:
    QLayout* MakeLists();
    QLayout* MakeLottery();
    QLayout* MakeNames();
    QLayout* MakeTypes();
    QLayout* MakeRules();
    void AddRule(QGridLayout& rules, int row, QLabel* title, BarInput& rule);
    QLayout* MakeFirstDraw();
    QLayout* MakeActions();

    void ChooseTemplate();
    void WordDrawTitle();
    void OfferBoxes();
    void OfferExtraBall(bool extraBall);
    void ExplainLastBox();
    void Save();
    void AskAndClose();

    NewLottery EnteredLottery() const;

    ListBox* templates_;
    ListBox* databases_;
    QLineEdit* name_;
    QLineEdit* address_;
    QRadioButton* standardType_;
    QRadioButton* powerballType_;
    BarInput* picks_;
    BarInput* highest_;
    BarInput* highestExtra_;
    std::array<QWidget*, 2> extraBallRow_;
    DatePicker* date_;
    QLabel* drawTitle_;
    QLabel* lastBoxTitle_;
    QLabel* lastBoxHint_;
    DrawBoxes boxes_;
};
