// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>

#include "platform/system/Services.h"

class InfoPanels;
class ScrollingBody;
class Toolbar;
class Welcome;

/// What stands below the menu: the toolbar, and on the background picture the info panels or, while
/// these are hidden, the welcome.
///
/// The frame is on screen at once; pictures and welcome follow the first painting.
class MainArea final : public QWidget {
    Q_OBJECT
  public:
    MainArea(Program& program, QWidget* parent);

    Toolbar& Pictures() const { return *toolbar_; }
    InfoPanels& Panels() const { return *panels_; }

    /// Shows the panels, or the welcome in their place.
    void ShowPanels(bool shown);

    /// The background picture as the settings say. Where pictures are chosen and the file is
    /// missing, the area stays as it is; a file that holds no picture is a `Failure`.
    void TakePicture();

    /// Lets the welcome offer what suits the files that there are now.
    void RenewWelcome();

  Q_SIGNALS:
    /// Pictures and welcome are there.
    void completed();

    /// Somebody takes a step that the welcome offers, told as the menu entry behind it.
    void stepChosen(const QString& menuEntry);

    /// Somebody wants to add a draw to the lottery of that place in the lists.
    void drawWanted(int lottery);

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void CompletePainting();
    void ShowWelcome(bool shown);

    Program& program_;
    Toolbar* toolbar_;
    ScrollingBody* body_;  // panels or welcome
    InfoPanels* panels_;
    Welcome* welcome_ = nullptr;  // made when it is first shown
    QPixmap picture_;
    bool painted_ = false;
};
