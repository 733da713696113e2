// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "play/PlayFrame.h"
#include "wheels/expansion.h"
#include "wheels/number_boxes.h"
#include "wheels/wheel_forms.h"

class OptionGroup;
class QLineEdit;
class QPushButton;

/// The names of a wheel form's buttons, which has no condition boxes; `help` is its own.
PlayControlNames WheelControlNames(const QString& help);

/// The captions of sizes 0 to `count` - 1 as `caption` words each.
QStringList SizeCaptions(int count, const std::function<std::string(int option)>& caption);

/// The labels of the wheel form of that name that take the skin's colours.
SkinLabels WheelSkinLabels(const QString& form);

/// How the number boxes of a form stand.
struct BoxGrouping {
    int boxesInGroup = 1;  ///< Boxes that stand close together.
    int groupsInRow = 10;
    bool letters = false;  ///< Whether "A", "B", ... stand before the groups, in `Label1(1)` on.
};

/// What the wheel forms with number boxes share, on the play frame: the boxes, in use and grey,
/// their keys, random selection and random order, and a generate that reads and writes them. In
/// what they differ stands in the form's row of `wheels/wheel_forms.h`.
///
/// A form on this frame tells `SizeChosen` and `MakeWheel`. Choosing a lottery makes no lines, as
/// the numbers are the user's.
class WheelFrame : public PlayFrame {
    Q_OBJECT
  public:
    void Load() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    /// `text.name` finds the form's row of rules.
    WheelFrame(Program& program, const PlayFormText& text, const PlayControlNames& names,
               const BoxGrouping& grouping, int mostLines, QWidget* parent);

    /// A size was chosen, or the form is loading: puts boxes to use and sets the prompt.
    virtual void SizeChosen() = 0;

    /// The form's own step with a lottery just loaded, before numbers that it does not have leave
    /// their boxes.
    virtual void ShowLottery() {}

    /// Makes `state().Lines` from the boxes, whose texts and use are then shown as they were left.
    virtual wheels::Outcome MakeWheel(wheels::Boxes& boxes) = 0;

    void MakeLines() override;
    void DatabaseLoaded() override;
    void LotteryChosen() override {}
    SkinLabels SkinnedLabels() const override;

    /// Adds the sizes `Option1(0)` onward beside the lottery list, the first one chosen. A choice,
    /// by the user or in code, and a click on the one chosen already run `SizeChosen`.
    void AddSizes(const QStringList& captions);

    /// The first size that is chosen.
    int Size() const;

    /// Other words for the sizes.
    void SetSizeCaptions(const QStringList& captions);

    /// Two buttons, for the tool-tips that some forms give them.
    QPushButton& RandomSelection() { return *randomSelection_; }
    QPushButton& RandomOrder() { return *randomOrder_; }

    /// Puts the first `count` boxes to use.
    void UseBoxes(int count);

    /// Words the prompt over the boxes, leading blanks and all; a form without one shows none.
    void SetPrompt(const std::string& text);

  private:
    /// A box of the form and whether it is shown as in use.
    struct NumberInput {
        QLineEdit* box;
        bool inUse;
    };

    QLayout* BuildBoxes(const BoxGrouping& grouping);
    QLineEdit* BuildBox(int index);
    QLayout* BuildRandomButtons();
    wheels::Boxes Read() const;
    void Write(const wheels::Boxes& boxes);
    void Change(void (*change)(State&, Random&, wheels::Boxes&));
    void MoveOn(const QObject* from);
    void FocusWrongBox();

    const wheels::WheelFormRules& rules_;
    OptionGroup* sizes_;
    QLabel* prompt_;
    std::vector<NumberInput> inputs_;
    QPushButton* randomSelection_;
    QPushButton* randomOrder_;
};
