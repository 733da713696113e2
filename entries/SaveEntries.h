// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"

class DatePicker;
class QLayout;
class QLineEdit;

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

    /// The draw date as it stands in its box, such as "Wed 11 Jun 2025".
    QString ShownDrawDate() const;

  private:
    QLayout* BuildInputs();
    QLayout* BuildActions();

    void Save();
    void Cancel();

    QLineEdit* lines_;
    QLineEdit* player_;
    DatePicker* drawDate_;
};
