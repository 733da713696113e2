// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "databases/DatabaseListForm.h"

/// Opens the file of a draw database in the desktop's text editor.
class OpenDbase final : public DatabaseListForm {
    Q_OBJECT
  public:
    OpenDbase(Program& program, QWidget* parent);

  protected:
    void Act() override;
    void ChoiceChanged() override;

  private:
    OpenDbase(Program& program, QPushButton* open, QWidget* parent);

    QPushButton* open_;
};
