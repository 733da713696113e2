// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/system/DiskFolder.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/Services.h"
#include "shell/Quillon.h"
#include "tests/faults/record.h"
#include "tests/support/fake_printers.h"

class Grid;

/// A run of the program on a real folder, driven as a user would: everything that it says is
/// recorded together with the state of the files at that moment, every question is answered with
/// Yes or OK.
class Session {
  public:
    Session(const QString& path, Record& record);

    /// Loads and shows the main window.
    void Start();

    /// Chooses an entry of the menu.
    void Choose(const char* entry);

    /// Chooses an entry of the menu, runs `step` in the form that opens, and waits until that is
    /// closed.
    void InForm(const char* entry, const char* form, const std::function<void(QDialog&)>& step);

    /// Runs `open`, and `step` in the form that opens by that.
    void InForm(const std::function<void()>& open, const char* form,
                const std::function<void(QDialog&)>& step);

    /// Clicks a button of the form, and records what the form says about it.
    void Press(QWidget& form, const char* button);

    /// Types over what stands in a box.
    static void Fill(QWidget& form, const char* box, const char* text);

    /// Clicks a cell of the form's grid.
    static void ChooseCell(QWidget& form, int row, int column);

    /// Chooses a line of a list.
    static void ChooseLine(QWidget& form, const char* list, int line);

    /// Records a text that the user sees; a question begins with "? ".
    void Said(const QString& text);

    /// The page that a download from this address gives.
    std::map<QString, std::string> pages;

    /// Where a folder or a file is to be chosen, this one is.
    QString chosenPath;

    State state;
    DiskFolder folder;

    Quillon& Window() { return *window_; }

  private:
    class Messages final : public MessageBoxes {
      public:
        explicit Messages(Session& session) : session_(session) {}
        Answer Show(QWidget* parent, const Message& message) override;

      private:
        Session& session_;
    };

    Record& record_;
    std::string path_;
    Random random_;
    Messages messages_;
    FakePrinters printers_;
    Services services_;
    Program program_;
    std::unique_ptr<Quillon> window_;
};
