// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "databases/DatabaseListForm.h"

/// Deletes the file of a draw database, after a question.
class DeleteDbaseW final : public DatabaseListForm {
    Q_OBJECT
  public:
    DeleteDbaseW(Program& program, QWidget* parent);

  protected:
    void Act() override;
};
