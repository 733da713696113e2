// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"

class ListBox;
class QPushButton;

/// A small form that lists the lotteries and does one thing with the file of the chosen one, by its
/// button or a double click.
class DatabaseListForm : public Form {
    Q_OBJECT
  public:
    void Load() override;

  protected:
    /// `command2` is the button that acts, `closeCaption` the words of the one that closes.
    DatabaseListForm(Program& program, const QString& name, const QString& caption,
                     QPushButton* command2, const QString& closeCaption, QWidget* parent);

    virtual void Command2_Click() = 0;

    ListBox& List1() { return *list1_; }

  private:
    ListBox* list1_;
};
