// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/InfoPanels.h"

#include <QGridLayout>
#include <QLabel>

#include "shell/BiochartPanel.h"
#include "shell/ChecklistPanel.h"
#include "shell/TextPanels.h"

InfoPanels::InfoPanels(Program& program, QWidget* parent)
    : QWidget(parent),
      biochart_(new BiochartPanel(program, this)),
      checklist_(new ChecklistPanel(this)),
      databases_(new DatabasesPanel(this)),
      syndicate_(new SyndicatePanel(this)),
      notes_(new NotesPanel(this)) {
    setMouseTracking(true);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(8);
    layout->addWidget(biochart_, 0, 0, 2, 1);
    layout->addWidget(checklist_, 0, 1, 2, 1);
    layout->addWidget(databases_, 0, 2);
    layout->addWidget(syndicate_, 1, 2);
    layout->addWidget(notes_, 2, 0, 1, 3);
    layout->setColumnStretch(0, 4);
    layout->setColumnStretch(1, 3);
    layout->setColumnStretch(2, 3);
    layout->setRowStretch(0, 3);
    layout->setRowStretch(2, 2);
    SetShown(false);
}

bool InfoPanels::Shown() const { return !biochart_->Heading()->isHidden(); }

void InfoPanels::SetShown(bool shown) {
    const std::initializer_list<Panel*> panels = {biochart_, checklist_, databases_, syndicate_,
                                                  notes_};
    for (Panel* panel : panels) panel->SetShown(shown);
    setVisible(shown);
    if (shown) notes_->TakeFocus();
}

Notes InfoPanels::CurrentNotes() const {
    return {.checklist = checklist_->Items(), .note = notes_->Note()};
}

void InfoPanels::ShowNotes(const Notes& notes) {
    checklist_->ShowItems(notes.checklist);
    notes_->ShowNote(notes.note);
}

void InfoPanels::ShowDatabases(const std::vector<std::string>& names) {
    databases_->ShowNames(names);
}

void InfoPanels::ShowSyndicate(const std::string& name, const std::string& manager) {
    syndicate_->ShowSyndicate(name, manager);
}
