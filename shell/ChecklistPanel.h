// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/widgets/NotesControls.h"
#include "shell/Panel.h"

/// The checklist of eight items.
class ChecklistPanel final : public Panel {
    Q_OBJECT
  public:
    explicit ChecklistPanel(QWidget* parent);

    Checklist::Items Items() const { return checklist_->Shown(); }
    void ShowItems(const Checklist::Items& items) { checklist_->Show(items); }

  private:
    Checklist* checklist_;
};
