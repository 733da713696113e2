// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/RetryingForm.h"

class QScrollBar;

/// The frame of a retrying form whose number of lines the user chooses.
class PlayForm : public RetryingForm {
    Q_OBJECT
  protected:
    PlayForm(Program& program, const PlayFormText& text, QWidget* parent);

    int LinesWanted() const;

  private:
    QLayout* BuildLineCount();
    void ShowLineCount();

    QScrollBar* lineCount_;
    QLabel* shownLineCount_;
};
