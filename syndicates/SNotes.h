// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Dirty.h"
#include "platform/forms/Form.h"

class Checklist;
class QLayout;
class QPlainTextEdit;

/// A note and a checklist for the manager, one for all syndicates.
class SNotes final : public Form {
    Q_OBJECT
  public:
    SNotes(Program& program, QWidget* parent);

    void Load() override;

  private:
    QLayout* BuildBody();
    QLayout* BuildNote();
    QLayout* BuildChecklist();
    QLayout* BuildActions();

    void Save();
    void Reset();
    void Close();

    Dirty dirty_;

    QPlainTextEdit* note_;
    Checklist* checklist_;
};
