// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <memory>

#include "core/settings.h"
#include "shell/Quillon.h"
#include "tests/support/form_test.h"

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

    /// Changes one entry of the settings on disk, which are made with the defaults where missing.
    void WriteSettings(int entry, const std::string& text) {
        LoadSettings(program.state, program.folder);
        program.state.Settings(entry) = text;
        SaveSettings(program.state, program.folder);
    }

    std::string Setting(int entry) { return program.state.Settings(entry); }

    TestProgram program;
    std::unique_ptr<Quillon> window;
    int timesEnded = 0;
};
