// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syndicates/SyndicateListForm.h"

/// Deletes a syndicate with its diary, after a question.
class DeleteSyndicate final : public SyndicateListForm {
    Q_OBJECT
  public:
    DeleteSyndicate(Program& program, QWidget* parent);

  protected:
    void Act(const std::string& file) override;
};
