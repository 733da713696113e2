// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ChecklistPanel.h"

#include <QGridLayout>

ChecklistPanel::ChecklistPanel(QWidget* parent)
    : Panel(QStringLiteral("Label8"), tr("  Checklist:"), parent),
      checklist_(new Checklist(this, *Sheet())) {
    // Kept on purpose: "checkist" is what users have read since the first version.
    checklist_->SetTips(tr("Type in an item and click Add"),
                        tr("Type in a checkist item and click Add"));
    checklist_->SetCaptions({tr("Analyse lottery draws"),
                             tr("Generate lottery entries"),
                             tr("Fill in payslips"),
                             tr("Buy lottery tickets"),
                             tr("Check results"),
                             tr("Collect winnings!"),
                             {},
                             {}});
    Sheet()->setColumnStretch(0, 1);
    Sheet()->setVerticalSpacing(2);
    // The first items are read whole in every size of letters; longer ones are cut rather than that
    // they widen the window.
    Sheet()->setColumnMinimumWidth(0, checklist_->WidestItem());
}
