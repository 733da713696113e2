// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Application.h"

#include <QIcon>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "core/outside_table.h"
#include "platform/system/FailureReport.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/OutlinedStyle.h"
#include "shell/program_version.h"

// A static library's resources are linked in only where somebody asks for them.
static void RegisterIcons() { Q_INIT_RESOURCE(icons); }

Application::Application(int& argumentCount, char** arguments)
    : QApplication(argumentCount, arguments) {
    RegisterIcons();
    TellNames();
    setDesktopFileName(QStringLiteral("quillon"));
    setStyle(new OutlinedStyle);
    QIcon::setFallbackThemeName(QStringLiteral("breeze"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/quillon.svg")));
}

void Application::TellNames() {
    setApplicationName(QStringLiteral("quillon"));
    setApplicationVersion(ToQString(ProgramVersion()));
}

QString Application::ReportOf(const std::exception& error) const {
    if (const auto* failure = dynamic_cast<const Failure*>(&error)) {
        const QString text = ToQString(failure->what());
        const bool outside = dynamic_cast<const OutsideTable*>(failure) != nullptr;
        const QString inUse = outside ? inUse_() : QString();
        return inUse.isEmpty() ? text : text % QStringLiteral("\n\n") % inUse;
    }
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
        return tr("The memory of the computer is used up.");
    }
    return tr("Something happened that the program does not foresee: %1")
        .arg(QString::fromLocal8Bit(error.what()));
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        ReportAndEnd(ReportOf(error));
    }
    return true;
}

int Application::Run(const std::function<int()>& program) {
    try {
        return program();
    } catch (const std::exception& error) {
        ReportAndEnd(ReportOf(error));
    }
    return EXIT_FAILURE;
}

void Application::ReportAndEnd(const QString& text) {
    // What else fails while the report is on screen belongs to a run that is over.
    if (reporting_) return;
    reporting_ = true;
    ShowFailureReport(text % Rescued());
    End(EXIT_FAILURE);
}

QString Application::Rescued() const {
    try {
        return rescue_();
    } catch (const std::exception&) {
        // What ends the run is told, whatever else goes wrong.
        return {};
    }
}

void Application::End(int exitCode) {
    std::fflush(nullptr);
    std::_Exit(exitCode);
}
