// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"

class ListBox;
class QLabel;
class QPushButton;

/// A small form that lists the lotteries, says what the file of the chosen one holds, and does one
/// thing with that file, by its button or a double click.
class DatabaseListForm : public Form {
    Q_OBJECT
  public:
    void Load() override;

  protected:
    /// `act` is the button that does it, `closeCaption` the words of the one that closes.
    DatabaseListForm(Program& program, const QString& name, const QString& caption,
                     QPushButton* act, const QString& closeCaption, QWidget* parent);

    /// Does it with the chosen lottery; there may be none.
    virtual void Act() = 0;

    /// A lottery was chosen, or the choice was taken away.
    virtual void ChoiceChanged() {}

    /// The lotteries, in the order of `state().DbaseFiles`.
    ListBox& Lotteries() { return *lotteries_; }

  private:
    void DescribeChosen();

    ListBox* lotteries_;
    QLabel* contents_;
};
