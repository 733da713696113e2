// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"

class DatePicker;
class QLineEdit;
class QPushButton;

/// Asks how many lines to save, for whom and for which draw.
///
/// Saving keeps the name and the date in the settings; cancelling makes the number of lines 0.
class SaveEntries final : public Form {
    Q_OBJECT
  public:
    SaveEntries(Program& program, QWidget* parent);

    void Load() override;

    void SetLineCount(int count);

    /// The number at the head of its box; 0 where there is none.
    int LineCount() const;

    /// The name as it stands in its box, in the encoding of the files.
    std::string PlayerName() const;

  private:
    void Build();
    void Command7_Click();
    void Command1_Click();

    QLineEdit* text1_;
    QLineEdit* text2_;
    DatePicker* dtPicker1_;
    QPushButton* command7_;
    QPushButton* command1_;
};
