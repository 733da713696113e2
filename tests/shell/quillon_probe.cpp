// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the program on a folder for tests that need a whole process: it prints the report of a
// failure and presses its button, and it closes the main window where it is asked to quit.
#include <QAction>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <iostream>

#include "shell/Application.h"
#include "shell/RunProgram.h"

namespace {

void CloseReport(QMessageBox& report) {
    std::cout << "title: " << report.windowTitle().toStdString() << '\n'
              << "buttons: " << report.buttons().size() << '\n'
              << "text: " << report.text().toStdString() << std::endl;
    report.buttons().constFirst()->click();
}

void CloseWindow() {
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() == QStringLiteral("Quillon") && widget->isVisible()) {
            // Not from within the timer's own event, which the report would have to wait for.
            QTimer::singleShot(0, widget, &QWidget::close);
            return;
        }
    }
}

}  // namespace

/// Triggers the menu entry that an argument "trigger=NAME" names, once.
void TriggerEntry(const QStringList& given) {
    static bool triggered = false;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (triggered || widget->objectName() != QStringLiteral("Quillon") ||
            !widget->isVisible()) {
            continue;
        }
        for (const QString& argument : given) {
            if (!argument.startsWith(QStringLiteral("trigger="))) continue;
            triggered = true;
            auto* entry = widget->findChild<QAction*>(argument.section(QLatin1Char('='), 1));
            QTimer::singleShot(0, widget, [entry] { entry->trigger(); });
        }
    }
}

int main(int argumentCount, char** arguments) {
    Application application(argumentCount, arguments);
    const QStringList given = QApplication::arguments();
    QTimer hand;
    hand.setInterval(0);
    QObject::connect(
        &hand, &QTimer::timeout, &hand, [&given, quit = given.contains(QStringLiteral("quit"))] {
            if (auto* report = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                CloseReport(*report);
            } else if (quit) {
                CloseWindow();
            } else {
                TriggerEntry(given);
            }
        });
    hand.start();
    return application.Run([&given] { return RunProgram(given.at(1)); });
}
