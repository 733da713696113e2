// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Form.h"

class ListBox;

/// Deletes the file of a draw database, after a question.
class DeleteDbaseW final : public Form {
    Q_OBJECT
  public:
    DeleteDbaseW(Program& program, QWidget* parent);

    void Load() override;

  private:
    void Command2_Click();

    ListBox* list1_;
};
