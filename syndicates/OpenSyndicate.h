// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syndicates/SyndicateListForm.h"

/// Chooses the syndicate to work with.
class OpenSyndicate final : public SyndicateListForm {
    Q_OBJECT
  public:
    OpenSyndicate(Program& program, QWidget* parent);

  protected:
    void Act(const std::string& file) override;
    void ChoiceChanged(bool chosen) override;

  private:
    OpenSyndicate(Program& program, QPushButton* open, QWidget* parent);

    QPushButton* open_;
};
