// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MainMenu.h"

#include <QAction>

#include "core/failure.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/AddressTip.h"
#include "platform/widgets/Widgets.h"
#include "shell/MenuTexts.h"

MainMenu::MainMenu(QWidget* parent) : QMenuBar(parent) {
    for (const MenuText& text : MenuTexts()) {
        QMenu* menu = Named(addMenu(tr(text.caption)), QString::fromLatin1(text.name));
        menu->setToolTipsVisible(true);
        if (text.entries.empty()) AddLinks(menu);
        for (const EntryText& entry : text.entries) Add(menu, entry);
    }
}

QAction* MainMenu::Entry(const QString& name) const {
    QAction* entry = entries_.value(name);
    if (entry == nullptr) {
        throw Failure("The menu has no entry \"" + FromQString(name) + "\".");
    }
    return entry;
}

void MainMenu::Answer(const QString& name, const std::function<void()>& handler) {
    connect(Entry(name), &QAction::triggered, this, handler);
    Allow(name);
}

void MainMenu::Allow(const QString& name, const QString& whyNot) {
    QAction* entry = Entry(name);
    const QString toolTip = entry->data().toString();
    entry->setEnabled(whyNot.isEmpty());
    entry->setToolTip(whyNot.isEmpty() ? toolTip : toolTip + QLatin1Char('\n') + whyNot);
}

void MainMenu::ShowLinks(const State& state) {
    for (int i = 0; i < setting::links; ++i) {
        const QString caption = ToQString(state.Settings(setting::LinkCaptions + i));
        QAction* entry = Entry(Member(QStringLiteral("LinksLink"), i));
        entry->setVisible(!caption.isEmpty());
        // As it is kept: an "&" that is to be shown is doubled there already.
        if (!caption.isEmpty()) entry->setText(caption);
        entry->setToolTip(
            TipWithAddress({}, ToQString(state.Settings(setting::LinkAddresses + i))));
    }
}

void MainMenu::Add(QMenu* menu, const EntryText& text) {
    const QString name = QString::fromLatin1(text.name);
    if (text.startsGroup) menu->addSeparator();
    QAction* entry = Named(menu->addAction(tr(text.caption)), name);
    entry->setData(text.toolTip == nullptr ? QString() : tr(text.toolTip));
    if (text.keys != nullptr) {
        entry->setShortcut(QKeySequence::fromString(QString::fromLatin1(text.keys)));
    }
    // The desktop must not move "Preferences" or "Exit" to a menu of its own.
    entry->setMenuRole(QAction::NoRole);
    entries_.insert(name, entry);
    Allow(name, tr("Not in this version."));
}

void MainMenu::AddLinks(QMenu* menu) {
    for (int i = 0; i < linkCount; ++i) {
        const std::string name = FromQString(Member(QStringLiteral("LinksLink"), i));
        Add(menu, {.name = name.c_str(),
                   .caption = QT_TRANSLATE_NOOP("MainMenu", "Link"),
                   .toolTip = nullptr});
    }
}
