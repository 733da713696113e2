// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <string>

#include "platform/system/Services.h"

class Form;
class HelpCommands;
class MainArea;
class MainMenu;
struct CatalogueEntry;

/// The main window: menu, toolbar and info panels. It does no lottery work of its own.
class Quillon final : public QMainWindow {
    Q_OBJECT
  public:
    explicit Quillon(Program& program, QWidget* parent = nullptr);

    /// Start-up: `Backup`, settings, skin, panels, notes, biochart, syndicate and databases, in
    /// this order. What fails leaves as a `Failure`.
    void Load();

    /// Opens a form of the catalogue modally, does what follows its closing, and says so where the
    /// form asks for saved entries and there are none. `lottery` is the place of the one that is
    /// chosen in its list, where it is not the first.
    void Open(const CatalogueEntry& entry, int lottery = 0);

    /// Opens the import with that file.
    void Import(const QString& path);

    /// What `Notes.txt` would hold, where the notes have been changed since they were read and no
    /// save of them has been tried; else nothing.
    std::string UnsavedNotes() const;

  Q_SIGNALS:
    /// The window has been closed and notes and settings are on disk: the run is over.
    void ended();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void AnswerMenu();
    void AnswerForms();
    void AnswerArea();
    void Choose(const QString& menuEntry);
    void Show(Form& form, const CatalogueEntry& entry);

    void LoadSettings();
    void Skinning();
    void ListDatabases();
    /// As `ListDatabases`, behind something that changed them. What cannot be listed is no reason
    /// to end the run: the next form that needs it says so.
    void RenewDatabases();
    void UpdateSyndicate();
    void SaveNotes();

    void ShowPanels();
    void LinksLink(int index);
    void DeleteSavedEntries();
    void Quit();

    Program& program_;
    std::string knownNotes_;  // as they were read, or were to be saved
    MainMenu* menu_;
    MainArea* area_;
    HelpCommands* help_;
};
