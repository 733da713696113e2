// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPointer>
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

/// A run of the program on a real folder, driven as a user would: everything that it says, by
/// message or in a form, is recorded at that moment, while calls to the system are counted together
/// with the state of the files; every question is answered with Yes or OK.
class Session {
  public:
    Session(const QString& path, Record& record);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

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

    /// Clicks a button of the form.
    void Press(QWidget& form, const char* button);

    /// Presses Ctrl+Z in the form.
    void TakeBack(QWidget& form);

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

    /// Where what is not the program's lies.
    std::string OtherFolder() const;

    State state;
    DiskFolder folder;

    /// Records what the form says in its line where that is new. Called at every call to the system
    /// it tells what is said before something is done.
    static void Hear();

    Quillon& Window() { return *window_; }

    /// What every form is given.
    Program& Given() { return program_; }

  private:
    /// Records what a label shows that tells how far a command is.
    class Status final : public QObject {
      public:
        explicit Status(Session& session) : session_(session) {}
        bool eventFilter(QObject* watched, QEvent* event) override;

      private:
        Session& session_;
        QString shown_;
    };

    class Messages final : public MessageBoxes {
      public:
        explicit Messages(Session& session) : session_(session) {}
        Answer Show(QWidget* parent, const Message& message) override;

      private:
        Session& session_;
    };

    void Do(QWidget& form, const std::function<void()>& action);
    void Step();
    std::string Snapshot() const;

    static Session* hearing_;

    Session* heardBefore_ = hearing_;
    Record& record_;
    std::string path_;
    Random random_;
    Messages messages_;
    FakePrinters printers_;
    Services services_;
    Program program_;
    std::unique_ptr<Quillon> window_;
    Status status_;
    QPointer<QLabel> saidLine_;  // of the form in which the last thing was done
    QString heard_;
};
