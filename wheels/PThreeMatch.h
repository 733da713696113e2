// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wheels/WheelFrame.h"
#include "wheels/patterns.h"

class ComboList;
class ToldProof;

/// Match wheels: 27 small wheels, each with what it guarantees, in two modes.
class PThreeMatch final : public WheelFrame {
    Q_OBJECT
  public:
    PThreeMatch(Program& program, QWidget* parent);

    void Load() override;

  protected:
    void SizeChosen() override {}
    void ShowLottery() override;
    bool MayGenerate() override;
    wheels::Outcome MakeWheel(wheels::Boxes& boxes) override;
    void LinesTakenOut() override;

  private:
    QLayout* BuildLists();
    ComboList* BuildList(const QString& name, wheels::WheelList list);
    ComboList& ListOf(wheels::WheelList list);
    void ChooseMode();
    void ChooseWheel(wheels::WheelList list);
    void ShowProof();

    OptionGroup* modes_;
    ComboList* threeMatch_;
    ComboList* fourMatch_;
    ToldProof* proof_;
    wheels::WheelList list_;  ///< That of the wheel chosen last.
    std::string_view wheelPattern_;
    int numbersToPick_ = 0;
};
