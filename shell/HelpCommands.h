// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <string>

#include "platform/system/Services.h"

class QWidget;

/// The commands of the help menu that open no form of ours.
class HelpCommands final : public QObject {
    Q_OBJECT
  public:
    /// Messages are shown over `window`.
    HelpCommands(Program& program, QWidget* window);

    void OpenHelp();

    /// Opens the web site of the settings.
    void OpenWebSite();

    /// Opens the other one, after a warning.
    void OpenAlternativeSite();

    /// Lets the user write to the makers.
    void WriteToSupport();

    /// Asks the web site for the latest version and says whether it is this one. Events run during
    /// the fetch; a second call meanwhile does nothing.
    void CheckForNewVersion();

  private:
    std::string FetchVersionFile();
    void SayThatItFailed();
    void Compare(const std::string& latest);

    Program& program_;
    QWidget* window_;
    bool checking_ = false;
};
