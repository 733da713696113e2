// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/busy_rules.h"
#include "platform/forms/Form.h"

class Grid;
class ListBox;
class QHBoxLayout;
class QLabel;
class QLayout;
class QPushButton;
class QVBoxLayout;

/// The words in which one play form differs from another.
struct PlayFormText {
    QString name;     ///< The form's name.
    QString caption;  ///< Its title.
    QString heading;  ///< `Label7`.
    QString body;     ///< `Label2`.
};

/// The controls that bear other names in some forms.
struct PlayButtonNames {
    QString oddEven = QStringLiteral("Command13");
    QString highLow = QStringLiteral("Command14");
    QString longRuns = QStringLiteral("Command15");
    QString previousDraws = QStringLiteral("Command9");
    QString help = QStringLiteral("Command8");
    QString filtersLabel = QStringLiteral("Label6(1)");
};

/// What all forms that make lines have in common: lottery list, filter buttons, grid, and the
/// buttons to generate, print, save, help and close, with what they do.
///
/// A form on this frame tells `Generate` and adds its own controls to `BesideList()`, `Column()`
/// and `Foot()`.
class PlayFrame : public Form {
    Q_OBJECT
  public:
    void Load() override;

  protected:
    /// `mostLines` is the longest result that the form can have.
    PlayFrame(Program& program, const PlayFormText& text, const PlayButtonNames& names,
              int mostLines, QWidget* parent);

    /// Makes the lines and shows them; `Busy` and the hourglass are set around it where the form's
    /// rules say so.
    virtual void Generate() = 0;

    /// Whether the form can make lines of what is chosen; where it cannot, it has said so itself.
    /// Asked before `Busy` is set.
    virtual bool MayGenerate() { return true; }

    /// A form's own steps with the lottery just loaded, `Busy` and the hourglass still set.
    virtual void DatabaseLoaded() {}

    /// What follows a choice of lottery once it is loaded: a first set of lines.
    virtual void LotteryChosen() { Command2_Click(); }

    /// The labels that take the skin's colours.
    virtual SkinLabels SkinnedLabels() const;

    /// Takes other rules about `Busy` than the usual ones.
    void SetBusyRules(const BusyRules& rules) { busyRules_ = rules; }

    /// Shows `state().Lines` in the grid.
    void ShowResult();

    /// Takes the lines out of the grid; `state().Lines` stays.
    void EmptyGrid();

    /// Throws away what was clicked and typed during long work, but for the close button.
    void DropWaitingInput();

    /// The place to the right of the lottery list.
    QVBoxLayout& BesideList() { return *besideList_; }

    /// The column of inputs between the lottery list and the filter buttons.
    QVBoxLayout& Column() { return *column_; }

    /// The place below inputs and grid, for the status line or the like.
    QVBoxLayout& Foot() { return *foot_; }

    QLabel& Heading() { return *label7_; }
    QLabel& Body() { return *label2_; }

    /// The name of the label that takes the skin's colour of the status line.
    void SetStatusLabel(const QString& name) { statusLabels_ = {name}; }

    void List1_Click();
    void Command2_Click();

  private:
    QLayout* BuildInputs(const PlayButtonNames& names);
    QLayout* BuildFilters(const PlayButtonNames& names);
    QLayout* BuildActions(const QString& helpName);
    void Connect();
    void ConnectFilter(QPushButton* button, void (*prune)(State&));
    void Command1_Click();

    /// Whether a button may act that waits for `Busy` to fall, or does not.
    bool Lets(bool waits) const;

    BusyRules busyRules_;
    ListBox* list1_;
    QLabel* label1_;
    QLabel* label2_;
    QLabel* label7_;
    QStringList statusLabels_;
    QPushButton* command1_;
    QPushButton* command2_;
    QPushButton* command6_;
    QPushButton* command7_;
    QPushButton* help_;
    Grid* grid_;
    QVBoxLayout* besideList_;
    QVBoxLayout* column_;
    QVBoxLayout* foot_;
    bool closeWanted_ = false;
};
