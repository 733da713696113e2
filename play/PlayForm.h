// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/generator.h"
#include "play/PlayFrame.h"

class QCheckBox;
class QHBoxLayout;
class QScrollBar;

/// The frame of a form that tries until its lines comply: it adds the number of lines, the
/// condition boxes and the status line.
///
/// A form on this frame tells `PlayLotto` and `Style`, and adds its own controls to `Inputs()`.
class PlayForm : public PlayFrame {
    Q_OBJECT
  protected:
    PlayForm(Program& program, const PlayFormText& text, QWidget* parent);

    /// Fills `state().Lines` once.
    virtual void PlayLotto() = 0;

    virtual GeneratorStyle Style() const = 0;

    void MakeLines() override;

    /// The place between the number of lines and the condition boxes.
    QVBoxLayout& Inputs() { return *inputs_; }

    /// The row of the condition boxes' heading, for a button that explains them.
    QHBoxLayout& ConditionsHeading() { return *conditionsHeading_; }

    int LinesWanted() const;

  private:
    QLayout* BuildLineCount();
    void BuildConditions();
    void ShowLineCount();

    QScrollBar* lineCount_;
    QLabel* shownLineCount_;
    QLabel* status_;
    QCheckBox* oddEven_;
    QCheckBox* highLow_;
    QCheckBox* history_;
    QVBoxLayout* inputs_;
    QHBoxLayout* conditionsHeading_;
};
