// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

#include "play/RetryingForm.h"
#include "wheels/guaranteed_wheels.h"

class ComboList;
class NumberBoard;
class ToldProof;

/// Guaranteed win wheels: 32 large wheels in three panels, for numbers chosen on a board, which
/// fall on the wheel anew until the lines comply.
class PGuaranteed final : public RetryingForm {
    Q_OBJECT
  public:
    PGuaranteed(Program& program, QWidget* parent);

    void Load() override;

  protected:
    SkinLabels SkinnedLabels() const override;
    void DatabaseLoaded() override;
    void LotteryChosen() override {}
    void ClickGenerate() override { GenerateFrom(0); }
    bool MayGenerate() override;
    void MakeLines() override;
    void PlayLotto() override;
    GeneratorStyle Style() const override;
    void LinesTakenOut() override;

  private:
    /// What changes in one of the three panels.
    struct Panel {
        ComboList* wheels;
        ToldProof* proof;
        QLabel* pick;
        QLabel* uses;
    };

    QWidget* BuildBoard();
    QLayout* BuildPanels();
    QWidget* BuildPanel(std::size_t panel);
    QLayout* BuildChoice(std::size_t panel);
    QLayout* BuildButtons(std::size_t panel);
    std::string ItemText(std::size_t panel) const;
    void ChooseWheel(std::size_t panel);
    void ShowProof(std::size_t panel);
    void TellLinesMade();
    void ShowCount();
    void ClearSelection();
    void SelectAtRandom(std::size_t panel);
    void GenerateFrom(std::size_t panel);
    guaranteed_wheels::Selection Selected() const;
    void Refuse(const QString& title, const QString& text);

    NumberBoard* board_;
    QLabel* count_;
    std::array<Panel, 3> panels_{};
    std::size_t panel_ = 0;  ///< The one whose wheel is generated.
    std::string_view wheelPattern_;
    int numbers_ = 0;  ///< How many the wheel takes that is generated.
};
