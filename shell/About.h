// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"

class QGridLayout;
class QLayout;

/// Title and version of the program, and how to reach its makers.
class About final : public Form {
    Q_OBJECT
  public:
    About(Program& program, QWidget* parent);

  private:
    QLayout* BuildWords();
    QLayout* BuildAddresses();
    void AddAddress(QGridLayout& grid, QLabel* heading, const QString& name, const QString& address,
                    const QString& page);
};
