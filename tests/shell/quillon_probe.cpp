// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the program on a folder for tests that need a whole process: it prints the report of a
// failure or any other message and presses its first button. Where it is asked to, it stores an
// entry for a player ("player=Ann") in the way a user does, types into the note pad ("note=text"),
// chooses a menu entry ("trigger=HelpAbout"), or closes the main window ("quit").
#include <QAction>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
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

QWidget* Window(const char* name) {
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() == QLatin1String(name) && widget->isVisible()) return widget;
    }
    return nullptr;
}

void CloseWindow() {
    // Not from within the timer's own event, which the report would have to wait for.
    if (QWidget* window = Window("Quillon")) QTimer::singleShot(0, window, &QWidget::close);
}

// Not from within the timer's own event, as a form is open until it closes.
void Press(QWidget& form, const char* button) {
    auto* const found = form.findChild<QPushButton*>(QLatin1String(button));
    QTimer::singleShot(0, found, &QPushButton::click);
}

// The hand of a user who stores an entry: what is to be done next, at each of its moves.
class Hand {
  public:
    explicit Hand(const QStringList& orders) : quits_(orders.contains(QStringLiteral("quit"))) {
        for (const QString& order : orders) {
            const QString value = order.section(QLatin1Char('='), 1);
            if (order.startsWith(QStringLiteral("player="))) player_ = value;
            if (order.startsWith(QStringLiteral("trigger="))) entry_ = value;
            if (order.startsWith(QStringLiteral("note="))) note_ = value;
        }
    }

    void Move() {
        if (auto* report = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            CloseReport(*report);
        } else if (!note_.isEmpty()) {
            TypeNote();
        } else if (!player_.isEmpty()) {
            StoreEntry();
        } else if (!entry_.isEmpty()) {
            Trigger(entry_);
        } else if (quits_ && QApplication::activeModalWidget() == nullptr) {
            CloseWindow();
        }
    }

  private:
    void TypeNote() {
        QWidget* const window = Window("Quillon");
        if (window == nullptr) return;
        window->findChild<QPlainTextEdit*>(QStringLiteral("Text1"))->setPlainText(note_);
        note_.clear();
    }

    void StoreEntry() {
        QWidget* const form = Window("StoreMyDrawsW");
        if (form == nullptr) return Trigger(QStringLiteral("DatabaseStoreDrawsW"));
        if (entered_) {
            player_.clear();
            return Press(*form, "Command3");
        }
        for (int box = 1; box <= 6; ++box) {
            form->findChild<QLineEdit*>(QStringLiteral("Text1(%1)").arg(box))
                ->setText(QString::number(box));
        }
        form->findChild<QLineEdit*>(QStringLiteral("TextPName"))->setText(player_);
        form->findChild<QPushButton*>(QStringLiteral("Command2"))->click();
        entered_ = true;
    }

    // Once, when the main window stands.
    void Trigger(const QString& menuEntry) {
        QWidget* const window = Window("Quillon");
        if (window == nullptr || triggered_) return;
        triggered_ = true;
        auto* const entry = window->findChild<QAction*>(menuEntry);
        QTimer::singleShot(0, entry, &QAction::trigger);
    }

    bool quits_;
    QString player_;
    QString entry_;
    QString note_;
    bool triggered_ = false;
    bool entered_ = false;
};

}  // namespace

int main(int argumentCount, char** arguments) {
    Application application(argumentCount, arguments);
    const QStringList given = QApplication::arguments();
    Hand user(given);
    QTimer hand;
    hand.setInterval(0);
    QObject::connect(&hand, &QTimer::timeout, &hand, [&user] { user.Move(); });
    hand.start();
    return application.Run([&given] { return RunProgram(given.at(1)); });
}
