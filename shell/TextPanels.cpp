// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TextPanels.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextDocument>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

DatabasesPanel::DatabasesPanel(QWidget* parent)
    : Panel(QStringLiteral("Label9"), tr("  Databases:"), parent),
      list1_(Named(new ListBox(this), QStringLiteral("List1"))) {
    list1_->setAccessibleName(tr("Databases"));
    list1_->setMinimumSize(160, 60);
    Sheet()->addWidget(list1_, 0, 0);
}

void DatabasesPanel::ShowNames(const std::vector<std::string>& names) {
    list1_->clear();
    for (const std::string& name : names) list1_->addItem(ToQString(name));
    list1_->SetIndex(-1);
}

SyndicatePanel::SyndicatePanel(QWidget* parent)
    : Panel(QStringLiteral("Label2"), tr("Syndicate:"), parent),
      label3_(MakeLabel(QStringLiteral("Label3"), tr("None selected"), this)),
      label6_(MakeLabel(QStringLiteral("Label6"), tr("None selected"), this)) {
    auto* label5 = MakeLabel(QStringLiteral("Label5"), tr("Manager:"), this);
    label5->setFont(Heading()->font());
    for (QLabel* label : {label3_, label6_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    QGridLayout* sheet = Sheet();
    sheet->addWidget(label3_, 0, 0);
    sheet->addWidget(label5, 1, 0);
    sheet->addWidget(label6_, 2, 0);
}

void SyndicatePanel::ShowSyndicate(const std::string& name, const std::string& manager) {
    label3_->setText(ToQString(name));
    label6_->setText(ToQString(manager));
}

NotesPanel::NotesPanel(QWidget* parent)
    : Panel(QStringLiteral("Label13"), tr("  Notes:"), parent),
      text1_(Named(new QPlainTextEdit(this), QStringLiteral("Text1"))) {
    auto* label11 =
        MakeLabel(QStringLiteral("Label11"), tr("(Ctr+C=Copy / Ctrl+X=Cut / Ctrl+V=Paste)"), this);
    text1_->setAccessibleName(tr("Notes"));
    text1_->setTabChangesFocus(true);
    text1_->setMinimumHeight(48);
    QGridLayout* sheet = Sheet();
    sheet->addWidget(text1_, 0, 0);
    sheet->addWidget(label11, 1, 0);
}

std::string NotesPanel::Note() const {
    // The raw text keeps hard blanks, which the plain text would turn into common ones.
    QString text = text1_->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
    text.replace(QChar::LineSeparator, QStringLiteral("\r\n"));
    return FromQString(text);
}

void NotesPanel::ShowNote(const std::string& note) { text1_->setPlainText(ToQString(note)); }

void NotesPanel::TakeFocus() { text1_->setFocus(); }
