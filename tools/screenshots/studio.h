// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/DesktopPrinters.h"
#include "platform/system/DiskFolder.h"
#include "platform/system/MessageBoxes.h"
#include "printing/PrintRoutines.h"

/// Says it to whoever started the tool.
void Say(const QString& text);

/// A message over a form is no picture of the form: it is told, and answered as if closed.
class ToldMessages final : public MessageBoxes {
  public:
    Answer Show(QWidget* parent, const Message& message) override;
};

/// Puts the supplied files into the folder, and instead of the sample databases those of the folder
/// `databases` where one is named.
void Supply(const QString& folder, const QString& databases);

/// The program as `RunProgram` makes it, but on a fixed day, with a fixed seed and in British
/// English, in a folder with what a user of some weeks has there.
struct Studio {
    explicit Studio(const QString& folderPath);

    /// Plain windows instead of background pictures.
    void LeaveOutBackgrounds();

    std::unique_ptr<State> state = std::make_unique<State>();
    DiskFolder folder;
    Random random;
    ToldMessages messages;
    DesktopPrinters printers;
    double now = 0;
    Services services;
    Program program{.state = *state, .folder = folder, .services = services};
    PrintRoutines printing{program};
};

/// The day of all pictures.
inline constexpr Date PictureDay = std::chrono::year(2025) / std::chrono::January / 2;
