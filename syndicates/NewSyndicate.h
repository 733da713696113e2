// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"

class QLayout;
class SyndicateBoxes;

/// Makes a syndicate with its name and manager, and opens it.
class NewSyndicate final : public Form {
    Q_OBJECT
  public:
    NewSyndicate(Program& program, QWidget* parent);

    void Load() override;

  private:
    QLayout* BuildActions();
    void Save();

    SyndicateBoxes* boxes_;
};
