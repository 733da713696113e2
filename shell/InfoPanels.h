// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "platform/system/Services.h"
#include "shell/notes_file.h"

class BiochartPanel;
class ChecklistPanel;
class DatabasesPanel;
class NotesPanel;
class SyndicatePanel;

/// The info panels of the main window, all shown or all hidden; hidden at first.
class InfoPanels final : public QWidget {
    Q_OBJECT
  public:
    InfoPanels(Program& program, QWidget* parent);

    /// Whether the panels are switched on, be the window on screen or not.
    bool Shown() const;

    /// Switches the panels on or off; the note pad takes the focus where they come on.
    void SetShown(bool shown);

    Notes CurrentNotes() const;
    void ShowNotes(const Notes& notes);
    void ShowDatabases(const std::vector<std::string>& names);
    void ShowSyndicate(const std::string& name, const std::string& manager);

    BiochartPanel& Biochart() const { return *biochart_; }

  private:
    BiochartPanel* biochart_;
    ChecklistPanel* checklist_;
    DatabasesPanel* databases_;
    SyndicatePanel* syndicate_;
    NotesPanel* notes_;
};
