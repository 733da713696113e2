// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Commands.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QShortcut>

#include "platform/widgets/IconButton.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int apart = 24;

struct CommandLook {
    const char* icon;
    const char* word;
};

CommandLook LookOf(Command command) {
    switch (command) {
        case Command::Generate:
            return {"view-refresh", QT_TRANSLATE_NOOP("Commands", "Generate")};
        case Command::Save:
            return {"document-save", QT_TRANSLATE_NOOP("Commands", "Save")};
        case Command::Print:
            return {"document-print", QT_TRANSLATE_NOOP("Commands", "Print")};
        case Command::Close:
            return {crossIcon, QT_TRANSLATE_NOOP("Commands", "Close")};
        case Command::Cancel:
            return {crossIcon, QT_TRANSLATE_NOOP("Commands", "Cancel")};
        case Command::Delete:
            return {"edit-delete", QT_TRANSLATE_NOOP("Commands", "Delete")};
        case Command::Up:
            return {"go-up", QT_TRANSLATE_NOOP("Commands", "Up")};
        case Command::Down:
            break;
    }
    return {"go-down", QT_TRANSLATE_NOOP("Commands", "Down")};
}

QList<QKeySequence> KeysOf(Command command) {
    switch (command) {
        case Command::Generate:
            return {Qt::Key_F5, Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter};
        case Command::Save:
            return {Qt::CTRL | Qt::Key_S};
        case Command::Print:
            return {Qt::CTRL | Qt::Key_P};
        default:
            return {};
    }
}

/// An icon alone may be narrow, a word is not cut.
void GiveWord(IconButton& button, const QString& word) {
    button.setText(word);
    button.setMinimumWidth(0);
}

}  // namespace

QPushButton* MakeCommandButton(const QString& name, Command command, const QString& toolTip,
                               QWidget* parent) {
    const CommandLook look = LookOf(command);
    IconButton* button = MakeIconButton(name, QString::fromLatin1(look.icon), toolTip, parent);
    GiveWord(*button, QCoreApplication::translate("Commands", look.word));
    if (command == Command::Generate) button->StandOut();
    return WithKeysOf(command, button);
}

QPushButton* WithKeysOf(Command command, QPushButton* button) {
    for (const QKeySequence& key : KeysOf(command)) {
        auto* shortcut = new QShortcut(key, button);
        QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
    return button;
}

QPushButton* MakeDeletingButton(const QString& name, const QString& caption, QWidget* parent) {
    IconButton* button =
        MakeIconButton(name, QString::fromLatin1(LookOf(Command::Delete).icon), {}, parent);
    GiveWord(*button, ShownCaption(caption));
    return button;
}

void AddApart(QBoxLayout& row, QPushButton* deleting) {
    row.addSpacing(apart);
    row.addWidget(deleting);
}
