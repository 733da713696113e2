// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

#include "platform/forms/Form.h"

class ListBox;
class QHBoxLayout;
class QLabel;
class QLayout;
class QPushButton;
class QVBoxLayout;

/// The words in which one analysis form differs from another.
struct AnalysisFormText {
    QString name;         ///< The form's name.
    QString caption;      ///< Its title.
    QString heading;      ///< The large heading.
    QString explanation;  ///< The text that explains what is shown.
    QString printTip = QCoreApplication::translate("AnalysisForm", " Print form ");
    QString closeTip = QCoreApplication::translate("AnalysisForm", " Close ");
};

/// The controls that bear other names in some forms; one without a name is not there.
struct AnalysisNames {
    QString heading = QStringLiteral("Label4");
    QString explanation = QStringLiteral("Label5");
    QString close = QStringLiteral("Command1");
    QString print = QStringLiteral("Command6");
};

/// What all analysis forms have in common: skin, heading, explanation, lottery list, and the
/// buttons to print and close.
///
/// A form on this frame calls `AddLotteryList` where it has one, tells `LotteryChosen`, adds its
/// own controls to `Choices()`, `Results()` and `Foot()`, and tells `Print` where it prints
/// something other than its picture.
class AnalysisForm : public Form {
    Q_OBJECT
  public:
    /// Skin, list, and the first lottery, whose choice is the first refresh. A form whose list
    /// starts without a choice ends this with `Load` of its own.
    void Load() override;

  protected:
    AnalysisForm(Program& program, const AnalysisFormText& text, const AnalysisNames& names,
                 QWidget* parent);

    /// Puts the prompt and the list to the left of the choices.
    void AddLotteryList(const QString& promptName = QStringLiteral("Label1"),
                        const QString& prompt = tr("Select a lottery:"));

    /// What the lottery list does: loads the database of its choice.
    virtual void ChooseLottery();

    /// What follows a choice of lottery once it is loaded.
    virtual void LotteryChosen() {}

    /// What the print button does, and whether printing is there yet.
    virtual void Print() { services().printForm(*this); }
    virtual bool CanPrint() const { return static_cast<bool>(services().printForm); }

    /// Skin, order of the Tab key, print button; part of `Load`.
    void Prepare();

    /// A small label before an input; it takes the skin's colour of small labels.
    QLabel* AddPrompt(const QString& name, const QString& text);

    /// A further text that explains what is shown; it takes the skin's colour of texts. From
    /// `leastWidth` on it has room for all its lines.
    QLabel* AddExplanation(const QString& name, const QString& text, int leastWidth);

    ListBox& Lotteries() const { return *lotteries_; }  ///< Only where there is a list.

    QLabel& Heading() { return *heading_; }
    QLabel& Explanation() { return *explanation_; }

    QVBoxLayout& Texts() { return *texts_; }      ///< The explanation, and room below it.
    QVBoxLayout& Choices() { return *choices_; }  ///< Inputs, between list and explanation.
    QHBoxLayout& Results() { return *results_; }  ///< Charts or tables.
    QVBoxLayout& Foot() { return *foot_; }        ///< Below the results.

  private:
    QLayout* BuildActions(const AnalysisFormText& text, const AnalysisNames& names);
    QPushButton* BuildPrintButton(const AnalysisFormText& text, const AnalysisNames& names);
    void ApplySkin();

    ListBox* lotteries_ = nullptr;
    QLabel* heading_;
    QLabel* explanation_;
    QStringList explanations_;
    QStringList prompts_;
    QPushButton* print_ = nullptr;
    QHBoxLayout* top_;
    QVBoxLayout* texts_;
    QVBoxLayout* choices_;
    QHBoxLayout* results_;
    QVBoxLayout* foot_;
};
