// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/TakeBack.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <utility>

#include "platform/forms/Form.h"

TakeBack::TakeBack(Form& form)
    : QObject(&form), form_(form), keys_(new QShortcut(QKeySequence::Undo, &form)) {
    connect(keys_, &QShortcut::activated, this, &TakeBack::Last);
    for (QLineEdit* box : form.findChildren<QLineEdit*>()) box->installEventFilter(this);
}

void TakeBack::Remember(const QString& command, std::function<bool()> undo) {
    constexpr std::size_t most = 20;
    if (commands_.size() == most) commands_.erase(commands_.begin());
    commands_.push_back({command, std::move(undo)});
}

void TakeBack::SetEnabled(bool enabled) { keys_->setEnabled(enabled); }

void TakeBack::Last() {
    if (commands_.empty()) return form_.Say(tr("There is nothing to take back"));
    const Command last = std::move(commands_.back());
    commands_.pop_back();
    if (last.undo()) form_.Say(tr("Taken back: %1").arg(last.name));
}

// A box asks for the keys before any shortcut is looked for, also where it has nothing to undo.
bool TakeBack::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) return false;
    if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::Undo)) return false;
    return !static_cast<QLineEdit*>(watched)->isUndoAvailable();
}
