// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <memory>

#include "core/settings.h"
#include "shell/Quillon.h"
#include "tests/support/form_test.h"

/// What the main window calls its controls.
inline constexpr const char* toolbarBackground = "Label1";
inline constexpr const char* biochartHeading = "Label7";
inline constexpr const char* birthDateLabel = "Label4";
inline constexpr const char* birthDatePicker = "DTPicker1";
inline constexpr const char* updateButton = "Command1(8)";
inline constexpr const char* moreButton = "Command1(17)";
inline constexpr const char* todayOption = "Option1(0)";
inline constexpr const char* tomorrowOption = "Option1(1)";
inline constexpr const char* biochart = "MSChart1";
inline constexpr const char* checklistHeading = "Label8";
inline constexpr const char* newItemBox = "Text2";
inline constexpr const char* addItemButton = "Command3";
inline constexpr const char* databasesHeading = "Label9";
inline constexpr const char* databasesList = "List1";
inline constexpr const char* syndicateHeading = "Label2";
inline constexpr const char* syndicateName = "Label3";
inline constexpr const char* managerHeading = "Label5";
inline constexpr const char* managerName = "Label6";
inline constexpr const char* notesHeading = "Label13";
inline constexpr const char* notesKeys = "Label11";
inline constexpr const char* notePad = "Text1";

/// The names of one of the eight boxes of the checklist, of its button, and of a toolbar picture.
inline std::string ItemBox(int index) { return "Check1(" + std::to_string(index) + ")"; }
inline std::string ClearButton(int index) { return "Command4(" + std::to_string(index) + ")"; }
inline std::string ToolbarButton(int index) { return "Image1(" + std::to_string(index) + ")"; }

/// The main window on a folder in memory. A test fills the folder, then calls `Start()`.
class MainWindow : public testing::Test {
  protected:
    void Start() {
        window = std::make_unique<Quillon>(program.program);
        QObject::connect(window.get(), &Quillon::ended, window.get(), [this] { ++timesEnded; });
        window->Load();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        QApplication::processEvents();
    }

    QAction* Entry(const char* name) { return Find<QAction>(*window, name); }

    void Choose(const char* entry) { Entry(entry)->trigger(); }

    /// Changes one of the settings on disk, which are made with the defaults where missing.
    void WriteSettings(int slot, const std::string& text) {
        LoadSettings(program.state, program.folder);
        program.state.Settings(slot) = text;
        SaveSettings(program.state, program.folder);
    }

    std::string Setting(int slot) { return program.state.Settings(slot); }

    TestProgram program;
    std::unique_ptr<Quillon> window;
    int timesEnded = 0;
};
