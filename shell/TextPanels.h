// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "shell/Panel.h"

class ListBox;
class QLabel;
class QPlainTextEdit;

/// The names of the draw databases; a click on one does nothing.
class DatabasesPanel final : public Panel {
    Q_OBJECT
  public:
    explicit DatabasesPanel(QWidget* parent);

    /// Shows these names, none of them chosen.
    void ShowNames(const std::vector<std::string>& names);

  private:
    ListBox* names_;
};

/// The current syndicate's name and manager.
class SyndicatePanel final : public Panel {
    Q_OBJECT
  public:
    explicit SyndicatePanel(QWidget* parent);

    void ShowSyndicate(const std::string& name, const std::string& manager);

  private:
    QLabel* name_;
    QLabel* manager_;
};

/// The note pad.
class NotesPanel final : public Panel {
    Q_OBJECT
  public:
    explicit NotesPanel(QWidget* parent);

    /// The note as the file holds it, its lines joined by CR LF.
    std::string Note() const;
    void ShowNote(const std::string& note);
    void TakeFocus();

  private:
    QPlainTextEdit* note_;
};
