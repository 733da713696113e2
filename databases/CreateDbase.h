// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "databases/DrawBoxes.h"
#include "platform/forms/Form.h"

class DatePicker;
class ListBox;
class QGridLayout;
class QLayout;
class QLineEdit;
class QRadioButton;
class QScrollBar;
struct NewLottery;

/// Defines a lottery, by hand or from a ready-made template, and writes a new draw database with it
/// and a first draw.
class CreateDbase final : public Form {
    Q_OBJECT
  public:
    CreateDbase(Program& program, QWidget* parent);

    void Load() override;

  private:
    /// A number of the rules: the bar that chooses it and the label that shows it.
    struct Rule {
        QScrollBar* bar;
        QLabel* shown;
    };

    QLayout* MakeLists();
    QLayout* MakeLottery();
    QLayout* MakeNames();
    QLayout* MakeTypes();
    QLayout* MakeRules();
    void AddRule(QGridLayout& rules, int row, QLabel* title, const Rule& rule);
    QLayout* MakeFirstDraw();
    QLayout* MakeActions();

    void ChooseTemplate();
    void ShowRule(const Rule& rule);
    void OfferBoxes();
    void OfferExtraBall(bool extraBall);
    void Save();
    void AskAndClose();

    NewLottery EnteredLottery() const;

    ListBox* templates_;
    ListBox* databases_;
    QLineEdit* name_;
    QLineEdit* address_;
    QRadioButton* standardType_;
    QRadioButton* powerballType_;
    Rule picks_;
    Rule highest_;
    Rule highestExtra_;
    std::array<QWidget*, 3> extraBallRow_;
    DatePicker* date_;
    QLabel* drawTitle_;
    QLabel* lastBoxTitle_;
    DrawBoxes boxes_;
};
