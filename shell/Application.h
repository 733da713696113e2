// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <functional>

/// The application, and the one place where a failure ends.
///
/// Whatever leaves an event handler is reported in one message box; when that is closed the process
/// ends at once with exit code 1, and nothing is saved.
class Application final : public QApplication {
    Q_OBJECT
  public:
    Application(int& argumentCount, char** arguments);

    bool notify(QObject* receiver, QEvent* event) override;

    /// Runs the program under the same guard, for what fails before the event loop.
    int Run(const std::function<int()>& program);

    /// Ends the process at once, whatever is open.
    [[noreturn]] static void End(int exitCode);

  private:
    void ReportAndEnd(const QString& text);

    bool reporting_ = false;
};
