// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "shell/Panel.h"
#include "shell/notes_file.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

/// The checklist of eight items, with a box to add one and a button each to clear one.
class ChecklistPanel final : public Panel {
    Q_OBJECT
  public:
    using Items = std::array<ChecklistItem, 8>;

    explicit ChecklistPanel(QWidget* parent);

    Items Checklist() const;
    void ShowChecklist(const Items& items);

  private:
    void BuildItems();
    void BuildAdding();
    void SetCaption(std::size_t index, const QString& caption);
    void AddItem();
    void ClearItem(std::size_t index);

    std::array<QString, 8> captions_;
    std::array<QCheckBox*, 8> items_{};
    std::array<QPushButton*, 8> clear_{};
    QLineEdit* newItem_ = nullptr;
};
