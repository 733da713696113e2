// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

class Form;
class QShortcut;

/// Ctrl+Z in a form with a grid: takes back its commands, the last one first, until they are saved
/// or the form is closed.
///
/// A text box that has the focus keeps Ctrl+Z as long as something was typed in it; then the keys
/// are the form's.
class TakeBack final : public QObject {
    Q_OBJECT
  public:
    /// Text boxes and grids of the form must be there.
    explicit TakeBack(Form& form);

    /// Keeps how to undo the command that comes now; `undo` returns whether it did. `command` says
    /// in the quiet line what was taken back: "row deleted". Of more than twenty commands the
    /// oldest are forgotten.
    void Remember(const QString& command, std::function<bool()> undo);

    /// While another command is under way, the keys do nothing.
    void SetEnabled(bool enabled);

    /// The last command did not happen after all.
    void Drop() { commands_.pop_back(); }

    /// There is nothing to take back any more: all is saved, or something else is shown.
    void Forget() { commands_.clear(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Command {
        QString name;
        std::function<bool()> undo;
    };

    void Last();

    Form& form_;
    QShortcut* keys_;
    std::vector<Command> commands_;
};
