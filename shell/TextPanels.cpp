// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TextPanels.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextDocument>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NotesControls.h"
#include "platform/widgets/Readable.h"
#include "platform/widgets/Widgets.h"

DatabasesPanel::DatabasesPanel(QWidget* parent)
    : Panel(QStringLiteral("Label9"), tr("  Databases:"), parent),
      names_(Named(new ListBox(this), QStringLiteral("List1"))) {
    names_->setAccessibleName(tr("Databases"));
    names_->setMinimumSize(160, 60);
    Sheet()->addWidget(names_, 0, 0);
}

void DatabasesPanel::ShowNames(const std::vector<std::string>& names) {
    names_->clear();
    for (const std::string& name : names) names_->addItem(ToQString(name));
    names_->SetIndex(-1);
}

SyndicatePanel::SyndicatePanel(QWidget* parent)
    : Panel(QStringLiteral("Label2"), tr("Syndicate:"), parent),
      name_(MakeLabel(QStringLiteral("Label3"), tr("None selected"), this)),
      manager_(MakeLabel(QStringLiteral("Label6"), tr("None selected"), this)) {
    auto* managerTitle = MakeLabel(QStringLiteral("Label5"), tr("Manager:"), this);
    managerTitle->setFont(Heading()->font());
    for (QLabel* label : {name_, manager_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    QGridLayout* sheet = Sheet();
    sheet->addWidget(name_, 0, 0);
    sheet->addWidget(managerTitle, 1, 0);
    sheet->addWidget(manager_, 2, 0);
}

void SyndicatePanel::ShowSyndicate(const std::string& name, const std::string& manager) {
    name_->setText(Readable(ToQString(name)));
    manager_->setText(Readable(ToQString(manager)));
}

NotesPanel::NotesPanel(QWidget* parent)
    : Panel(QStringLiteral("Label13"), tr("  Notes:"), parent),
      note_(Named(new QPlainTextEdit(this), QStringLiteral("Text1"))) {
    auto* keys =
        MakeLabel(QStringLiteral("Label11"), tr("(Ctr+C=Copy / Ctrl+X=Cut / Ctrl+V=Paste)"), this);
    note_->setAccessibleName(tr("Notes"));
    note_->setTabChangesFocus(true);
    note_->setMinimumHeight(48);
    QGridLayout* sheet = Sheet();
    sheet->addWidget(note_, 0, 0);
    sheet->addWidget(keys, 1, 0);
}

std::string NotesPanel::Note() const { return NoteIn(*note_); }

void NotesPanel::ShowNote(const std::string& note) { ::ShowNote(*note_, note); }

void NotesPanel::TakeFocus() { note_->setFocus(); }
