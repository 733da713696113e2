// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <functional>
#include <utility>

/// The application, and the one place where a failure ends.
///
/// Whatever leaves an event handler is reported in one message box; when that is closed the process
/// ends at once with exit code 1, and nothing is saved.
class Application final : public QApplication {
    Q_OBJECT
  public:
    Application(int& argumentCount, char** arguments);

    /// Gives the process the program's name and version.
    static void TellNames();

    bool notify(QObject* receiver, QEvent* event) override;

    /// Runs the program under the same guard, for what fails before the event loop.
    int Run(const std::function<int()>& program);

    /// What reports add where a table in memory was asked for a place that it does not have: what
    /// was being worked on. May be asked for long after the program's own function has ended.
    void TellWhatWasInUse(std::function<QString()> inUse) { inUse_ = std::move(inUse); }

    /// What is done before a report is shown: something that the user has typed is put where it
    /// outlives the run. The report ends with the text returned.
    void RescueBeforeTheEnd(std::function<QString()> rescue) { rescue_ = std::move(rescue); }

    /// Ends the process at once, whatever is open.
    [[noreturn]] static void End(int exitCode);

  private:
    QString ReportOf(const std::exception& error) const;
    void ReportAndEnd(const QString& text);
    QString Rescued() const;

    std::function<QString()> inUse_ = [] { return QString(); };
    std::function<QString()> rescue_ = [] { return QString(); };
    bool reporting_ = false;
};
