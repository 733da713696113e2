// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SNotes.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/old_files.h"
#include "platform/forms/FormLayout.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/NotesControls.h"
#include "platform/widgets/Widgets.h"
#include "syndicates/syndicate_notes.h"

SNotes::SNotes(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("SNotes"), tr("Syndicate Notes"), parent),
      note_(Named(new QPlainTextEdit, QStringLiteral("Text1"))) {
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(
        MakeBody(QStringLiteral("Label4"),
                 tr("Write notes and memos for your syndicates and use the checklist to remind "
                    "you of tasks that still need to be done.")));
    layout->addSpacing(8);
    layout->addLayout(BuildBody(), 1);
    layout->addSpacing(8);
    layout->addLayout(BuildActions());
    TabInReadingOrder();
    SetOpeningSize({860, 500});
}

QLayout* SNotes::BuildBody() {
    auto* body = new QHBoxLayout;
    body->setSpacing(32);
    body->addLayout(BuildNote(), 1);
    body->addLayout(BuildChecklist(), 1);
    return body;
}

QLayout* SNotes::BuildNote() {
    QLabel* title = MakeLabel(QStringLiteral("Label3"), tr(" Notes:"));
    note_->setTabChangesFocus(true);
    connect(note_, &QPlainTextEdit::textChanged, this, [this] { dirty_.Set(); });
    auto* layout = new QVBoxLayout;
    layout->setSpacing(4);
    layout->addWidget(title);
    layout->addWidget(Titled(title, note_), 1);
    layout->addWidget(MakeBody(QStringLiteral("Label2"),
                               tr("Ctr+C=Copy   /   Ctrl+X=Cut   /   Ctrl+V=Paste Select with "
                                  "mouse or Shift+cursor keys")));
    return layout;
}

QLayout* SNotes::BuildChecklist() {
    auto* items = new QGridLayout;
    items->setColumnStretch(0, 1);
    items->setVerticalSpacing(4);
    items->addWidget(MakeLabel(QStringLiteral("Label12"), tr("   Checklist:")), 0, 0);
    checklist_ = new Checklist(this, *items, 1);
    checklist_->SetTips(tr("Clear an item and add your own checklist"),
                        tr("Type in your checklist item and click Add"));
    checklist_->SetCaptions({tr("Update members list"), tr("Collect member payments"),
                             tr("Analyse lottery draws"), tr("Generate lottery entries"),
                             tr("Fill in payslips"), tr("Buy lottery tickets"),
                             tr("Check lottery results"), tr("Distribute winnings to members!")});
    items->setColumnMinimumWidth(0, checklist_->WidestItem());
    connect(checklist_, &Checklist::changed, this, [this] { dirty_.Set(); });
    items->addWidget(MakeBody(QStringLiteral("Label1"),
                              tr("Replace a checklist item with your own by clicking the Clear "
                                 "button, then entering the text below and clicking the Add "
                                 "button.")),
                     Checklist::rows - 1, 0, 1, 2, Qt::AlignBottom);
    return items;
}

QLayout* SNotes::BuildActions() {
    QPushButton* save = MakeCommandButton(QStringLiteral("Command1"), Command::Save, tr(" Save "));
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    QPushButton* reset = MakeDeletingButton(QStringLiteral("Command5"), tr("Reset"));
    reset->setToolTip(tr(" Delete notes / reset checklist to defaults "));
    reset->setAccessibleName(reset->toolTip().trimmed());
    connect(reset, &QPushButton::clicked, this, [this] { Reset(); });
    QPushButton* close =
        MakeCommandButton(QStringLiteral("Command2"), Command::Close, tr(" Close window "));
    connect(close, &QPushButton::clicked, this, [this] { Close(); });
    SetCloseButton(close);
    QHBoxLayout* row = BuildActionRow({save}, {close});
    row->insertSpacing(1, 24);
    row->insertWidget(2, reset);
    return row;
}

void SNotes::Load() {
    Skinning(QStringLiteral("SkinSyndicates.jpg"),
             {.title = {},
              .body = {QStringLiteral("Label1"), QStringLiteral("Label4")},
              .small = {},
              .status = {QStringLiteral("Label2")}});
    if (folder().Exists(syndicateNotesFile)) {
        const Notes notes = ReadSyndicateNotes(folder());
        checklist_->Show(notes.checklist);
        ShowNote(*note_, notes.note);
    }
    dirty_.Clear();
}

void SNotes::Save() {
    SaveSyndicateNotes(folder(), {.checklist = checklist_->Shown(), .note = NoteIn(*note_)});
    services().messages.Show(this, {.title = tr("Lottery Quillon"),
                                    .text = tr("  Notes and checklist saved...  "),
                                    .sign = Sign::Information});
    dirty_.Clear();
}

void SNotes::Reset() {
    if (folder().Exists(syndicateNotesFile)) DeleteKeepingOld(folder(), syndicateNotesFile);
    Unload();
}

void SNotes::Close() {
    if (dirty_.MayClose(services().messages, this, UnsavedWarning())) Unload();
}
