// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/generator.h"
#include "play/PlayFrame.h"

class QCheckBox;
class QHBoxLayout;

/// The frame of a form that makes its lines anew until they comply: it adds the condition boxes
/// with their heading, the status line, and the tries.
///
/// A form on this frame tells `PlayLotto` and `Style`, and adds its own controls to `Inputs()`.
class RetryingForm : public PlayFrame {
    Q_OBJECT
  protected:
    RetryingForm(Program& program, const PlayFormText& text, const PlayControlNames& names,
                 int mostLines, QWidget* parent);

    /// Fills `state().Lines` once.
    virtual void PlayLotto() = 0;

    virtual GeneratorStyle Style() const = 0;

    /// Whether the lines keep to what the form asks of them beside the condition boxes; asked after
    /// each try.
    virtual bool FurtherCondition() { return true; }

    void MakeLines() override;

    /// Takes the ticks out of the condition boxes.
    void ClearConditions();

    QVBoxLayout& Inputs() { return *inputs_; }  ///< Above the condition boxes.

    /// The row of the boxes' heading, for one more button.
    QHBoxLayout& ConditionsHeading() { return *conditionsHeading_; }

  private:
    void BuildConditions(const PlayFormText& text, const PlayControlNames& names);
    QPushButton* BuildExplain(const QString& name);

    QCheckBox* oddEven_;
    QCheckBox* highLow_;
    QCheckBox* history_;
    QLabel* status_;
    QVBoxLayout* inputs_;
    QHBoxLayout* conditionsHeading_;
};
