// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Form.h"

class ListBox;

/// Opens the file of a draw database in the desktop's text editor.
class OpenDbase final : public Form {
    Q_OBJECT
  public:
    OpenDbase(Program& program, QWidget* parent);

    void Load() override;

  private:
    void Command2_Click();

    ListBox* list1_;
};
