// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QPixmap>

#include "platform/system/Services.h"

class InfoPanels;
class MainMenu;
class Toolbar;
class Welcome;
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
    /// form asks for saved entries and there are none.
    void Open(const CatalogueEntry& entry);

    /// Opens the address of WebLinks entry `index`, 0 to 10.
    void LinksLink(int index);

    /// The menu entry of the download for the user's country: UK where dates are British ones.
    QString DownloadEntry() const;

  Q_SIGNALS:
    /// The window has been closed and notes and settings are on disk: the run is over.
    void ended();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Build();
    void AnswerMenu();
    void AnswerForms();

    void LoadSettings();
    void Skinning();
    void SkinPicture();
    void CompletePainting();
    void ShowWelcome(bool shown);
    void ListDatabases();
    void UpdateSyndicate();
    void SaveNotes();

    void ShowPanels();
    void FileExit_Click();
    void FileDeleteSaved_Click();
    void Image1_Click(int index);
    void DimPictures();

    Program& program_;
    MainMenu* menu_;
    Toolbar* toolbar_;
    InfoPanels* panels_;
    Welcome* welcome_ = nullptr;  // made when it is first shown
    QPixmap picture_;
    bool anyLottery_ = false;
    bool painted_ = false;
};
