// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"

class ListBox;
class QHBoxLayout;
class QLabel;
class QLayout;
class QVBoxLayout;

/// The words in which one analysis form differs from another.
struct AnalysisFormText {
    QString name;         ///< The form's name.
    QString caption;      ///< Its title.
    QString heading;      ///< The large heading.
    QString explanation;  ///< The text that explains what is shown.
};

/// The controls that bear other names in some forms.
struct AnalysisNames {
    QString heading = QStringLiteral("Label4");
    QString explanation = QStringLiteral("Label5");
    QString close = QStringLiteral("Command1");
    QString print = QStringLiteral("Command6");
};

/// What all analysis forms have in common: skin, heading, explanation, lottery list, and the
/// buttons to print and close.
///
/// A form on this frame calls `AddLotteryList` where it has one, tells `LotteryChosen`, and adds
/// its own controls to `Choices()`, `Results()` and `Foot()`.
class AnalysisForm : public Form {
    Q_OBJECT
  public:
    /// Skin, list, and the first lottery, whose choice is the first refresh. A form whose list
    /// starts without a choice ends this with `Load` of its own.
    void Load() override;

  protected:
    AnalysisForm(Program& program, const AnalysisFormText& text, const AnalysisNames& names,
                 QWidget* parent);

    /// Puts "Select a lottery:" and the list to the left of the choices.
    void AddLotteryList();

    /// What the lottery list does: loads the database of its choice.
    void ChooseLottery();

    /// What follows a choice of lottery once it is loaded.
    virtual void LotteryChosen() {}

    /// Applies the skin; part of `Load`.
    void ApplySkin();

    /// A small label before an input; it takes the skin's colour of small labels.
    QLabel* AddPrompt(const QString& name, const QString& text);

    /// A further text that explains what is shown; it takes the skin's colour of texts.
    QLabel* AddExplanation(const QString& name, const QString& text);

    QLabel& Heading() { return *heading_; }
    QLabel& Explanation() { return *explanation_; }

    QVBoxLayout& Choices() { return *choices_; }  ///< Inputs, between list and explanation.
    QHBoxLayout& Results() { return *results_; }  ///< Charts or tables.
    QVBoxLayout& Foot() { return *foot_; }        ///< Below the results.

  private:
    QLayout* BuildActions(const AnalysisNames& names);

    ListBox* lotteries_ = nullptr;
    QLabel* heading_;
    QLabel* explanation_;
    QStringList explanations_;
    QStringList prompts_;
    QHBoxLayout* top_;
    QVBoxLayout* choices_;
    QHBoxLayout* results_;
    QVBoxLayout* foot_;
};
