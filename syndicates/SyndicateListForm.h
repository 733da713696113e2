// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "platform/forms/Form.h"

class ListBox;
class QPushButton;

/// A small form that lists the syndicates and does one thing with the chosen one, by its button or
/// a double click. Without a choice it does nothing.
class SyndicateListForm : public Form {
    Q_OBJECT
  public:
    void Load() override;

  protected:
    /// `act` is the button that does it, `close` the one that closes.
    SyndicateListForm(Program& program, const QString& name, const QString& caption,
                      QPushButton* act, QPushButton* close, QWidget* parent);

    /// Does it with the syndicate of that file.
    virtual void Act(const std::string& file) = 0;

    /// A syndicate was chosen, or the choice was taken away.
    virtual void ChoiceChanged(bool) {}

  private:
    void ActOnChosen();

    ListBox* names_;
    ListBox* files_;
};
