// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/generator.h"
#include "platform/Form.h"

class Grid;
class ListBox;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollBar;
class QVBoxLayout;

/// The words and looks in which one play form differs from another.
struct PlayFormText {
    QString name;     ///< The form's name.
    QString caption;  ///< Its title.
    QString heading;  ///< `Label7`.
    QString body;     ///< `Label2`.
};

/// The frame of a play form: lottery list, number of lines, condition boxes, filter buttons, grid,
/// status line, and the buttons to generate, print, save, help and close.
///
/// A form on this frame tells `PlayLotto` and `Style` and adds its own controls to `inputs()`.
class PlayForm : public Form {
    Q_OBJECT
  public:
    void Load() override;

  protected:
    PlayForm(Program& program, const PlayFormText& text, QWidget* parent);

    /// Fills `state().Lines` once.
    virtual void PlayLotto() = 0;

    virtual GeneratorStyle Style() const = 0;

    /// What follows a choice of lottery, once it is loaded: a first set of lines.
    virtual void LotteryChosen();

    void List1_Click();
    void HScroll1_Change();
    void Command2_Click();

    int LinesWanted() const;
};
