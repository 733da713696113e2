// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/busy_rules.h"
#include "platform/forms/Form.h"

class Grid;
class ListBox;
class QBoxLayout;
class QLabel;
class QLayout;
class QPushButton;
class QVBoxLayout;

/// The words in which one play form differs from another.
struct PlayFormText {
    QString name;              ///< The form's name.
    QString caption;           ///< Its title.
    QString heading;           ///< `Label7`.
    QString body;              ///< `Label2`.
    QString generateTip = {};  ///< The tool-tip of the generate button; empty: the usual one.
    QString conditions = {};   ///< The heading of the condition boxes; empty: the usual one.
};

/// The controls that bear other names in some forms.
struct PlayControlNames {
    QString oddEven = QStringLiteral("Command13");
    QString highLow = QStringLiteral("Command14");
    QString longRuns = QStringLiteral("Command15");
    QString previousDraws = QStringLiteral("Command9");
    QString lotteries = QStringLiteral("Label1");   ///< The heading of the lottery list.
    QString help = QStringLiteral("Command8");      ///< Empty where there is no such button.
    QString filters = QStringLiteral("Label6(1)");  ///< The filter buttons' heading; empty: none.
    QString conditions = QStringLiteral("Label6");  ///< The heading of the condition boxes.
    QString explain = QStringLiteral("Command3");   ///< Their "?"; empty where there is none.
    QString status = QStringLiteral("Label5");      ///< The tries and the time.

    /// The names of the forms whose filter buttons begin at `Command8`.
    static PlayControlNames FromCommand8();
};

/// What all forms that make lines have in common: lottery list, filter buttons, grid, and the
/// buttons to generate, print, save, help and close, with what they do.
///
/// A form on this frame tells `MakeLines` and adds its own controls to `BesideList()`, `Column()`
/// and `Foot()`.
class PlayFrame : public Form {
    Q_OBJECT
  public:
    void Load() override;

  protected:
    /// The grid has room for `mostLines` lines, the longest result that the form can be expected to
    /// have, and grows for a longer one.
    PlayFrame(Program& program, const PlayFormText& text, const PlayControlNames& names,
              int mostLines, QWidget* parent);

    /// Makes the lines and shows them; `Busy` and the hourglass are set around it where the form's
    /// rules say so.
    virtual void MakeLines() = 0;

    /// Whether the form can make lines of what is chosen; where it cannot, it has said so itself.
    /// Asked before `Busy` is set.
    virtual bool MayGenerate() { return true; }

    /// What the form takes back before another lottery is loaded, `Busy` and the hourglass set.
    virtual void ResetInputs() {}

    /// A form's own steps with the lottery just loaded, `Busy` and the hourglass still set.
    virtual void DatabaseLoaded() {}

    /// What follows a choice of lottery once it is loaded: a first set of lines.
    virtual void LotteryChosen() { Generate(); }

    /// Takes the lines out that fail a filter, at a click on its button, and shows the rest.
    virtual void Prune(void (*prune)(State&));

    /// What follows once a filter has taken lines out.
    virtual void LinesTakenOut() {}

    /// The labels that take the skin's colours.
    virtual SkinLabels SkinnedLabels() const;

    /// What the lottery list does: loads the database of its choice.
    void ChooseLottery();

    /// Makes lines, unless the form is busy or cannot.
    void Generate();

    /// What a click on the generate button does.
    virtual void ClickGenerate() { Generate(); }

    /// Takes other rules about `Busy` than the usual ones.
    void SetBusyRules(const BusyRules& rules) { busyRules_ = rules; }

    /// Shows `state().Lines` in the grid.
    void ShowResult();

    /// Takes the lines out of the grid; `state().Lines` stays.
    void EmptyGrid();

    /// A button that opens the help page.
    QPushButton* MakeHelpButton(const QString& name, const QString& caption);

    /// Throws away what was clicked and typed during long work, but for the close button.
    void DropWaitingInput();

    /// The name of the label that takes the skin's colour of the status line.
    void SetStatusLabel(const QString& name) { statusLabels_ = {name}; }

    QLabel& Heading() { return *heading_; }
    QLabel& Body() { return *body_; }

    QVBoxLayout& BesideList() { return *besideList_; }  ///< To the right of the lottery list.
    QVBoxLayout& Column() { return *column_; }          ///< Inputs, above the filter buttons.
    QVBoxLayout& Foot() { return *foot_; }              ///< Below inputs and grid.

    /// `Column()` and the filter buttons, one below the other unless the form sets them side by
    /// side.
    QBoxLayout& ColumnAndFilters() { return *columnAndFilters_; }

    /// The generate button, for a form that gives it another place than below `Column()`.
    QPushButton& GenerateButton() { return *generate_; }

  private:
    QLayout* BuildInputs(const PlayFormText& text, const PlayControlNames& names);
    QLayout* BuildGenerate(const PlayFormText& text);
    QLayout* BuildFilters(const PlayControlNames& names);
    QPushButton* BuildFilter(const QString& name, const QString& caption, void (*prune)(State&));
    QLayout* BuildActions(const PlayControlNames& names);
    void Filter(void (*prune)(State&));
    void PrintLines();
    void SaveLines();
    void Close();

    /// Whether a button may act that waits for `Busy` to fall, or does not.
    bool Lets(bool waits) const;

    BusyRules busyRules_;
    QStringList statusLabels_;
    QLabel* heading_;
    QLabel* body_;
    QPushButton* generate_;
    ListBox* lotteries_;
    Grid* grid_;
    QPushButton* close_;
    QVBoxLayout* besideList_;
    QVBoxLayout* column_;
    QBoxLayout* columnAndFilters_;
    QVBoxLayout* foot_;
    bool closeWanted_ = false;
};
