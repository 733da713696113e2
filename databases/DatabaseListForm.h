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
    /// `act` is the button that does it, `closeCaption` the words of the one that closes.
    DatabaseListForm(Program& program, const QString& name, const QString& caption,
                     QPushButton* act, const QString& closeCaption, QWidget* parent);

    /// Does it with the chosen lottery; there may be none.
    virtual void Act() = 0;

    /// The lotteries, in the order of `state().DbaseFiles`.
    ListBox& Lotteries() { return *lotteries_; }

  private:
    ListBox* lotteries_;
};
